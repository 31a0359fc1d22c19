#include "platform/data/engine/Cursor.h"

#include "platform/runtime/ProviderError.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace data {

using runtime::Value;

namespace {

constexpr const char *errorSource = "ADODB.Recordset";

// Raises the error of a statement anew, as an Update of a recordset reports it.
[[noreturn]] void raiseUpdateError(const StoreError &error)
{
    if (error.isReadOnly())
        throw provider::error(provider::Unspecified, u"Cannot update.  Database or object is read-only."_s);
    if (error.isConstraint())
        throw provider::error(provider::MultipleStep, error.description());
    throw; // the error itself, which the caller is handling
}

Value convertedForField(ColumnType type, const Value &value)
{
    try {
        return convertedTo(type, value);
    } catch (const runtime::RuntimeError &) {
        throw provider::error(provider::MultipleStep,
                              u"Multiple-step operation generated errors. Check each status value."_s);
    }
}

} // namespace

Cursor::Cursor(const std::shared_ptr<Database> &database, std::shared_ptr<const sql::Translation> translation,
               Access access)
    : m_database(database), m_source(database, std::move(translation)), m_access(access)
{
}

void Cursor::close()
{
    m_database.reset();
    m_source.close();
    m_rows.reset();
    m_addedRow.reset();
    m_changes.clear();
    forgetBinary();
}

void Cursor::load()
{
    if (m_rows)
        return;
    m_rows = m_source.readAll();
    m_row = 0;
}

bool Cursor::isEof()
{
    if (m_editMode == Edit::Add || m_addedRowId)
        return false;
    load();
    return m_row >= m_rows->rowCount();
}

qint32 Cursor::recordCount()
{
    return m_rows ? qint32(m_rows->rowCount()) - m_deletedCount : m_source.count();
}

Cursor::Place Cursor::current()
{
    if (m_addedRowId) {
        if (!m_addedRow) {
            m_addedRow.emplace(columnCount());
            m_source.readRow(*m_addedRowId, *m_addedRow);
        }
        if (m_addedRow->rowCount() > 0)
            return {&*m_addedRow, 0};
        throw provider::objectError(provider::NoCurrentRecord, errorSource);
    }
    load();
    const bool deleted = size_t(m_row) < m_deleted.size() && m_deleted[size_t(m_row)];
    if (m_row >= m_rows->rowCount() || deleted)
        throw provider::objectError(provider::NoCurrentRecord, errorSource);
    return {&*m_rows, m_row};
}

qint64 Cursor::currentRowId()
{
    if (m_addedRowId)
        return *m_addedRowId;
    const Place place = current();
    return place.rows->rowId(place.row);
}

void Cursor::requireUpdatable()
{
    if (!m_source.isUpdatable() || m_access == Access::ReadOnly)
        throw provider::objectError(provider::NotUpdatable, errorSource);
}

// Moving to another record saves a pending change.
void Cursor::finishPending()
{
    if (m_editMode != Edit::None)
        update();
    endSeries();
    forgetBinary();
}

int Cursor::columnOf(QStringView name)
{
    const int known = columnCount();
    const int column = m_source.columnOf(name);
    if (columnCount() != known) {
        m_addedRow.reset();
        if (m_editMode != Edit::None)
            m_changes.resize(size_t(columnCount()));
    }
    return column;
}

void Cursor::moveFirst()
{
    finishPending();
    load();
    m_addedRowId.reset();
    m_row = 0;
    while (size_t(m_row) < m_deleted.size() && m_deleted[size_t(m_row)])
        ++m_row;
    if (m_row >= m_rows->rowCount())
        throw provider::objectError(provider::NoCurrentRecord, errorSource);
}

void Cursor::moveNext()
{
    finishPending();
    load();
    if (m_addedRowId) { // the new row sits at the end
        m_addedRowId.reset();
        m_row = m_rows->rowCount();
        return;
    }
    if (m_row >= m_rows->rowCount())
        throw provider::objectError(provider::NoCurrentRecord, errorSource);
    do {
        ++m_row;
    } while (size_t(m_row) < m_deleted.size() && m_deleted[size_t(m_row)]);
}

void Cursor::moveLast()
{
    finishPending();
    load();
    m_row = m_rows->rowCount() - 1;
    while (m_row >= 0 && size_t(m_row) < m_deleted.size() && m_deleted[size_t(m_row)])
        --m_row;
    if (m_addedRowId) { // the statement's order may have put the row anywhere
        goTo(*m_addedRowId);
        m_addedRowId.reset();
    }
    if (m_row < 0) {
        m_row = 0;
        throw provider::objectError(provider::NoCurrentRecord, errorSource);
    }
}

void Cursor::addNew()
{
    requireUpdatable();
    finishPending();
    m_changes.assign(size_t(columnCount()), std::nullopt);
    m_editMode = Edit::Add;
}

// Makes the row current; false when it is not among the rows that were read.
bool Cursor::goTo(qint64 rowId)
{
    for (qsizetype row = m_rows->rowCount() - 1; row >= 0; --row) {
        if (m_rows->rowId(row) == rowId) {
            m_row = row;
            return true;
        }
    }
    return false;
}

