#include "dynamicforms/TableGeneration.h"

#include "platform/data/Catalog.h"
#include "platform/desktop/LongWork.h"
#include "platform/runtime/ErrorHandling.h"
#include "shell/store/DataStore.h"

using namespace Qt::Literals::StringLiterals;

using data::Catalog;
using data::Column;
using data::Table;
using runtime::everyStep;
using runtime::Value;

namespace {

bool hasColumn(const Table &table, const QString &name)
{
    for (const Column &column : table.Columns()) {
        if (column.Name() == name)
            return true;
    }
    return false;
}

void addColumn(const Catalog &catalog, const Table &table, const QString &name)
{
    Column column;
    column.setName(name);
    column.setType(data::adVarWChar);
    column.setParentCatalog(catalog);
    column.Properties().Item(u"Nullable").setValue(Value(true));
    table.Columns().Append(column, data::adVarWChar, 0);
}

void addMissingColumns(const Catalog &catalog, const Table &table, const FieldRows &rows)
{
    for (int k = 0; k < rows.upperBound(); ++k) {
        if (rows[k].RowTabNam == table.Name() && !hasColumn(table, rows[k].RowFieldName))
            addColumn(catalog, table, rows[k].RowFieldName);
    }
}

} // namespace

void generateTables(const QStringList &captions, const FieldRows &rows)
{
    Catalog catalog;
    catalog.setActiveConnection(dataStoreConnectionString());
    desktop::LongWork work(u"Generating table"_s, captions.size());
    for (qsizetype generated = 0; const QString &caption : captions) {
        work.at(++generated);
        for (const Table &table : catalog.Tables()) {
            if (table.Type() == u"VIEW" || table.Name() != caption)
                continue;
            addMissingColumns(catalog, table, rows);
            break;
        }
        createTable(caption, rows);
    }
}

void createTable(const QString &TableName, const FieldRows &rows)
{
    Catalog catalog;
    Table table;
    const data::Columns columns = table.Columns();
    const QString key = QString(TableName + u"Id"_s).remove(u' ');
    const QString date = QString(TableName + u"Date"_s).remove(u' ');
    const auto set = [&columns](QStringView column, QStringView property, const Value &value) {
        columns.Item(column).Properties().Item(property).setValue(value);
    };
    everyStep([&] { catalog.setActiveConnection(dataStoreConnectionString()); }, [&] { table.setName(TableName); },
              [&] { table.setParentCatalog(catalog); }, [&] { columns.Append(key, data::adInteger, 0); },
              [&] { set(key, u"AutoIncrement", Value(true)); },
              [&] { columns.Append(u"PersonalInformationId"_s, data::adInteger, 0); },
              [&] { columns.Append(date, data::adDate, 0); }, [&] { set(date, u"Default", Value(u"Date$()"_s)); });
    int last = -1;
    everyStep([&] { last = rows.upperBound(); });
    for (int k = 0; k <= last; ++k) {
        const FieldRow &row = rows[k];
        if (row.RowTabNam == TableName)
            everyStep([&] { columns.Append(row.RowFieldName, data::adVarWChar, 0); },
                      [&] { set(row.RowFieldName, u"Required", Value(false)); });
    }
    everyStep([&] { catalog.Tables().Append(table); });
}
