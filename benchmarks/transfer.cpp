// Whole files in and out of the store and the search through what they hold, beside the C API, plain reading and
// writing and grep.
#include "benchmarks/Files.h"
#include "benchmarks/Grep.h"
#include "benchmarks/ProcessFigure.h"
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
#include <cctype>
#include <random>
#include <string>

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

// Bytes as good as random ones, none of them a letter of the phrases but for those that are put in.
QByteArray noise(qsizetype bytes)
{
    std::mt19937 random(2);
    QByteArray made(bytes, '\0');
    for (char &byte : made) {
        const auto drawn = random();
        byte = char(drawn);
        if (std::isalpha(drawn & 0xff))
            byte = drawn >> 8 & 1 ? 'e' : 'x'; // every tenth byte
        if ((drawn >> 9) % 2000 == 0)
            byte = 'v';
    }
    return made;
}

using Made = QByteArray (*)(qsizetype bytes);

QString fileOf100MB(const char *name, Made made)
{
    const QString path = files::folder() + u'/' + QLatin1String(name);
    if (QFile::exists(path))
        return path;
    const QByteArray part = made(20'000'000);
    for (int at = 0; at < 5; ++at)
        raw::writeFile(path, part, at * part.size());
    return path;
}

class Scanner : public ClsBinaryFunctions
{
public:
    using ClsBinaryFunctions::FileHandle;
    using ClsBinaryFunctions::ScanFile;
};

void scanOurs(benchmark::State &state, const char *name, Made made, const char *searched)
{
    Scanner scanner;
    scanner.sFile = fileOf100MB(name, made);
    scanner.Text2Text = QLatin1String(searched);
    timed(state, [&] {
        if (scanner.ScanFile())
            state.SkipWithError("the phrase is there");
        runtime::CloseFile(scanner.FileHandle);
    });
}

void scanFloor(benchmark::State &state, const char *name, Made made, const char *searched)
{
    const QString file = fileOf100MB(name, made);
    timed(state, [&] {
        if (grepCount(QLatin1String(searched), {file}) != 0)
            state.SkipWithError("the phrase is there");
    });
}

// The first letter of the phrase is common in the file, rare or absent.
void registerScans()
{
    struct Scan
    {
        const char *row, *file;
        Made made;
        const char *searched;
    };
    for (const Scan &scan : {Scan{"scan_100mb", "scanned.txt", text, "annual meeting"},
                             {"scan_text_common", "scanned.txt", text, "election of officers"},
                             {"scan_text_rare", "scanned.txt", text, "vote of thanks"},
                             {"scan_text_absent", "scanned.txt", text, "quorum present"},
                             {"scan_random_common", "scanned.bin", noise, "election of officers"},
                             {"scan_random_rare", "scanned.bin", noise, "vote of thanks"},
                             {"scan_random_absent", "scanned.bin", noise, "quorum present"}}) {
        for (const auto &[side, run] : {std::pair("/ours", &scanOurs), {"/floor", &scanFloor}})
            benchmark::RegisterBenchmark((std::string(scan.row) + side).c_str(), run, scan.file, scan.made,
                                         scan.searched)
                ->Unit(benchmark::kMillisecond)
                ->UseManualTime();
    }
}

// An application folder whose data file has so many attachments of so many bytes each; the phrase stands at the end of
// one in a hundred.
struct Stored
{
    const char *folder;
    int count;
    int bytes;
    int withPhrase() const { return count / 100; }
};
constexpr Stored manyLarge{"search", 1000, 250'000};
constexpr Stored verySmall{"search_small", 10'000, 1000};

QString folderToSearch(const Stored &stored)
{
    const QString name = QLatin1String(stored.folder);
    const QString made = files::folder() + u'/' + name;
    raw::require(QDir().mkpath(made + u"/temp/Search"_s));
    if (QFile::exists(made + u"/Tolmark.mdb"_s)) // of an earlier run in the same folder
        return made;
    const raw::File file(files::empty(name + u"/Tolmark.mdb"_s));
    file.execute("BEGIN");
    const raw::Statement insert(file, "INSERT INTO Attachments (AttachmentsName, AttachmentVersion, Attachments) "
                                      "VALUES ('file ' || ?1, 1, ?2)");
    const QByteArray words = text(5'000'000);
    for (int number = 1; number <= stored.count; ++number) {
        QByteArray content = words.sliced(number * 401, stored.bytes);
        if (number % 100 == 0)
            content.replace(stored.bytes - 100, phrase.size() + 1, '\n' + phrase.toLatin1());
        content += '\0';
        sqlite3_bind_int(insert.get(), 1, number);
        sqlite3_bind_blob(insert.get(), 2, content.constData(), int(content.size()), SQLITE_STATIC);
        insert.step();
        sqlite3_reset(insert.get());
    }
    file.execute("COMMIT");
    return made;
}

void searchOurs(benchmark::State &state, const Stored &stored)
{
    runtime::App::setPath(folderToSearch(stored));
    timed(state, [&] {
        ClsBinaryFunctions search;
        if (search.cmdOpendb(phrase, u"SELECT * FROM Attachments"_s).RecordCount() != stored.withPhrase())
            state.SkipWithError("not the hits that are there");
    });
}

void searchFloor(benchmark::State &state, const Stored &stored)
{
    const QString folder = folderToSearch(stored);
    timed(state, [&] {
        const raw::File file(folder + u"/Tolmark.mdb"_s);
        const raw::Statement attachments(file, "SELECT AttachmentsName, Attachments FROM Attachments");
        QStringList copies;
        while (attachments.step()) {
            copies << folder + u"/temp/Search/"_s + attachments.text(0);
            const auto *blob = static_cast<const char *>(sqlite3_column_blob(attachments.get(), 1));
            raw::writeFile(copies.last(), {blob, sqlite3_column_bytes(attachments.get(), 1)});
        }
        if (grepCount(phrase, copies) != stored.withPhrase())
            state.SkipWithError("not the hits that are there");
        for (const QString &copy : copies)
            QFile::remove(copy);
    });
}
BENCHMARK_CAPTURE(searchOurs, large, manyLarge)
    ->Name("content_search/ours")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();
BENCHMARK_CAPTURE(searchFloor, large, manyLarge)
    ->Name("content_search/floor")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();
BENCHMARK_CAPTURE(searchOurs, small, verySmall)
    ->Name("search_1kb/ours")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();
BENCHMARK_CAPTURE(searchFloor, small, verySmall)
    ->Name("search_1kb/floor")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();

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
    runtime::App::setPath(folderToSearch(manyLarge));
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
        if (window.lstViewResults->ListItems.Count() != manyLarge.withPhrase())
            state.SkipWithError("other than ten lines");
    }
}
BENCHMARK(clickOurs)->Name("find_click/ours")->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK_CAPTURE(searchOurs, click, manyLarge)
    ->Name("find_click/floor")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();

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
    registerScans();
    benchmark::RunSpecifiedBenchmarks();
}