void Cursor::takeAdded(const RowSource::Added &added)
{
    if (!m_rows) {
        m_addedRowId = added.rowId;
        m_addedRow.reset();
    } else if ((added.isNew || !goTo(added.rowId)) && m_source.readRow(added.rowId, *m_rows)) {
        m_row = m_rows->rowCount() - 1;
    }
}

void Cursor::update()
{
    if (m_editMode == Edit::None)
        return;
    try {
        if (m_editMode == Edit::Add) {
            const RowSource::Added added = m_source.insertRow(m_changes);
            m_editMode = Edit::None;
            takeAdded(added);
        } else {
            const qint64 rowId = m_source.updateRow(currentRowId(), m_changes);
            m_editMode = Edit::None;
            if (m_addedRowId) {
                m_addedRowId = rowId;
                m_addedRow.reset();
            } else {
                m_source.readRow(rowId, *m_rows, m_row);
            }
        }
    } catch (const StoreError &error) {
        raiseUpdateError(error);
    }
    m_changes.clear();
    endSeries();
    forgetBinary();
}

void Cursor::cancelUpdate()
{
    m_editMode = Edit::None;
    m_changes.clear();
    endSeries();
}

void Cursor::deleteRow()
{
    requireUpdatable();
    cancelUpdate();
    const qint64 rowId = currentRowId();
    load();
    if (m_addedRowId && goTo(rowId))
        m_addedRowId.reset();
    try {
        m_source.deleteRow(rowId);
    } catch (const StoreError &error) {
        raiseUpdateError(error);
    }
    if (m_addedRowId) { // the row does not meet the statement's condition and was not read
        m_addedRowId.reset();
        m_row = m_rows->rowCount();
        return;
    }
    m_deleted.resize(size_t(m_rows->rowCount()));
    m_deleted[size_t(m_row)] = true;
    ++m_deletedCount;
}

Value Cursor::value(int column)
{
    touch(column);
    if (m_editMode != Edit::None && m_changes[size_t(column)])
        return *m_changes[size_t(column)];
    if (m_editMode == Edit::Add)
        return {};
    const Place place = current();
    const SourceColumn &known = m_source.columns()[size_t(column)];
    return known.isApart ? binary(column) : place.rows->value(place.row, column, known.type);
}

void Cursor::setValue(int column, const Value &value)
{
    requireUpdatable();
    Value converted = convertedForField(m_source.columns()[size_t(column)].type, value);
    if (m_editMode == Edit::None) {
        current(); // there has to be a record to edit
        m_changes.assign(size_t(columnCount()), std::nullopt);
        m_editMode = Edit::InProgress;
    }
    endSeries();
    m_changes[size_t(column)] = std::move(converted);
}

qint64 Cursor::actualSize(int column)
{
    touch(column);
    if (m_editMode == Edit::None && m_source.columns()[size_t(column)].isApart)
        return m_source.binarySize(currentRowId(), column).value_or(0);
    const Value content = value(column);
    if (content.is<QByteArray>())
        return content.get<QByteArray>().size();
    return content.is<QString>() ? content.get<QString>().size() * 2 : 0;
}

// The bytes of the current row's field, fetched once.
const Value &Cursor::binary(int column)
{
    if (m_binaryColumn != column) {
        forgetBinary();
        if (std::optional<QByteArray> bytes = m_source.readBinary(currentRowId(), column))
            m_binary = Value(*std::move(bytes));
        m_binaryColumn = column;
    }
    return m_binary;
}

void Cursor::forgetBinary()
{
    m_binaryColumn = -1;
    m_binary = {};
}

void Cursor::endSeries()
{
    m_seriesColumn = -1;
    m_seriesPosition = 0;
}

// Reading or writing another field ends a series of chunks.
void Cursor::touch(int column)
{
    if (m_seriesColumn != column)
        endSeries();
}

void Cursor::appendChunk(int column, const QByteArray &bytes)
{
    if (m_source.columns()[size_t(column)].type != ColumnType::Binary)
        throw provider::objectError(provider::NotAllowedInContext, "ADODB.Field");
    const std::optional<Value> &pending = m_changes[size_t(column)];
    if (m_seriesColumn == column && m_editMode != Edit::None && pending && pending->is<QByteArray>()) {
        QByteArray whole = std::move(*m_changes[size_t(column)]).get<QByteArray>();
        whole += bytes;
        m_changes[size_t(column)] = Value(std::move(whole));
        return;
    }
    setValue(column, Value(bytes));
    m_seriesColumn = column;
}

Value Cursor::getChunk(int column, qint64 bytes)
{
    if (m_source.columns()[size_t(column)].type != ColumnType::Binary)
        throw provider::objectError(provider::NotAllowedInContext, "ADODB.Field");
    touch(column);
    m_seriesColumn = column;
    const Value content = value(column);
    if (content.isNull())
        return {};
    const QByteArray &whole = content.get<QByteArray>();
    const qsizetype left = whole.size() - m_seriesPosition;
    if (left <= 0)
        return {};
    const qsizetype taken = qsizetype(std::min<qint64>(left, bytes));
    const QByteArray chunk = taken == whole.size() ? whole : whole.sliced(m_seriesPosition, taken);
    m_seriesPosition += taken;
    if (m_seriesPosition >= whole.size() && m_editMode == Edit::None) // all were delivered: no need to keep them
        forgetBinary();
    return Value(chunk);
}

} // namespace data
