#include "platform/data/engine/Definition.h"

#include "platform/data/engine/ColumnType.h"
#include "platform/data/engine/DefaultExpression.h"
#include "platform/data/sql/SqlText.h"
#include "platform/runtime/ProviderError.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace data {

namespace {

const char *declarationOf(int type)
{
    switch (ColumnType(type)) {
    case ColumnType::Integer:
        return "SMALLINT";
    case ColumnType::Long:
        return "INTEGER";
    case ColumnType::Double:
        return "DOUBLE";
    case ColumnType::Currency:
        return "CURRENCY";
    case ColumnType::Date:
        return "DATETIME";
    case ColumnType::Boolean:
        return "BOOLEAN";
    case ColumnType::Text:
        return "TEXT COLLATE NOCASE";
    case ColumnType::Memo:
        return "LONGTEXT COLLATE NOCASE";
    case ColumnType::Binary:
        return "BLOB";
    case ColumnType::Unknown:
        break;
    }
    throw provider::error(provider::InvalidType, u"Type is invalid."_s);
}

bool isSystemName(const QString &name)
{
    return name.startsWith(u"sqlite_", Qt::CaseInsensitive);
}

// No statement of the dialect could name what has a square bracket in its name.
bool canBeNamed(const QString &name)
{
    return !name.isEmpty() && !name.contains(u'[') && !name.contains(u']') && !name.contains(QChar(u'\0'));
}

runtime::RuntimeError invalidName(const QString &name)
{
    return provider::error(provider::SyntaxError,
                           u"'%1' is not a valid name.  Make sure that it does not include invalid "
                           u"characters or punctuation and that it is not too long."_s.arg(name));
}

struct ColumnSql
{
    QByteArray declaration; // the name and the type
    QByteArray constraint;  // " NOT NULL" or nothing
    QByteArray value;       // of the default, or nothing

    QByteArray all() const { return declaration + constraint + (value.isEmpty() ? value : " DEFAULT " + value); }
    bool hasComputedDefault() const { return value.startsWith('('); }
};

ColumnSql columnSql(const Database &file, const TableDefinition &table, const ColumnDefinition &column)
{
    // A column of the name _rowid_ would hide the row identity, by which the store finds a row again.
    if (!canBeNamed(column.name) || isSameName(column.name, u"_rowid_"_s))
        throw invalidName(column.name);
    const bool hasDefault = column.defaultExpression && !column.defaultExpression->isEmpty();
    ColumnSql sql;
    sql.declaration = sql::quotedName(column.name) + ' ' + declarationOf(column.type);
    if (column.isAutoIncrement) {
        if (ColumnType(column.type) != ColumnType::Long || hasDefault)
            throw refusedProperty();
        return sql; // nullable: the trigger puts the number where a new row has a Null
    }
    if (column.isRequired)
        sql.constraint = " NOT NULL";
    if (hasDefault)
        sql.value =
            defaultSql(file, *column.defaultExpression, ColumnType(column.type), table.name + u'.' + column.name);
    else if (ColumnType(column.type) == ColumnType::Boolean)
        sql.value = "0";
    return sql;
}

QByteArray tableSql(const Database &file, const TableDefinition &table)
{
    QByteArray sql = "CREATE TABLE " + sql::quotedName(table.name) + " (";
    for (const auto &column : table.columns)
        sql += columnSql(file, table, *column).all() + ", ";
    sql.chop(2);
    return sql + ')';
}

// A trigger that numbers new rows as AUTOINCREMENT does, with SQLite's own table of counters, in a column that is no
// key: a number that is set by hand is kept, also a repeated one, and no number is given out twice.
QByteArray counterSql(const TableDefinition &table, const ColumnDefinition &column)
{
    const QByteArray name = sql::quotedName(table.name);
    const QByteArray number = sql::quotedName(column.name);
    QByteArray text;
    sql::appendQuoted(text, table.name, '\'');
    const QByteArray own = " FROM sqlite_sequence WHERE name = " + text;
    return "CREATE TRIGGER " + name + " AFTER INSERT ON " + name + " BEGIN INSERT INTO sqlite_sequence (name, seq)" +
           " SELECT " + text + ", coalesce((SELECT max(" + number + ") FROM " + name +
           "), 0) WHERE NOT EXISTS (SELECT 1" + own + "); UPDATE sqlite_sequence SET seq = CASE WHEN NEW." + number +
           " IS NULL THEN seq + 1 ELSE max(seq, CAST(NEW." + number + " AS INTEGER)) END WHERE name = " + text +
           "; UPDATE " + name + " SET " + number + " = (SELECT seq" + own + ") WHERE _rowid_ = NEW._rowid_ AND " +
           number + " IS NULL; END";
}

// The names of indexes count too: SQLite has one space for all of them.
bool isTaken(const Database &file, const QString &name)
{
    Statement taken = file.prepare("SELECT 1 FROM sqlite_master WHERE name = ?1 COLLATE NOCASE AND type <> 'trigger'");
    taken.bindText(1, name.toUtf8());
    return taken.step();
}

// SQLite adds no column with a computed default to a table that has rows. The way that its manual gives for changing a
// default is taken: the column is added without one, the rows there get the value of this moment, and then the default
// is written into the table's definition.
void addColumnWithComputedDefault(Database &file, const QByteArray &table, const ColumnDefinition &column,
                                  const ColumnSql &sql)
{
    file.change([&] {
        file.execute("ALTER TABLE " + table + " ADD COLUMN " + sql.declaration + "; UPDATE " + table + " SET " +
                     sql::quotedName(column.name) + " = " + sql.value);
        const QByteArray here =
            " WHERE type = 'table' AND '\"' || replace(name, '\"', '\"\"') || '\"' = ?1 COLLATE NOCASE";
        Statement stored = file.prepare("SELECT sql FROM sqlite_master" + here);
        stored.bindText(1, table);
        stored.step();
        QByteArray definition = stored.text(0).toByteArray();
        stored.reset();
        definition.replace(definition.lastIndexOf(sql.declaration), sql.declaration.size(), sql.all());
        const Database::WritableSchema writable(file);
        Statement change = file.prepare("UPDATE sqlite_master SET sql = ?2" + here);
        change.bindText(1, table);
        change.bindText(2, definition);
        change.step();
    });
}

} // namespace

