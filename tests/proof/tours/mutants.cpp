// Opens every window over damaged and foreign data files, each a mutant of the sample file by the number of its seed:
//
//   mutants FIRST COUNT
//
// A window opens, or the failure is reported. A finding is a signal, five seconds of work without an end, an error that
// is none of the run-time's, a changed byte in the data file, or a new file beside it.
#include "Child.h"
#include "platform/data/engine/Database.h"
#include "platform/desktop/Style.h"
#include "support/Stations.h"

#include <random>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype pageSize = 4096;

class Mutation
{
public:
    Mutation(QString path, unsigned seed) : m_path(std::move(path)), m_random(seed) {}

    // What was done.
    QString apply()
    {
        switch (drawn(8)) {
        case 0:
        case 1:
            return u"%1 bytes changed"_s.arg(changeBytes());
        case 2:
            return changePages(u"truncated"_s, [this](QByteArray &bytes) { bytes.truncate(page(bytes)); });
        case 3:
            return changePages(u"a page of zeros"_s, [this](QByteArray &bytes) {
                bytes.replace(page(bytes), pageSize, QByteArray(pageSize, '\0'));
            });
        case 4:
            return changePages(u"two pages swapped"_s, [this](QByteArray &bytes) {
                const qsizetype one = page(bytes);
                const qsizetype other = page(bytes);
                const QByteArray kept = bytes.sliced(one, pageSize);
                bytes.replace(one, pageSize, bytes.sliced(other, pageSize)).replace(other, pageSize, kept);
            });
        case 5:
            return run("PRAGMA writable_schema = ON; UPDATE sqlite_master SET " + schemaChange());
        default:
            return run(valueChange());
        }
    }

private:
    qsizetype drawn(qsizetype below) { return qsizetype(m_random() % unsigned(below)); }
    template <class List> auto oneOf(const List &list) { return list[drawn(qsizetype(std::size(list)))]; }
    qsizetype page(const QByteArray &bytes) { return pageSize * drawn(bytes.size() / pageSize); }

