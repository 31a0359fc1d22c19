#include "datafile/Check.h"
#include "datafile/Progress.h"
#include "datafile/commands/Command.h"

using namespace Qt::Literals::StringLiterals;

namespace commands {

namespace {

int check(const QCommandLineParser &given)
{
    const QString path = given.positionalArguments().first();
    datafile::Progress progress(u"checking "_s + path);
    const QStringList faults = datafile::faultsOf(path);
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
