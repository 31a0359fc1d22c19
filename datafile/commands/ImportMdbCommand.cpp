#include "datafile/commands/Command.h"
#include "datafile/jet/JetImport.h"

using namespace Qt::Literals::StringLiterals;

namespace commands {

namespace {

int importMdb(const QCommandLineParser &given)
{
    const QString old = given.positionalArguments().at(0);
    const QString fresh = given.positionalArguments().at(1);
    datafile::Progress progress(u"importing "_s + old);
    const jet::Imported imported =
        jet::importFile(old, fresh, given.value(u"password"_s), QCoreApplication::applicationFilePath(), progress);
    progress.finish();
    for (const QString &note : imported.notes)
        say(note);
    say(u"%1: made from the %2 tables of %3 with %4 rows"_s.arg(fresh)
            .arg(imported.tables)
            .arg(old)
            .arg(imported.rows));
    return 0;
}

} // namespace

Command importMdbCommand()
{
    return {
        u"import-mdb"_s,
        u"OLD NEW [--password TEXT]"_s,
        u"makes NEW of a data file of the older Jet 4 format"_s,
        u"Every table is copied, the program's own by the names of their columns. Unless each has as many rows as it\n"
        u"declares, nothing is made. OLD is read by a process that can write nowhere, within limits of time and "
        u"memory.\n"
        u"  --password TEXT  the database password of OLD\n"_s,
        2,
        {{u"password"_s, {}, u"TEXT"_s}},
        importMdb};
}

} // namespace commands