    QString changePages(const QString &told, const std::function<void(QByteArray &)> &change)
    {
        QByteArray bytes = contentOf(m_path);
        change(bytes);
        QFile file(m_path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
            qFatal("cannot write the mutant");
        return told;
    }

    // Often in the header or in the first bytes of a page, where the structure stands.
    qsizetype changeBytes()
    {
        const qsizetype count = 1 + drawn(10);
        changePages({}, [&](QByteArray &bytes) {
            for (qsizetype i = 0; i < count; ++i) {
                const qsizetype at = drawn(2) ? drawn(bytes.size()) : page(bytes) + drawn(drawn(2) ? 12 : 100);
                bytes[at] = char(drawn(2) ? m_random() : bytes[at] ^ (1 << drawn(8)));
            }
        });
        return count;
    }

    QByteArray schemaChange()
    {
        data::Database file;
        file.open(m_path);
        QByteArrayList names;
        for (data::Statement all = file.prepare("SELECT name FROM sqlite_master"); all.step();)
            names << all.text(0).toByteArray();
        return oneOf(QByteArrayList{"sql = replace(sql, 'TEXT', 'BLOB')", "sql = replace(sql, 'INTEGER', 'TEXT')",
                                    "sql = substr(sql, 1, length(sql) / 2)", "sql = replace(sql, 'Name', 'Nome')",
                                    "sql = NULL", "rootpage = rootpage + 1", "rootpage = 1", "name = name || 'x'",
                                    "type = 'view'", "sql = replace(sql, 'NOCASE', 'STORE')"}) +
               " WHERE name = '" + oneOf(names) + '\'';
    }

    // One column of one table, in one row or in all.
    QByteArray valueChange()
    {
        data::Database file;
        file.open(m_path);
        QByteArrayList columns;
        for (data::Statement all = file.prepare("SELECT '\"' || m.name || '\" SET \"' || c.name || '\"' FROM "
                                                "sqlite_master m JOIN pragma_table_info(m.name) c WHERE m.type = "
                                                "'table' AND m.name NOT LIKE 'sqlite%'");
             all.step();)
            columns << all.text(0).toByteArray();
        const QByteArray column = oneOf(columns);
        static const QByteArrayList values = QByteArray(R"(NULL;NULL;'';'x';x'00ff';1e308;-1e308;9e999;
            -9223372036854775808;9223372036854775807;2147483648;32768;-1;0.1;'9999-12-31 23:59:59';'0000-00-00';
            '100-1-1';'a' || char(0) || 'b';'it''s';'%_[*';CAST(x'ff80' AS TEXT);'&a<b>' || char(10);'12 exact';
            char(1114111, 8238, 769);replace(hex(zeroblob(5000000)), '0', 'x');hex(zeroblob(20000)))")
                                                 .split(';');
        const QByteArray value = oneOf(values);
        return "UPDATE OR IGNORE " + column + " = " + value + (drawn(2) ? " WHERE _rowid_ = 1" : "");
    }

    QString run(const QByteArray &sql)
    {
        data::Database file;
        file.open(m_path);
        try {
            file.execute(sql);
        } catch (const runtime::RuntimeError &error) {
            return u"%1 bytes changed, for %2"_s.arg(changeBytes()).arg(error.description());
        }
        return QString::fromUtf8(sql);
    }

    QString m_path;
    std::mt19937 m_random;
};

// Closes each dialog that waits for an answer.
void answerDialogs(QTimer &timer)
{
    timer.callOnTimeout([] {
        if (QWidget *waiting = QApplication::activeModalWidget())
            waiting->close();
    });
    timer.start(0);
}

// The exit code. Each window gets a new frame, since the program would have ended by a report.
int openEveryWindow(std::FILE *told)
{
    bool foreign = false;
    const auto report = [&](const runtime::RuntimeError &error) {
        foreign = foreign || error.number() == -1;
        std::fprintf(told, "%d %s\n", error.number(), qPrintable(error.description().left(200)));
    };
    desktop::setErrorReport(report);
    QTimer timer;
    answerDialogs(timer);
    for (const Station &station : stations()) {
        std::fprintf(told, "%s\n", station.name);
        hangAfter(5);
        try {
            MDIBaseForm::frame().show();
            station.open()->show();
            QApplication::processEvents();
        } catch (...) {
            report(desktop::currentError());
        }
        closeStations();
    }
    return foreign ? 2 : 0;
}

QStringList everythingIn(const QString &folder)
{
    QStringList names = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    names.removeAll(u"settings"_s);
    return names;
}

// What is wrong with the way in which the program took the mutant; empty when nothing is.
QString tried(unsigned seed)
{
    DataStoreFolder folder;
    desktop::setSettingsFile(folder.path(u"settings"_s));
    const QString path = folder.path(u"Tolmark.mdb"_s);
    const QString mutation = Mutation(path, seed).apply();
    const QByteArray bytes = contentOf(path);
    const QStringList names = everythingIn(folder.folder());
    Ending ending = inChild(openEveryWindow);
    if (ending.fault.isEmpty() && contentOf(path) != bytes)
        ending.fault = u"the data file was changed"_s;
    if (ending.fault.isEmpty() && everythingIn(folder.folder()) != names)
        ending.fault = u"files came: "_s + everythingIn(folder.folder()).join(u' ');
    return ending.fault.isEmpty()
               ? QString()
               : u"mutants %1 1 (%2): %3, at\n%4"_s.arg(QString::number(seed), mutation.left(300), ending.fault,
                                                        QString::fromUtf8(ending.told).trimmed().section(u'\n', -3));
}

} // namespace

int main(int argc, char **argv)
{
    printNoRemarks();
    QApplication application(argc, argv);
    desktop::Style::install();
    QApplication::setQuitOnLastWindowClosed(false);
    const unsigned first = argc > 1 ? QByteArray(argv[1]).toUInt() : 1;
    const unsigned count = argc > 2 ? QByteArray(argv[2]).toUInt() : 100;
    int findings = 0;
    for (unsigned seed = first; seed < first + count; ++seed) {
        if (const QString finding = tried(seed); !finding.isEmpty()) {
            ++findings;
            std::printf("%s\n", qPrintable(finding));
            std::fflush(stdout);
        }
    }
    std::printf("%u mutants from seed %u on, %d findings\n", count, first, findings);
    return findings == 0 ? 0 : 1;
}
