// tolmark-datafile: makes and checks the data file. Exit code 0: done; 1: refused, failed or faulty; 2: wrong usage.
#include "datafile/Check.h"
#include "datafile/Sample.h"
#include "datafile/Schema.h"
#include "platform/runtime/RuntimeError.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto usage = "Usage: tolmark-datafile create FILE   makes the data file of an empty organisation\n"
                       "       tolmark-datafile sample FILE   makes one with a sample organisation\n"
                       "       tolmark-datafile check FILE    tells whether FILE can serve as the data file\n"
                       "An existing FILE is never overwritten.\n";

void print(std::FILE *stream, const QString &text)
{
    QTextStream(stream) << text << Qt::endl;
}

int check(const QString &path)
{
    const QStringList faults = datafile::faultsOf(path);
    for (const QString &fault : faults)
        print(stdout, fault);
    if (!faults.isEmpty())
        return 1;
    print(stdout, u"%1: good"_s.arg(path));
    return 0;
}

int run(const QString &command, const QString &path)
{
    if (command == u"create"_s)
        datafile::createDataFile(path);
    else if (command == u"sample"_s)
        datafile::createSampleFile(path);
    else
        return check(path);
    print(stdout, u"%1: made; the administrator is \"admin\" with the password \"tolmark\""_s.arg(path));
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QStringList commands{u"create"_s, u"sample"_s, u"check"_s};
    if (arguments.size() == 2 && (arguments.at(1) == u"--help"_s || arguments.at(1) == u"-h"_s)) {
        std::fputs(usage, stdout);
        return 0;
    }
    if (arguments.size() != 3 || !commands.contains(arguments.at(1)) || arguments.at(2).isEmpty()) {
        std::fputs(usage, stderr);
        return 2;
    }
    try {
        return run(arguments.at(1), arguments.at(2));
    } catch (const runtime::RuntimeError &error) {
        print(stderr, u"tolmark-datafile: "_s + error.description());
        return 1;
    }
}