bool isSameName(const QString &a, const QString &b)
{
    // As SQLite compares names: upper and lower case of ASCII letters alone are equal. Generating a table compares each
    // of its columns with all the others, so nothing is copied here, and the ends come first: numbered names differ
    // there.
    const auto folded = [](QChar c) { return c >= u'A' && c <= u'Z' ? QChar(c.unicode() | 0x20) : c; };
    return a.size() == b.size() && std::equal(a.crbegin(), a.crend(), b.crbegin(),
                                              [&](QChar inA, QChar inB) { return folded(inA) == folded(inB); });
}

runtime::RuntimeError refusedProperty()
{
    return provider::error(provider::MultipleStep,
                           u"Multiple-step OLE DB operation generated errors. Check each OLE DB status "
                           u"value, if available. No work was done."_s);
}

std::vector<std::shared_ptr<TableDefinition>> storedTables(const std::shared_ptr<Database> &file)
{
    std::vector<std::shared_ptr<TableDefinition>> tables;
    Statement rows =
        file->prepare("SELECT name, type FROM sqlite_master WHERE type IN ('table', 'view') ORDER BY name");
    while (rows.step()) {
        auto table = std::make_shared<TableDefinition>();
        table->name = QString::fromUtf8(rows.text(0));
        if (rows.text(1) == "view")
            table->type = u"VIEW"_s;
        else if (isSystemName(table->name))
            table->type = u"SYSTEM TABLE"_s;
        table->isStored = true;
        table->catalog = file;
        tables.push_back(std::move(table));
    }
    return tables;
}

std::vector<std::shared_ptr<ColumnDefinition>> storedColumns(const std::shared_ptr<Database> &file,
                                                             const QString &table)
{
    std::vector<std::shared_ptr<ColumnDefinition>> columns;
    // Reading sqlite_master shows what other connections have changed, which the pragma alone would not.
    Statement rows =
        file->prepare("SELECT c.name, c.type, c.\"notnull\", c.dflt_value, "
                      "(c.pk AND t.sql LIKE '%AUTOINCREMENT%') OR EXISTS (SELECT 1 FROM sqlite_master AS n "
                      "WHERE n.type = 'trigger' AND n.name = t.name AND "
                      "instr(n.sql, 'NEW.\"' || replace(c.name, '\"', '\"\"') || '\" IS NULL')) "
                      "FROM sqlite_master AS t, pragma_table_info(t.name) AS c "
                      "WHERE t.name = ?1 AND t.type IN ('table', 'view') ORDER BY c.cid");
    rows.bindText(1, table.toUtf8());
    while (rows.step()) {
        auto column = std::make_shared<ColumnDefinition>();
        column->name = QString::fromUtf8(rows.text(0));
        column->type = int(columnTypeOfDeclaration(rows.text(1)));
        column->isRequired = rows.integer(2) != 0;
        if (rows.storage(3) != Statement::Storage::Null)
            column->defaultExpression = QString::fromUtf8(rows.text(3));
        column->isAutoIncrement = rows.integer(4) != 0;
        column->isStored = true;
        column->catalog = file;
        columns.push_back(std::move(column));
    }
    return columns;
}

void storeTable(Database &file, const TableDefinition &table)
{
    if (!canBeNamed(table.name) || isSystemName(table.name))
        throw invalidName(table.name);
    if (isTaken(file, table.name))
        throw provider::error(provider::DuplicateTable, u"Table '%1' already exists."_s.arg(table.name));
    if (table.columns.empty())
        throw provider::error(provider::SyntaxError, u"No field defined--cannot append TableDef or Index."_s);
    QByteArray sql = tableSql(file, table);
    bool isCounted = false;
    for (const auto &column : table.columns) {
        if (column->isAutoIncrement && std::exchange(isCounted, true))
            throw refusedProperty();
        if (column->isAutoIncrement)
            sql += "; " + counterSql(table, *column);
    }
    file.executeWhole(sql);
}

void storeColumn(Database &file, const TableDefinition &table, const ColumnDefinition &column)
{
    if (column.isAutoIncrement) // the rows that the table has would have to be numbered
        throw refusedProperty();
    const ColumnSql sql = columnSql(file, table, column);
    const QByteArray name = sql::quotedName(table.name);
    const bool hasRows = file.prepare("SELECT 1 FROM " + name + " LIMIT 1").step();
    if (hasRows && column.isRequired && sql.value.isEmpty())
        throw provider::requiredField(table.name + u'.' + column.name);
    if (hasRows && sql.hasComputedDefault())
        addColumnWithComputedDefault(file, name, column, sql);
    else
        file.execute("ALTER TABLE " + name + " ADD COLUMN " + sql.all());
}

} // namespace data
