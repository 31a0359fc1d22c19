// Whole files in and out of the store and the search through what they hold, beside the C API, plain reading and
// writing and grep.
#include "benchmarks/Files.h"
#include "benchmarks/Grep.h"
#include "benchmarks/RawFiles.h"
#include "benchmarks/RawStore.h"
#include "benchmarks/StoredLargeFile.h"
#include "library/ClsBinaryFunctions.h"
#include "platform/runtime/Application.h"
#include "platform/runtime/BinaryFile.h"
#include "platform/runtime/Conversion.h"
#include "search/frmFindInfo.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QTimer>

#include <benchmark/benchmark.h>
#include <random>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString phrase = u"annual meeting"_s;

// Lines of words, with each letter as often as in English.
QByteArray text(qsizetype bytes)
{
    static constexpr char letters[] =
        "eeeeeeeeeeeetttttttttaaaaaaaaooooooooiiiiiiinnnnnnnsssssshhhhhhrrrrrrddddllllcccuuu"
        "mmmwwffggyyppbbvk";
    std::mt19937 random(1);
    QByteArray lines;
    lines.reserve(bytes);
    for (int word = 1; lines.size() < bytes; ++word) {
        for (auto length = 1 + random() % 8; length > 0; --length)
            lines += letters[random() % (sizeof letters - 1)];
        lines += word % 12 == 0 ? '\n' : ' ';
    }
    lines.truncate(bytes);
    return lines;
}

// Processor time, grep's own included.
template <class Work> void timed(benchmark::State &state, Work &&work)
{
    for ([[maybe_unused]] auto _ : state) {
        const double before = processorSeconds();
        work();
        state.SetIterationTime(processorSeconds() - before);
    }
}

const QString &fileOf100MB()
{
    static const QString path = [] {
        const QString made = files::folder() + u"/scanned.txt"_s;
        const QByteArray part = text(20'000'000);
        for (int at = 0; at < 5; ++at)
            raw::writeFile(made, part, at * part.size());
        return made;
    }();
    return path;
}

class Scanner : public ClsBinaryFunctions
{
public:
    using ClsBinaryFunctions::FileHandle;
    using ClsBinaryFunctions::ScanFile;
};

void scanOurs(benchmark::State &state)
{
    Scanner scanner;
    scanner.sFile = fileOf100MB();
    scanner.Text2Text = phrase;
    timed(state, [&] {
        if (scanner.ScanFile())
            state.SkipWithError("the phrase is there");
        runtime::CloseFile(scanner.FileHandle);
    });
}
BENCHMARK(scanOurs)->Name("scan_100mb/ours")->Unit(benchmark::kMillisecond)->UseManualTime();

void scanFloor(benchmark::State &state)
{
    const QString file = fileOf100MB();
    timed(state, [&] {
        if (grepCount(phrase, {file}) != 0)
            state.SkipWithError("the phrase is there");
    });
}
BENCHMARK(scanFloor)->Name("scan_100mb/floor")->Unit(benchmark::kMillisecond)->UseManualTime();

constexpr int searched = 1000;
constexpr int withPhrase = 10;

