// The rows of a statement, read when they are first asked for and kept; through it rows are added, changed and deleted.
//
// It is static: it shows the rows as they were when they were first read, and its own changes. Where the rows can
// be updated, a binary field is read from the file only when its Value or a chunk is asked for, so that opening a table
// in order to append costs the same whatever the table holds. A recordset that a DataFactory made holds its rows in
// memory. Errors: 3704 when it or its connection is closed, 3705 and 3709 when it is opened while it is open or over a
// closed connection, 3021 without a current record, 3251 for a change of rows that were opened for reading, that come
// from several tables or groups or have computed columns, 3265 for an unknown field. A failing Update keeps what was
// pending.
#pragma once

#include "platform/data/Connection.h"
#include "platform/runtime/Value.h"

#include <QStringView>

#include <memory>
#include <utility>

namespace data {

class Cursor;
class DataFactory;

// A field of the recordset's current row. It follows the recordset's moves until that is closed; error 3704 afterwards,
// also when the recordset has been opened again.
class Field
{
public:
    QString Name() const;
    runtime::Value Value() const;
    // Starts an edit of the row unless one is pending. Error -2147217887 for a value that the column refuses.
    void setValue(const runtime::Value &value);
    void setValue(const QString &text) { setValue(runtime::Value(text)); }
    // Bytes of a binary field (known without reading it), two for each character of a text.
    qint64 ActualSize() const;

    // The first call of a series replaces the value, the further ones append; touching another field ends the series.
    void AppendChunk(const QByteArray &bytes);
    // At most that many bytes from where the last call stopped; Null at the end and for an empty field.
    runtime::Value GetChunk(qint64 bytes);

private:
    friend class Recordset;
    Field(std::shared_ptr<Cursor> cursor, int column) : m_cursor(std::move(cursor)), m_column(column) {}
    Cursor &cursor() const;

    std::shared_ptr<Cursor> m_cursor;
    int m_column;
};

class Recordset
{
public:
    Recordset();
    Recordset(Recordset &&) noexcept;
    Recordset &operator=(Recordset &&other) noexcept;
    ~Recordset();

    // A statement that changes rows is run and leaves the recordset closed.
    void Open(const QString &source, Connection &connection, CursorTypeEnum cursorType = adOpenStatic,
              LockTypeEnum lockType = adLockOptimistic);
    // Error 3219 while a change is pending.
    void Close();
    void Cancel() {}
    ObjectStateEnum State() const;

    // True behind the last row. (EOF itself is a macro of the C library.)
    bool Eof();
    qint32 RecordCount();
    void MoveFirst();
    void MoveNext();
    void MoveLast();

    void AddNew();
    void Update();
    // This store has no batches: the same as Update.
    void UpdateBatch() { Update(); }
    void CancelUpdate();
    void Delete();

    // By name without regard to case, or by place from 0.
    Field Fields(QStringView name);
    Field Fields(int ordinal);
    Field operator[](QStringView name) { return Fields(name); }

private:
    friend class DataFactory;
    Recordset(std::shared_ptr<Database> rows, const QString &source);

    Cursor &cursor();
    void closeCursor();

    std::shared_ptr<Database> m_ownRows; // of a recordset without a connection
    std::shared_ptr<Cursor> m_cursor;    // shared with the fields that were asked for
};

} // namespace data
