#include "datafile/jet/TableWriter.h"

#include "datafile/jet/ValueBytes.h"
#include "platform/data/engine/Definition.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/RuntimeError.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace jet {

namespace {

using data::ColumnType;

[[noreturn]] void failAt(const QString &place, const QString &text)
{
    throw runtime::RuntimeError(runtime::DeviceError, place + u": "_s + text);
}

QString placeOf(const TableHead &table, quint32 row)
{
    return u"table [%1], row %2"_s.arg(table.name).arg(row);
}

QString placeOf(const TableHead &table, quint32 row, const QString &column)
{
    return u"%1, column [%2]"_s.arg(placeOf(table, row), column);
}

bool isSame(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

bool hasColumn(const TableHead &table, const QString &name)
{
    return std::any_of(table.columns.begin(), table.columns.end(),
                       [&](const ColumnHead &column) { return isSame(column.name, name); });
}

// The type that holds every value of the kind exactly.
ColumnType typeFor(ColumnKind kind)
{
    switch (kind) {
    case ColumnKind::Boolean:
        return ColumnType::Boolean;
    case ColumnKind::Byte:
    case ColumnKind::Integer:
        return ColumnType::Integer;
    case ColumnKind::Long:
        return ColumnType::Long;
    case ColumnKind::Currency:
        return ColumnType::Currency;
    case ColumnKind::Float:
    case ColumnKind::Double:
        return ColumnType::Double;
    case ColumnKind::Date:
        return ColumnType::Date;
    case ColumnKind::Binary:
    case ColumnKind::Ole:
        return ColumnType::Binary;
    case ColumnKind::Text:
    case ColumnKind::Guid:
    case ColumnKind::Numeric: // of up to 28 digits, more than a number has here
        return ColumnType::Text;
    case ColumnKind::Memo:
        return ColumnType::Memo;
    }
    throw runtime::RuntimeError(runtime::DeviceError,
                                u"is of the type %1, which is none of the format"_s.arg(int(kind)));
}

data::ColumnDefinition definitionOf(const TableHead &table, const ColumnHead &column)
{
    data::ColumnDefinition definition;
    definition.name = column.name;
    try {
        definition.type = int(typeFor(column.kind));
    } catch (const runtime::RuntimeError &error) {
        failAt(u"table [%1], column [%2]"_s.arg(table.name, column.name), error.description());
    }
    definition.isRequired = false;
    return definition;
}

// The tables that the designer makes have a date of this name, which tells when the row was added.
bool isDateOfPage(const TableHead &table, const ColumnHead &column)
{
    return column.kind == ColumnKind::Date && isSame(column.name, QString(table.name + u"Date"_s).remove(u' ')) &&
           hasColumn(table, u"PersonalInformationId"_s);
}

// The value as the column holds it. A number that would change by it is refused.
runtime::Value fitted(ColumnType type, ColumnKind kind, runtime::Value value)
{
    using runtime::Value;
    if (kind == ColumnKind::Numeric && value.is<QString>() && !data::isText(type)) {
        // As written in no region, which the conversion of a text would ask.
        const auto amount =
            type == ColumnType::Currency ? runtime::Currency::fromPlainText(value.get<QString>()) : std::nullopt;
        value = amount ? Value(*amount) : Value(value.get<QString>().toDouble());
    }
    const bool isReal = value.is<double>() || value.is<runtime::Currency>();
    Value converted = data::convertedTo(type, value);
    const bool isChanged = isReal && (type == ColumnType::Integer || type == ColumnType::Long) &&
                           runtime::toDouble(converted) != runtime::toDouble(value);
    if (isChanged)
        throw runtime::RuntimeError(runtime::TypeMismatch);
    return converted;
}

QByteArray insertStatement(const QString &table, const QStringList &columns, const QStringList &emptyColumns)
{
    QStringList names;
    for (const QString &column : columns + emptyColumns)
        names << datafile::quoted(column);
    const QStringList values = QStringList(columns.size(), u"?"_s) + QStringList(emptyColumns.size(), u"NULL"_s);
    return u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(datafile::quoted(table), names.join(u", "_s), values.join(u", "_s))
        .toUtf8();
}

const datafile::StoredColumn *findColumn(const datafile::StoredTable &table, const QString &name)
{
    const auto found = std::find_if(table.columns.begin(), table.columns.end(),
                                    [&](const datafile::StoredColumn &column) { return isSame(column.name, name); });
    return found == table.columns.end() ? nullptr : &*found;
}

} // namespace

TableWriter::TableWriter(data::Database &file) : m_file(file), m_known(datafile::tablesOf(file)) {}

void TableWriter::write(const TableHead &table, FrameReader &rows, const std::function<void()> &told)
{
    const Target target = targetOf(table);
    data::Statement insert = m_file.prepare(target.insert);
    while (const auto cells = rows.nextRow()) {
        told();
        const QList<runtime::Value> values = valuesOf(table, target, *cells, rows.row());
        insertRow(insert, values, placeOf(table, rows.row()));
    }
    keepCounter(table, target);
    data::Statement count = m_file.prepare(u"SELECT count(*) FROM %1"_s.arg(datafile::quoted(target.table)).toUtf8());
    count.step();
    if (count.integer(0) != rows.row())
        failAt(u"table [%1]"_s.arg(table.name),
               u"%1 rows were read and %2 stored"_s.arg(rows.row()).arg(count.integer(0)));
}

TableWriter::Target TableWriter::targetOf(const TableHead &table)
{
    const auto known = std::find_if(m_known.begin(), m_known.end(), [&](const datafile::StoredTable &stored) {
        return isSame(stored.name, table.name);
    });
    if (known == m_known.end())
        return newTarget(table);
    Target target = knownTarget(table, *known);
    m_known.erase(known);
    return target;
}

TableWriter::Target TableWriter::knownTarget(const TableHead &table, const datafile::StoredTable &known)
{
    Target target;
    target.table = known.name;
    data::TableDefinition stored;
    stored.name = known.name;
    QStringList columns;
    for (const ColumnHead &column : table.columns) {
        if (const datafile::StoredColumn *own = findColumn(known, column.name)) {
            if (m_file.isKey(known.name.toUtf8(), own->name.toUtf8())) {
                target.counter = columns.size();
                target.isKey = true;
            }
            target.types << own->type;
            columns << own->name;
            continue;
        }
        const data::ColumnDefinition added = definitionOf(table, column);
        data::storeColumn(m_file, stored, added);
        target.types << ColumnType(added.type);
        columns << column.name;
        m_notes << u"column [%1].[%2] is none of the program's and was copied as it is"_s.arg(known.name, column.name);
    }
    QStringList emptyColumns; // the default of a date is the present moment, which would be a false one
    for (const datafile::StoredColumn &own : known.columns) {
        if (hasColumn(table, own.name))
            continue;
        if (own.type == ColumnType::Date)
            emptyColumns << own.name;
        m_notes << u"column [%1].[%2] is missing in the old file; its rows have %3 there"_s.arg(
            known.name, own.name, own.type == ColumnType::Date ? u"nothing"_s : u"what a new row has"_s);
    }
    m_file.execute(
        u"DELETE FROM %1; DELETE FROM sqlite_sequence WHERE name = '%2'"_s.arg(datafile::quoted(known.name), known.name)
            .toUtf8());
    target.insert = insertStatement(known.name, columns, emptyColumns);
    return target;
}

TableWriter::Target TableWriter::newTarget(const TableHead &table)
{
    Target target;
    target.table = table.name;
    data::TableDefinition added;
    added.name = table.name;
    QStringList columns;
    for (const ColumnHead &column : table.columns) {
        auto definition = std::make_shared<data::ColumnDefinition>(definitionOf(table, column));
        if (column.isCounter && column.kind == ColumnKind::Long && target.counter < 0) {
            definition->isAutoIncrement = true;
            target.counter = columns.size();
        } else if (isDateOfPage(table, column)) {
            definition->defaultExpression = u"Date$()"_s;
        }
        target.types << ColumnType(definition->type);
        columns << column.name;
        added.columns.push_back(std::move(definition));
    }
    m_file.execute("COMMIT"); // a definition is a transaction of its own
    try {
        data::storeTable(m_file, added);
    } catch (const runtime::RuntimeError &error) {
        failAt(u"table [%1]"_s.arg(table.name), error.description());
    }
    m_file.execute("BEGIN");
    target.insert = insertStatement(table.name, columns, {});
    return target;
}

QList<runtime::Value> TableWriter::valuesOf(const TableHead &table, const Target &target, const QList<CellBytes> &cells,
                                            quint32 row)
{
    QList<runtime::Value> values;
    values.reserve(cells.size());
    for (qsizetype i = 0; i < cells.size(); ++i) {
        const ColumnHead &column = table.columns.at(i);
        runtime::Value value;
        try {
            value = valueOf(column, cells.at(i));
        } catch (const runtime::RuntimeError &error) {
            failAt(placeOf(table, row, column.name), error.description());
        }
        if (value.is<QString>() && !value.get<QString>().isValidUtf16())
            noteHalf(placeOf(table, row, column.name));
        if (value.isNull() && i == target.counter)
            failAt(placeOf(table, row, column.name), u"its number is missing"_s);
        try {
            values << fitted(target.types.at(i), column.kind, std::move(value));
        } catch (const runtime::RuntimeError &) {
            failAt(placeOf(table, row, column.name),
                   u"its value is none for a column that the program declares otherwise"_s);
        }
    }
    return values;
}

void TableWriter::insertRow(data::Statement &insert, const QList<runtime::Value> &values, const QString &place) const
{
    for (qsizetype i = 0; i < values.size(); ++i)
        insert.bind(int(i) + 1, values.at(i));
    try {
        insert.step();
    } catch (const data::StoreError &error) {
        if (!error.isConstraint())
            throw;
        failAt(place, error.description());
    }
    insert.reset();
    if (m_file.changedRows() != 1)
        failAt(place, u"another row has its number"_s);
}

// A number that was given out is not given out again, though its row may be gone.
void TableWriter::keepCounter(const TableHead &table, const Target &target)
{
    if (target.counter < 0 || table.lastNumber <= 0 || !table.columns.at(target.counter).isCounter)
        return;
    data::Statement change = m_file.prepare("UPDATE sqlite_sequence SET seq = max(seq, ?2) WHERE name = ?1");
    data::Statement add = m_file.prepare("INSERT INTO sqlite_sequence (name, seq) VALUES (?1, ?2)");
    for (data::Statement *statement : {&change, &add}) {
        statement->bindText(1, target.table.toUtf8());
        statement->bind(2, qint64(table.lastNumber));
        statement->step();
        statement->reset();
        if (m_file.changedRows() > 0)
            return;
    }
}

void TableWriter::noteHalf(const QString &place)
{
    if (m_halves++ == 0)
        m_firstHalf = place;
}

QStringList TableWriter::notes() const
{
    QStringList notes = m_notes;
    if (m_halves > 0)
        notes << u"%1: half of a character became U+FFFD; %2 values in all have one"_s.arg(m_firstHalf).arg(m_halves);
    for (const datafile::StoredTable &table : m_known)
        notes << u"table [%1] is missing in the old file; it is that of a new data file"_s.arg(table.name);
    return notes;
}

} // namespace jet
