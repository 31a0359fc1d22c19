#include "datafile/Sample.h"
#include "datafile/Schema.h"
#include "datafile/commands/Command.h"

using namespace Qt::Literals::StringLiterals;

namespace commands {

namespace {

int reportMade(const QString &path)
{
    say(u"%1: made; the administrator is \"admin\" with the password \"tolmark\""_s.arg(path));
    return 0;
}

} // namespace

Command createCommand()
{
    return {u"create"_s,
            u"FILE"_s,
            u"makes the data file of an empty organisation"_s,
            {},
            1,
            {},
            [](const QCommandLineParser &given) {
                const QString path = given.positionalArguments().first();
                datafile::createDataFile(path);
                return reportMade(path);
            }};
}

Command sampleCommand()
{
    return {u"sample"_s,
            u"FILE"_s,
            u"makes one with a sample organisation, to try things out in"_s,
            {},
            1,
            {},
            [](const QCommandLineParser &given) {
                const QString path = given.positionalArguments().first();
                datafile::createSampleFile(path);
                return reportMade(path);
            }};
}

} // namespace commands
