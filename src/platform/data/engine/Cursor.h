// The inside of an open recordset: its rows, the current one among them, and the change that is pending.
#pragma once

#include "platform/data/engine/RowSource.h"

#include <optional>

namespace data {

class Cursor
{
public:
    enum class Access { ReadOnly, ReadWrite };
    enum class Edit { None, InProgress, Add };

    Cursor(const std::shared_ptr<Database> &database, std::shared_ptr<const sql::Translation> translation,
           Access access);

    bool isConnected() const { return !m_database.expired(); }
    // Releases the rows and the statement; from then on it is not connected.
    void close();
    bool isEof();
    qint32 recordCount();
    void moveFirst();
    void moveNext();
    void moveLast();

    void addNew();
    void update();
    void cancelUpdate();
    void deleteRow();
    Edit editMode() const { return m_editMode; }

    int columnOf(QStringView name);
    int columnCount() { return int(m_source.columns().size()); }
    const QString &columnName(int column) { return m_source.columns()[size_t(column)].name; }
    runtime::Value value(int column);
    void setValue(int column, const runtime::Value &value);
    qint64 actualSize(int column);
    void appendChunk(int column, const QByteArray &bytes);
    runtime::Value getChunk(int column, qint64 bytes);

private:
    void load();
    void finishPending();
    void requireUpdatable();
    // Where the current record is kept; error 3021 without one.
    struct Place
    {
        const RowStore *rows;
        qsizetype row;
    };
    Place current();
    qint64 currentRowId();
    const runtime::Value &binary(int column);
    void forgetBinary();
    void endSeries();
    void touch(int column);
    void takeAdded(const RowSource::Added &added);
    bool goTo(qint64 rowId);

    std::weak_ptr<Database> m_database;
    RowSource m_source;
    Access m_access;

    std::optional<RowStore> m_rows; // empty until they are first asked for
    qsizetype m_row = 0;
    std::vector<bool> m_deleted; // by row; empty until a row is deleted
    qint32 m_deletedCount = 0;

    // A row that was added before the rows were read: the current record until the next move.
    std::optional<qint64> m_addedRowId;
    std::optional<RowStore> m_addedRow;

    Edit m_editMode = Edit::None;
    RowSource::Changes m_changes;

    int m_seriesColumn = -1; // of AppendChunk or GetChunk
    qsizetype m_seriesPosition = 0;
    int m_binaryColumn = -1; // whose bytes of the current row are in m_binary
    runtime::Value m_binary;
};

} // namespace data
