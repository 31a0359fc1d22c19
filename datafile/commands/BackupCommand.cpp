#include "datafile/Copies.h"
#include "datafile/commands/Command.h"

using namespace Qt::Literals::StringLiterals;

namespace commands {

namespace {

int backup(const QCommandLineParser &given)
{
    const QStringList paths = given.positionalArguments();
    datafile::Progress progress(u"copying "_s + paths.at(0));
    datafile::backUp(paths.at(0), paths.at(1), progress);
    progress.finish();
    say(u"%1: a sound copy of %2"_s.arg(paths.at(1), paths.at(0)));
    return 0;
}

int restore(const QCommandLineParser &given)
{
    const QStringList paths = given.positionalArguments();
    datafile::Progress progress(u"copying "_s + paths.at(0));
    const QString old = datafile::restore(paths.at(0), paths.at(1), progress);
    progress.finish();
    say(u"%1: restored from %2"_s.arg(paths.at(1), paths.at(0)));
    if (!old.isEmpty())
        say(u"%1: the file as it was before"_s.arg(old));
    return 0;
}

} // namespace

Command backupCommand()
{
    return {u"backup"_s,
            u"FILE COPY"_s,
            u"copies FILE, also while Tolmark runs"_s,
            u"COPY is checked and has as many rows in each table as FILE before it gets its name.\n"_s,
            2,
            {},
            backup};
}

Command restoreCommand()
{
    return {
        u"restore"_s,
        u"COPY FILE"_s,
        u"puts a copy in the place of FILE"_s,
        u"Tolmark has to be closed. The old FILE is kept beside the new one, with the date and time in its name.\n"_s,
        2,
        {},
        restore};
}

} // namespace commands
