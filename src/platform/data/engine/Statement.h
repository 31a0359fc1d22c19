// One prepared statement of SQLite: binds parameters (numbered from 1), steps through rows, reads columns (from 0).
//
// Move-only. It is given back to the handle when it goes, where the next one of the same text may take it up. The bytes
// that text() and content() return stay valid until the next step; texts are UTF-8.
#pragma once

#include "platform/data/engine/Handle.h"
#include "platform/runtime/Value.h"

#include <QByteArrayView>
#include <QString>

#include <memory>

namespace data {

class Statement
{
public:
    Statement() = default;
    Statement(std::shared_ptr<Handle> handle, QByteArrayView sql, Reuse reuse);
    Statement(Statement &&) noexcept = default;
    Statement &operator=(Statement &&) noexcept = default;
    ~Statement() = default;

    bool isPrepared() const { return m_statement != nullptr; }
    void finalize() { m_statement = {}; }

    // Binds the value in the form in which the file stores it. Bytes are not copied: the value must outlive the step.
    void bind(int parameter, const runtime::Value &value);
    void bind(int parameter, qint64 number);
    void bindText(int parameter, QByteArrayView utf8);
    // Fails with a StoreError. True while there is a row. The first step may find that the table has changed since the
    // statement was prepared: then it may have other columns.
    bool step();
    void reset();

    int columnCount() const { return m_columnCount; }
    QByteArrayView columnName(int column) const;
    // Of a table's column; empty for an expression.
    QByteArrayView declaredType(int column) const;
    QByteArrayView originColumn(int column) const;

    enum class Storage { Integer = 1, Real = 2, Text = 3, Blob = 4, Null = 5 };
    Storage storage(int column) const;
    qint64 integer(int column) const;
    QByteArrayView text(int column) const;

    // The value of a column. Error 7 when there is no memory for a text.
    struct Content
    {
        union {
            qint64 integer;
            double real;
            const char *bytes;
        };
        quint32 size = 0; // of the bytes of a text or a blob
        Storage storage = Storage::Null;

        bool hasBytes() const { return storage == Storage::Text || storage == Storage::Blob; }
        QByteArrayView view() const { return {bytes, qsizetype(size)}; }
    };
    Content content(int column) const;

private:
    struct GiveBack
    {
        void operator()(sqlite3_stmt *statement) const noexcept;
        std::shared_ptr<Handle> handle;
        Handle::Prepared prepared;
    };
    Handle &handle() const { return *m_statement.get_deleter().handle; }
    void check(int code) const;
    void bindAmount(int parameter, runtime::Currency amount);

    std::unique_ptr<sqlite3_stmt, GiveBack> m_statement;
    int m_columnCount = 0;
};

} // namespace data
