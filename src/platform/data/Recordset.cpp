#include "platform/data/Recordset.h"

#include "platform/data/engine/Cursor.h"
#include "platform/data/engine/Database.h"
#include "platform/runtime/ProviderError.h"

namespace data {

Recordset::Recordset() = default;
Recordset::Recordset(std::shared_ptr<Database> rows, const QString &source)
    : m_ownRows(std::move(rows)),
      m_cursor(std::make_shared<Cursor>(m_ownRows, sql::cachedTranslation(source), Cursor::Access::ReadWrite))
{
}
Recordset::Recordset(Recordset &&) noexcept = default;
Recordset &Recordset::operator=(Recordset &&other) noexcept
{
    closeCursor();
    m_cursor = std::move(other.m_cursor);
    m_ownRows = std::move(other.m_ownRows);
    return *this;
}
Recordset::~Recordset()
{
    closeCursor();
}

Cursor &Recordset::cursor()
{
    if (!m_cursor || !m_cursor->isConnected())
        throw provider::objectError(provider::ObjectClosed, "ADODB.Recordset");
    return *m_cursor;
}

// A field may hold the cursor longer than the recordset does, but not its rows.
void Recordset::closeCursor()
{
    if (m_cursor)
        m_cursor->close();
    m_cursor.reset();
    m_ownRows.reset();
}

void Recordset::Open(const QString &source, Connection &connection, CursorTypeEnum, LockTypeEnum lockType)
{
    if (State() == adStateOpen)
        throw provider::objectError(provider::ObjectOpen, "ADODB.Recordset");
    if (connection.State() == adStateClosed)
        throw provider::objectError(provider::NoConnection, "ADODB.Recordset");
    closeCursor();
    auto translation = sql::cachedTranslation(source);
    if (translation->kind == sql::StatementKind::Select)
        m_cursor =
            std::make_shared<Cursor>(connection.m_database, std::move(translation),
                                     lockType == adLockReadOnly ? Cursor::Access::ReadOnly : Cursor::Access::ReadWrite);
    else
        runAction(*connection.m_database, *translation);
}

void Recordset::Close()
{
    if (cursor().editMode() != Cursor::Edit::None)
        throw provider::objectError(provider::NotAllowedInContext, "ADODB.Recordset");
    closeCursor();
}

ObjectStateEnum Recordset::State() const
{
    return m_cursor && m_cursor->isConnected() ? adStateOpen : adStateClosed;
}

bool Recordset::Eof()
{
    return cursor().isEof();
}

qint32 Recordset::RecordCount()
{
    return cursor().recordCount();
}

void Recordset::MoveFirst()
{
    cursor().moveFirst();
}

void Recordset::MoveNext()
{
    cursor().moveNext();
}

void Recordset::MoveLast()
{
    cursor().moveLast();
}

void Recordset::AddNew()
{
    cursor().addNew();
}

void Recordset::Update()
{
    cursor().update();
}

void Recordset::CancelUpdate()
{
    cursor().cancelUpdate();
}

void Recordset::Delete()
{
    cursor().deleteRow();
}

Field Recordset::Fields(QStringView name)
{
    const int column = cursor().columnOf(name);
    if (column < 0)
        throw provider::objectError(provider::NoSuchItem, "ADODB.Fields");
    return {m_cursor, column};
}

Field Recordset::Fields(int ordinal)
{
    if (ordinal < 0 || ordinal >= cursor().columnCount())
        throw provider::objectError(provider::NoSuchItem, "ADODB.Fields");
    return {m_cursor, ordinal};
}

Cursor &Field::cursor() const
{
    if (!m_cursor->isConnected())
        throw provider::objectError(provider::ObjectClosed, "ADODB.Field");
    return *m_cursor;
}

QString Field::Name() const
{
    return cursor().columnName(m_column);
}

runtime::Value Field::Value() const
{
    return cursor().value(m_column);
}

void Field::setValue(const runtime::Value &value)
{
    cursor().setValue(m_column, value);
}

qint64 Field::ActualSize() const
{
    return cursor().actualSize(m_column);
}

void Field::AppendChunk(const QByteArray &bytes)
{
    cursor().appendChunk(m_column, bytes);
}

runtime::Value Field::GetChunk(qint64 bytes)
{
    return cursor().getChunk(m_column, bytes);
}

} // namespace data
