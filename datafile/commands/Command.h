// What the commands of tolmark-datafile have in common: a command is a row of the table in main.cpp, described here and
// made by one function in a file of its own.
#pragma once

#include <QCommandLineParser>
#include <QList>
#include <QString>

#include <exception>
#include <utility>

namespace commands {

// Arguments that no command understands: the usage is shown and the exit code is 2.
class UsageError : public std::exception
{
public:
    explicit UsageError(QString text) : m_text(std::move(text)) {}
    const QString &text() const { return m_text; }

private:
    QString m_text;
};

struct Command
{
    QString name;
    QString arguments; // as the usage shows them
    QString summary;   // one line
    QString help;      // further lines for --help, each with its line feed
    int paths;         // how many stand behind the name
    QList<QCommandLineOption> options;
    // Does the work with arguments of the right number; its result is the exit code. Raises RuntimeError for what
    // fails.
    int (*run)(const QCommandLineParser &given);
};

Command createCommand();
Command sampleCommand();
Command generateCommand();
Command checkCommand();
Command backupCommand();
Command restoreCommand();
Command exportCommand();
Command importMembersCommand();
Command importMdbCommand();
Command upgradeCommand();

// A line on standard output.
void say(const QString &line);

// The value of an option as a whole number; the fallback where it is not given. Raises UsageError outside the range.
int numberOf(const QCommandLineParser &given, const QString &option, int least, int most, int fallback);

} // namespace commands
