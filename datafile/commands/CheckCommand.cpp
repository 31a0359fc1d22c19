#include "datafile/Check.h"
#include "datafile/Progress.h"
#include "datafile/commands/Command.h"
#include "platform/runtime/RuntimeError.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace commands {

namespace {

// What helps with a file that the store does not read; empty where the store has failed for another reason.
QString helpAfter(const QString &failure, const QString &path)
{
    QFile file(path);
    if (!failure.startsWith(u"Unrecognized database format"_s) || !file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray begin = file.read(32);
    if (begin.startsWith("SQLite format 3"))
        return u" It is damaged: put a copy in its place."_s;
    if (begin.contains("Standard Jet DB"))
        return u" It is of the older Jet format: import-mdb makes a data file of it."_s;
    return u" It is no data file."_s;
}

QStringList faultsOf(const QString &path)
{
    try {
        return datafile::faultsOf(path);
    } catch (const runtime::RuntimeError &error) {
        throw runtime::RuntimeError(error.number(), error.description() + helpAfter(error.description(), path));
    }
}

int check(const QCommandLineParser &given)
{
    const QString path = given.positionalArguments().first();
    datafile::Progress progress(u"checking "_s + path);
    const QStringList faults = faultsOf(path);
    progress.finish();
    for (const QString &fault : faults)
        say(fault);
    if (!faults.isEmpty())
        return 1;
    say(u"%1: good"_s.arg(path));
    return 0;
}

} // namespace

Command checkCommand()
{
    return {u"check"_s,
            u"FILE"_s,
            u"tells whether FILE can serve as the data file"_s,
            u"Each fault is one line, with what mends it. Statements of SQL can be run with sqlite3(1) while the "
            u"program is\n"
            u"closed; make a backup first.\n"_s,
            1,
            {},
            check};
}

} // namespace commands
