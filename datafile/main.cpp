// tolmark-datafile: makes, checks, copies, reads out and fills the data file. Exit code 0: done; 1: refused, failed or
// faulty; 2: wrong usage.
#include "datafile/Progress.h"
#include "datafile/commands/Command.h"
#include "datafile/jet/TableReader.h"
#include "platform/runtime/RuntimeError.h"

#include <QCoreApplication>
#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <new>

using namespace Qt::Literals::StringLiterals;

namespace {

QList<commands::Command> allCommands()
{
    using namespace commands;
    return {createCommand(),  sampleCommand(), generateCommand(),      checkCommand(),     backupCommand(),
            restoreCommand(), exportCommand(), importMembersCommand(), importMdbCommand(), upgradeCommand()};
}

QString usageOfAll()
{
    QString usage;
    for (const commands::Command &command : allCommands())
        usage += (usage.isEmpty() ? u"Usage: "_s : u"       "_s) +
                 u"tolmark-datafile %1 %2\n           %3\n"_s.arg(command.name, command.arguments, command.summary);
    return usage + u"\"tolmark-datafile COMMAND --help\" tells more. An existing file is never overwritten.\n"_s;
}

QString usageOf(const commands::Command &command)
{
    return u"Usage: tolmark-datafile %1 %2\n%3.\n%4"_s.arg(
        command.name, command.arguments, command.summary.left(1).toUpper() + command.summary.mid(1), command.help);
}

void print(std::FILE *stream, const QString &text)
{
    QTextStream(stream) << text << Qt::flush;
}

int refuse(const QString &reason, const QString &usage)
{
    print(stderr, u"tolmark-datafile: %1\n%2"_s.arg(reason, usage));
    return 2;
}

// A failure tells the file that it is about, once.
QString messageOf(const runtime::RuntimeError &error, const QStringList &paths)
{
    const QString text = datafile::isStopAsked() ? u"interrupted; nothing was left behind"_s : error.description();
    const bool isNamed =
        std::any_of(paths.begin(), paths.end(), [&](const QString &path) { return text.contains(path); });
    return isNamed || paths.isEmpty() ? text : paths.last() + u": "_s + text;
}

int run(const commands::Command &command, const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.addOption(QCommandLineOption(QStringList{u"help"_s, u"h"_s}));
    parser.addOptions(command.options);
    if (!parser.parse(QStringList(command.name) + arguments))
        return refuse(parser.errorText(), usageOf(command));
    if (parser.isSet(u"help"_s)) {
        print(stdout, usageOf(command));
        return 0;
    }
    const QStringList paths = parser.positionalArguments();
    if (paths.size() != command.paths || paths.contains(QString()))
        return refuse(u"%1 takes %2"_s.arg(command.name, command.arguments), usageOf(command));
    try {
        return command.run(parser);
    } catch (const commands::UsageError &error) {
        return refuse(error.text(), usageOf(command));
    } catch (const runtime::RuntimeError &error) {
        print(stderr, u"tolmark-datafile: %1\n"_s.arg(messageOf(error, paths)));
    } catch (const std::bad_alloc &) {
        print(stderr, u"tolmark-datafile: %1\n"_s.arg(runtime::errorText(runtime::OutOfMemory)));
    }
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 4 && qstrcmp(argv[1], jet::readerArgument) == 0)
        return jet::readTables(argv[2], argv[3]); // started by import-mdb
    const QCoreApplication application(argc, argv);
    datafile::stopOnSignals();
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments == QStringList{u"--help"_s} || arguments == QStringList{u"-h"_s}) {
        print(stdout, usageOfAll());
        return 0;
    }
    for (const commands::Command &command : allCommands())
        if (!arguments.isEmpty() && command.name == arguments.first())
            return run(command, arguments.mid(1));
    return refuse(arguments.isEmpty() ? u"a command is missing"_s
                                      : u"there is no command \"%1\""_s.arg(arguments.first()),
                  usageOfAll());
}
