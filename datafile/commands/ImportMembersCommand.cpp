#include "datafile/MemberImport.h"
#include "datafile/commands/Command.h"
#include "platform/runtime/RuntimeError.h"

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace commands {

namespace {

datafile::CsvForm formOf(const QCommandLineParser &given)
{
    datafile::CsvForm form;
    form.encoding = given.value(u"encoding"_s).toLower();
    if (!form.encoding.isEmpty() && !QStringList{u"utf-8"_s, u"utf-16"_s, u"windows-1252"_s}.contains(form.encoding))
        throw UsageError(u"--encoding takes utf-8, utf-16 or windows-1252"_s);
    const QString separator = given.value(u"separator"_s);
    if (given.isSet(u"separator"_s) && !QStringList{u","_s, u";"_s, u"tab"_s}.contains(separator))
        throw UsageError(u"--separator takes \",\", \";\" or tab"_s);
    if (!separator.isEmpty())
        form.separator = separator == u"tab"_s ? QChar(u'\t') : separator.at(0);
    return form;
}

int importAll(const QCommandLineParser &given)
{
    const QString file = given.positionalArguments().at(0);
    const QString csv = given.positionalArguments().at(1);
    const datafile::ImportOptions options{given.values(u"map"_s), formOf(given), given.isSet(u"dry-run"_s)};
    datafile::Progress progress(u"importing "_s + csv);
    datafile::Imported imported;
    try {
        imported = datafile::importMembers(file, csv, options, progress);
    } catch (const runtime::RuntimeError &error) {
        const QString &text = error.description();
        if (error.number() == runtime::TypeMismatch)
            throw runtime::RuntimeError(error.number(), csv + u": "_s + text);
        throw runtime::RuntimeError(error.number(), text.contains(csv) ? text : file + u": "_s + text);
    }
    progress.finish();
    if (imported.faults.isEmpty()) {
        const QString members = imported.members == 1 ? u"1 member"_s : u"%1 members"_s.arg(imported.members);
        say((options.isDryRun ? u"%1: %2 can be imported; nothing was changed"_s : u"%1: %2 imported"_s)
                .arg(options.isDryRun ? csv : file, members));
        return 0;
    }
    QByteArray list = "row,column,value,reason\r\n";
    for (const datafile::CellFault &fault : imported.faults)
        list += datafile::csvLine(
            {QString::number(fault.row), fault.column, datafile::withoutFormula(fault.value), fault.reason});
    std::fwrite(list.constData(), 1, std::size_t(list.size()), stdout);
    const datafile::CellFault &first = imported.faults.first();
    const qsizetype count = imported.faults.size();
    throw runtime::RuntimeError(runtime::TypeMismatch,
                                u"%1: row %2%3: %4; %5, nothing was imported"_s.arg(
                                    csv, QString::number(first.row),
                                    first.column.isEmpty() ? QString() : u", column "_s + first.column, first.reason,
                                    count == 1 ? u"no other fault"_s : u"%1 faults in all"_s.arg(count)));
}

} // namespace

Command importMembersCommand()
{
    return {
        u"import-members"_s,
        u"FILE CSV [--map COLUMN=NAME]... [--dry-run]"_s,
        u"adds the members of a spreadsheet to FILE"_s,
        u"Every row is checked first. With a fault nothing is changed, and a list of row, column, value and reason is\n"
        u"written to standard output; the header is row 1.\n"
        u"  --map COLUMN=NAME   takes a column for NAME, or leaves it out with \"-\"; can be given several times\n"
        u"  --dry-run           only tells what would be done\n"
        u"  --encoding NAME     utf-8, utf-16 or windows-1252; found by the bytes without this option\n"
        u"  --separator SIGN    \",\" \";\" or tab; found in the first row without this option\n"
        u"Names of columns, of which common spellings are known too:\n  "_s +
            datafile::fieldNames().join(u"\n  "_s) + u'\n',
        2,
        {{u"map"_s, {}, u"COLUMN=NAME"_s},
         QCommandLineOption(u"dry-run"_s),
         {u"encoding"_s, {}, u"NAME"_s},
         {u"separator"_s, {}, u"SIGN"_s}},
        importAll};
}

} // namespace commands
