#include "datafile/Export.h"
#include "datafile/commands/Command.h"

using namespace Qt::Literals::StringLiterals;

namespace commands {

namespace {

int exportAll(const QCommandLineParser &given)
{
    const QStringList paths = given.positionalArguments();
    datafile::Progress progress(u"exporting "_s + paths.at(0));
    const datafile::Exported exported = datafile::exportFile(paths.at(0), paths.at(1), progress);
    progress.finish();
    say(u"%1: %2 tables with %3 rows, and %4 files"_s.arg(paths.at(1))
            .arg(exported.tables)
            .arg(exported.rows)
            .arg(exported.files));
    return 0;
}

} // namespace

Command exportCommand()
{
    return {u"export"_s,
            u"FILE FOLDER"_s,
            u"reads FILE out into FOLDER, also while Tolmark runs"_s,
            u"Each table becomes a CSV file in UTF-8, the designer's pages too. Attached files and documents become "
            u"files with\n"
            u"their version in the name; Files.csv lists them. The users' passwords are in Security.csv as they are "
            u"stored.\n"
            u"An empty cell is a value that is missing, a cell of two quotes (\"\") an empty text. A text that a "
            u"spreadsheet\n"
            u"would take for a formula has an apostrophe in front, which \"import-members\" takes off again.\n"_s,
            2,
            {},
            exportAll};
}

} // namespace commands
