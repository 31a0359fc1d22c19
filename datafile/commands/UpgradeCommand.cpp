#include "datafile/Upgrade.h"
#include "datafile/commands/Command.h"

using namespace Qt::Literals::StringLiterals;

namespace commands {

namespace {

int upgrade(const QCommandLineParser &given)
{
    const QString path = given.positionalArguments().first();
    if (given.isSet(u"dry-run"_s)) {
        data::Database file;
        file.open(path);
        const QString finding = datafile::findingOfVersion(file, path);
        if (!finding.isEmpty())
            say(finding);
        return 0;
    }
    datafile::Progress progress(u"upgrading "_s + path);
    const QString old = datafile::upgrade(path, progress);
    progress.finish();
    if (old.isEmpty()) {
        say(u"%1: of the present version %2, left alone"_s.arg(path).arg(datafile::presentVersion()));
        return 0;
    }
    say(u"%1: brought to version %2"_s.arg(path).arg(datafile::presentVersion()));
    say(u"%1: the file as it was before"_s.arg(old));
    return 0;
}

} // namespace

Command upgradeCommand()
{
    return {u"upgrade"_s,
            u"FILE [--dry-run]"_s,
            u"brings an older FILE to the present schema"_s,
            u"Tolmark has to be closed. The old FILE is kept beside the new one, with the date and time in its name.\n"
            u"--dry-run  only tells what is to be done; nothing for a file of the present version\n"_s,
            1,
            {QCommandLineOption(u"dry-run"_s)},
            upgrade};
}

} // namespace commands
