#include "platform/data/engine/RowSource.h"

#include "platform/data/engine/StatementError.h"
#include "platform/data/sql/SqlText.h"
#include "platform/runtime/ProviderError.h"

#include <algorithm>
#include <utility>

namespace data {

RowSource::RowSource(std::weak_ptr<Database> file, std::shared_ptr<const sql::Translation> translation)
    : m_database(std::move(file)), m_translation(std::move(translation))
{
    m_sql = sqlFor(database(), *m_translation);
    prepared();
    checkComparisons(database(), *m_translation);
}

Database &RowSource::database() const
{
    const std::shared_ptr<Database> database = m_database.lock();
    if (!database)
        throw provider::objectError(provider::ObjectClosed, "ADODB.Recordset");
    return *database; // stays open meanwhile: its connection holds it, and there is one thread
}

Statement &RowSource::prepared()
{
    if (!m_statement.isPrepared())
        m_statement = prepareChecked(database(), *m_translation, m_sql);
    return m_statement;
}

void RowSource::describeColumns()
{
    if (!m_described)
        describe(prepared());
    m_described = true;
}

void RowSource::describe(const Statement &statement)
{
    m_columns.clear();
    m_hasBinary = false;
    const int count = statement.columnCount() - (m_translation->carriesRowId ? 1 : 0);
    m_columns.resize(size_t(count));
    for (int index = 0; index < count; ++index) {
        SourceColumn &column = m_columns[size_t(index)];
        column.name = QString::fromUtf8(statement.columnName(index));
        column.origin = QString::fromUtf8(statement.originColumn(index));
        column.type = columnTypeOfDeclaration(statement.declaredType(index));
        for (const sql::ComputedColumn &computed : m_translation->computed) {
            const QString &table = computed.source.table.isEmpty() ? m_translation->table : computed.source.table;
            if (!column.origin.isEmpty() || computed.name.compare(column.name, Qt::CaseInsensitive) != 0)
                continue;
            if (const auto declared = database().declaredType(table.toUtf8(), computed.source.column.toUtf8()))
                column.type = columnTypeOfDeclaration(*declared);
        }
    }
    m_isUpdatable =
        m_translation->carriesRowId &&
        std::none_of(m_columns.cbegin(), m_columns.cend(), [](const SourceColumn &c) { return c.origin.isEmpty(); });
    for (SourceColumn &column : m_columns) {
        column.isApart = m_isUpdatable && column.type == ColumnType::Binary;
        m_hasBinary = m_hasBinary || column.isApart;
    }
}

bool RowSource::isUpdatable()
{
    describeColumns();
    return m_isUpdatable;
}

int RowSource::searchedColumnOf(QStringView name)
{
    describeColumns();
    const int column = describedColumnOf(name);
    if (column >= 0 || !m_statement.isPrepared())
        return column;
    // Another connection may have added it since this one last looked.
    m_statement.finalize();
    database().refreshSchema();
    describe(prepared());
    return describedColumnOf(name);
}

int RowSource::describedColumnOf(QStringView name)
{
    const int count = int(m_columns.size());
    const auto find = [this](int from, int to, const auto &matches) {
        while (from < to && !matches(m_columns[size_t(from)].name))
            ++from;
        return from < to ? from : -1;
    };
    const auto isEqual = [name](QStringView known) { return known == name; };
    const auto isAlike = [name](const QString &known) { return known.compare(name, Qt::CaseInsensitive) == 0; };
    const int guess = std::min(m_nextGuess, count);
    int column = find(guess, count, isEqual);
    if (column < 0)
        column = find(0, guess, isEqual);
    if (column < 0) // last, since most handlers write the name as the file has it
        column = find(0, count, isAlike);
    if (column >= 0)
        m_nextGuess = column + 1;
    return column;
}

QByteArray RowSource::listOfOrigins() const
{
    QByteArray list;
    for (const SourceColumn &column : m_columns)
        list += column.isApart ? "NULL," : sql::quotedName(column.origin) + ',';
    return list + "_rowid_";
}

QByteArray RowSource::readingSql()
{
    QByteArray sql = m_sql;
    return sql.replace(m_translation->listBegin, m_translation->listLength, listOfOrigins());
}

RowStore RowSource::readAll()
{
    describeColumns();
    Statement statement =
        m_hasBinary ? prepareChecked(database(), *m_translation, readingSql()) : std::exchange(prepared(), Statement());
    m_statement.finalize();
    const int preparedColumns = statement.columnCount();
    bool isRow = statement.step();
    if (statement.columnCount() != preparedColumns) { // the table was changed since Open
        describe(statement);
        if (m_hasBinary) {
            statement = prepareChecked(database(), *m_translation, readingSql());
            isRow = statement.step();
        }
    }
    RowStore rows(int(m_columns.size()));
    for (; isRow; isRow = statement.step())
        rows.append(statement, m_translation->carriesRowId);
    return rows;
}

qint32 RowSource::count()
{
    describeColumns();
    // To sort rows SQLite copies them: binary values must not be among them.
    const QByteArray rows = m_hasBinary ? readingSql() : m_sql;
    Statement statement = prepareChecked(database(), *m_translation, "SELECT COUNT(*) FROM (" + rows + ')');
    statement.step();
    return qint32(statement.integer(0));
}

bool RowSource::readRow(qint64 rowId, RowStore &rows, std::optional<qsizetype> inPlaceOf)
{
    describeColumns();
    Statement statement = database().prepare("SELECT " + listOfOrigins() + " FROM " +
                                             sql::quotedName(m_translation->table) + " WHERE _rowid_=?1");
    statement.bind(1, rowId);
    if (!statement.step())
        return false;
    if (inPlaceOf)
        rows.replace(*inPlaceOf, statement, true);
    else
        rows.append(statement, true);
    return true;
}

std::optional<QByteArray> RowSource::readBinary(qint64 rowId, int column)
{
    return database().readBlob(m_translation->table.toUtf8(), m_columns[size_t(column)].origin.toUtf8(), rowId);
}

std::optional<qint64> RowSource::binarySize(qint64 rowId, int column)
{
    return database().blobSize(m_translation->table.toUtf8(), m_columns[size_t(column)].origin.toUtf8(), rowId);
}

void RowSource::requireChange() const
{
    if (database().changedRows() == 0)
        throw provider::objectError(provider::NoCurrentRecord, "ADODB.Recordset");
}

RowSource::Added RowSource::insertRow(const Changes &changes)
{
    QByteArray names;
    QByteArray places;
    for (size_t column = 0; column < changes.size(); ++column) {
        if (!changes[column])
            continue;
        names += sql::quotedName(m_columns[column].origin) + ',';
        places += '?' + QByteArray::number(qint64(column) + 1) + ',';
    }
    names.chop(1);
    places.chop(1);
    const QByteArray into = "INSERT INTO " + sql::quotedName(m_translation->table);
    Statement statement = database().prepare(names.isEmpty() ? into + " DEFAULT VALUES"
                                                             : into + " (" + names + ") VALUES (" + places + ')');
    for (size_t column = 0; column < changes.size(); ++column) {
        if (changes[column])
            statement.bind(int(column) + 1, *changes[column]);
    }
    statement.step();
    if (database().changedRows() > 0)
        return {database().lastInsertRowId(), true};
    for (size_t column = 0; column < changes.size(); ++column) {
        if (changes[column] && changes[column]->is<qint32>() &&
            database().isKey(m_translation->table.toUtf8(), m_columns[column].origin.toUtf8()))
            return {changes[column]->get<qint32>(), false};
    }
    return {database().lastInsertRowId(), false};
}

qint64 RowSource::updateRow(qint64 rowId, const Changes &changes)
{
    QByteArray settings;
    for (size_t column = 0; column < changes.size(); ++column) {
        if (changes[column])
            settings += sql::quotedName(m_columns[column].origin) + "=?" + QByteArray::number(qint64(column) + 1) + ',';
    }
    if (settings.isEmpty())
        return rowId;
    settings.chop(1);
    const int last = int(changes.size()) + 1;
    Statement statement = database().prepare("UPDATE " + sql::quotedName(m_translation->table) + " SET " + settings +
                                             " WHERE _rowid_=?" + QByteArray::number(last) + " RETURNING _rowid_");
    for (size_t column = 0; column < changes.size(); ++column) {
        if (changes[column])
            statement.bind(int(column) + 1, *changes[column]);
    }
    statement.bind(last, rowId);
    const bool found = statement.step();
    const qint64 rowIdNow = found ? statement.integer(0) : rowId;
    while (statement.step()) // to its end, which completes the change
        ;
    requireChange();
    return rowIdNow;
}

void RowSource::deleteRow(qint64 rowId)
{
    Statement statement =
        database().prepare("DELETE FROM " + sql::quotedName(m_translation->table) + " WHERE _rowid_=?1");
    statement.bind(1, rowId);
    statement.step();
    requireChange();
}

} // namespace data
