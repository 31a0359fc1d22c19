#include "datafile/commands/Command.h"

#include <QTextStream>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace commands {

void say(const QString &line)
{
    QTextStream(stdout) << line << Qt::endl;
}

int numberOf(const QCommandLineParser &given, const QString &option, int least, int most, int fallback)
{
    if (!given.isSet(option))
        return fallback;
    bool isNumber = false;
    const int number = given.value(option).toInt(&isNumber);
    if (!isNumber || number < least || number > most)
        throw UsageError(u"--%1 takes a whole number from %2 to %3, not \"%4\""_s.arg(option).arg(least).arg(most).arg(
            given.value(option)));
    return number;
}

} // namespace commands
