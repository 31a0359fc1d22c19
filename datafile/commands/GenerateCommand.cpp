#include "datafile/Generator.h"
#include "datafile/commands/Command.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace commands {

namespace {

int generate(const QCommandLineParser &given)
{
    if (!given.isSet(u"members"_s))
        throw UsageError(u"--members N is missing"_s);
    constexpr int most = 1'000'000; // some files are made for measuring
    datafile::GeneratorOptions options;
    options.members = numberOf(given, u"members"_s, 1, std::numeric_limits<qint16>::max(), 0);
    options.interests = options.members * 3;
    options.contributions = options.assignedEvents = options.members * 2;
    options.notes = options.members;
    options.attachments = numberOf(given, u"attachments"_s, 0, most, options.members / 3);
    options.seed = quint32(numberOf(given, u"seed"_s, 0, std::numeric_limits<int>::max(), 1));
    const QString path = given.positionalArguments().first();
    datafile::Progress progress(u"making "_s + path);
    datafile::createGeneratedFile(path, options, &progress);
    progress.finish();
    say(u"%1: made with %2 members and %3 attachments; the administrator is \"admin\" with the password \"tolmark\""_s
            .arg(path)
            .arg(options.members)
            .arg(options.attachments));
    return 0;
}

} // namespace

Command generateCommand()
{
    return {u"generate"_s,
            u"FILE --members N [--attachments M] [--seed S]"_s,
            u"makes one with N invented members, for trials and measurements"_s,
            u"  --members N      1 to 32767 members; the further records grow with their number\n"
            u"  --attachments M  so many attached files; a third of the members without this option\n"
            u"  --seed S         another number gives other names and dates; the same number the same file\n"_s,
            1,
            {{u"members"_s, {}, u"N"_s}, {u"attachments"_s, {}, u"M"_s}, {u"seed"_s, {}, u"S"_s}},
            generate};
}

} // namespace commands