// An application folder whose data file has 1,000 attachments of 250 KB; the phrase stands at the end of ten.
const QString &folderToSearch()
{
    static const QString folder = [] {
        const QString made = files::folder() + u"/search"_s;
        raw::require(QDir().mkpath(made + u"/temp/Search"_s));
        if (QFile::exists(made + u"/Tolmark.mdb"_s)) // of an earlier run in the same folder
            return made;
        const raw::File file(files::empty(u"search/Tolmark.mdb"_s));
        file.execute("BEGIN");
        const raw::Statement insert(file, "INSERT INTO Attachments (AttachmentsName, AttachmentVersion, Attachments) "
                                          "VALUES ('file ' || ?1, 1, ?2)");
        const QByteArray words = text(5'000'000);
        for (int number = 1; number <= searched; ++number) {
            QByteArray content = words.sliced(number * 4001, 250'000);
            if (number % (searched / withPhrase) == 0)
                content.replace(249'900, phrase.size() + 1, '\n' + phrase.toLatin1());
            content += '\0';
            sqlite3_bind_int(insert.get(), 1, number);
            sqlite3_bind_blob(insert.get(), 2, content.constData(), int(content.size()), SQLITE_STATIC);
            insert.step();
            sqlite3_reset(insert.get());
        }
        file.execute("COMMIT");
        return made;
    }();
    return folder;
}

void searchOurs(benchmark::State &state)
{
    runtime::App::setPath(folderToSearch());
    timed(state, [&] {
        ClsBinaryFunctions search;
        if (search.cmdOpendb(phrase, u"SELECT * FROM Attachments"_s).RecordCount() != withPhrase)
            state.SkipWithError("other than ten hits");
    });
}
BENCHMARK(searchOurs)->Name("content_search/ours")->Unit(benchmark::kMillisecond)->UseManualTime();

void searchFloor(benchmark::State &state)
{
    const QString folder = folderToSearch();
    timed(state, [&] {
        const raw::File file(folder + u"/Tolmark.mdb"_s);
        const raw::Statement attachments(file, "SELECT AttachmentsName, Attachments FROM Attachments");
        QStringList copies;
        while (attachments.step()) {
            copies << folder + u"/temp/Search/"_s + attachments.text(0);
            const auto *blob = static_cast<const char *>(sqlite3_column_blob(attachments.get(), 1));
            raw::writeFile(copies.last(), {blob, sqlite3_column_bytes(attachments.get(), 1)});
        }
        if (grepCount(phrase, copies) != withPhrase)
            state.SkipWithError("other than ten hits");
        for (const QString &copy : copies)
            QFile::remove(copy);
    });
}
BENCHMARK(searchFloor)->Name("content_search/floor")->Unit(benchmark::kMillisecond)->UseManualTime();

// Says Yes to the window's warning as soon as it stands.
void consent()
{
    if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
        box->button(QMessageBox::Yes)->click();
    else
        QTimer::singleShot(0, consent);
}

// The same search from the click on, with its warning, until its hits are painted. Each search has a fresh window.
void clickOurs(benchmark::State &state)
{
    runtime::App::setPath(folderToSearch());
    for ([[maybe_unused]] auto _ : state) {
        frmFindInfo window;
        window.Show();
        window.txtSearchString->setText(phrase);
        QApplication::processEvents();
        const double before = processorSeconds();
        QTimer::singleShot(0, consent);
        window.cmdSearch->click();
        window.grab();
        state.SetIterationTime(processorSeconds() - before);
        if (window.lstViewResults->ListItems.Count() != withPhrase)
            state.SkipWithError("other than ten lines");
    }
}
BENCHMARK(clickOurs)->Name("find_click/ours")->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(searchOurs)->Name("find_click/floor")->Unit(benchmark::kMillisecond)->UseManualTime();

void removeLast(benchmark::State &state, const raw::File &file)
{
    state.PauseTiming();
    file.execute("DELETE FROM Attachments WHERE AttachmentsId = (SELECT MAX(AttachmentsId) FROM Attachments)");
    state.ResumeTiming();
}

void storingOurs(benchmark::State &state)
{
    const QString store = files::empty(u"stored.mdb"_s);
    const raw::File file(store);
    for ([[maybe_unused]] auto _ : state) {
        largefile::storeOurs(store);
        removeLast(state, file);
    }
}
BENCHMARK(storingOurs)->Name("store_200mb/ours")->Unit(benchmark::kMillisecond);

void storingFloor(benchmark::State &state)
{
    const QString store = files::empty(u"stored.mdb"_s);
    const raw::File file(store);
    for ([[maybe_unused]] auto _ : state) {
        largefile::storeFloor(store);
        removeLast(state, file);
    }
}
BENCHMARK(storingFloor)->Name("store_200mb/floor")->Unit(benchmark::kMillisecond);

void fetchingOurs(benchmark::State &state)
{
    const QString store = largefile::storeWithFile();
    for ([[maybe_unused]] auto _ : state)
        largefile::fetchOurs(store);
}
BENCHMARK(fetchingOurs)->Name("fetch_200mb/ours")->Unit(benchmark::kMillisecond);

void fetchingFloor(benchmark::State &state)
{
    const QString store = largefile::storeWithFile();
    for ([[maybe_unused]] auto _ : state)
        largefile::fetchFloor(store);
}
BENCHMARK(fetchingFloor)->Name("fetch_200mb/floor")->Unit(benchmark::kMillisecond);

// As the dossier adds a file: the whole table for the new row, the rows of its name for the version.
void adding(benchmark::State &state, const QString &store)
{
    const QString name = u"agenda of the next meeting.txt"_s;
    const QString path = files::folder() + u'/' + name;
    raw::writeFile(path, text(files::attachmentBytes));
    const raw::File file(store);
    for ([[maybe_unused]] auto _ : state) {
        data::Connection connection;
        connection.Open(files::connectionString(store));
        data::Recordset attachments;
        attachments.Open(u"select * from Attachments"_s, connection);
        attachments.AddNew();
        data::Recordset versions;
        versions.Open(u"select * from Attachments where AttachmentsName = '"_s + name +
                          u"' ORDER BY AttachmentVersion desc"_s,
                      connection);
        const FileToStore content(path);
        attachments[u"MemberId"].setValue(runtime::Value(qint32(17)));
        attachments[u"AttachmentsName"].setValue(name);
        attachments[u"Attachments"].AppendChunk(content.bytes());
        const qint32 version = versions.Eof() ? 1 : runtime::toInteger(versions[u"AttachmentVersion"].Value()) + 1;
        attachments[u"AttachmentVersion"].setValue(runtime::Value(version));
        attachments.Update();
        content.close();
        connection.Close();
        removeLast(state, file);
    }
}
void addingToMany(benchmark::State &state)
{
    adding(state, files::organisation());
}
void addingToFew(benchmark::State &state)
{
    adding(state, files::fewAttachments());
}
BENCHMARK(addingToMany)->Name("add_attachment/ours");
BENCHMARK(addingToFew)->Name("add_attachment/floor");

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
