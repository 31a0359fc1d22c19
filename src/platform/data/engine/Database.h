// One open SQLite file. Its statements are in SQLite's own SQL, not in the dialect; its Handle is shared with them.
//
// A failing call raises StoreError; open and create also raise the provider's errors for paths. A failed open leaves
// nothing open.
#pragma once

#include "platform/data/engine/Handle.h"
#include "platform/data/engine/Statement.h"
#include "platform/runtime/RuntimeError.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace data {

// A result code of SQLite as the provider's error. It keeps the extended code, which tells more.
class StoreError : public runtime::RuntimeError
{
public:
    StoreError(int extendedCode, const QString &message, const QString &path);
    int extendedCode() const { return m_extendedCode; }
    bool isConstraint() const;
    bool isReadOnly() const;
    // The file is damaged or of another kind.
    bool isUnreadable() const;
    // Another program holds the file.
    bool isInUse() const;

private:
    int m_extendedCode;
};

class Database
{
public:
    Database() = default;
    Database(Database &&) noexcept = default;
    Database &operator=(Database &&) noexcept = default;
    ~Database() = default;

    // Opens a file that exists, for reading and writing, or for reading alone where it may not be written, and reads
    // its schema, so that a file of another kind is refused here.
    void open(const QString &path);
    // Makes a new file and opens it; refuses a path at which something stands.
    void create(const QString &path);
    // Makes a file that lives in memory until it is closed.
    void createInMemory();
    void close();
    bool isOpen() const { return m_handle != nullptr; }
    // Readies the open file to wait for another connection, as Handle::rest() says; false also while a statement
    // stands.
    bool rest();
    const QString &path() const { return m_path; }
    // The name by which the file of a path is opened: absolute, in UTF-8.
    static QByteArray systemName(const QString &path);

    // Runs one statement or several, separated by semicolons.
    void execute(const QByteArray &sql);
    // The same in one transaction: after an error the file is as it was.
    void executeWhole(const QByteArray &sql);
    // The same for any steps.
    void change(const std::function<void()> &steps);
    // While it stands, statements may change sqlite_master. Afterwards the file's definitions are read anew.
    class WritableSchema
    {
    public:
        explicit WritableSchema(Database &file) : m_file(file) { m_file.execute("PRAGMA writable_schema = ON"); }
        WritableSchema(const WritableSchema &) = delete;
        WritableSchema &operator=(const WritableSchema &) = delete;
        ~WritableSchema();

    private:
        Database &m_file;
    };
    Statement prepare(QByteArrayView sql, Reuse reuse = Reuse::Allowed) const;

    qint64 lastInsertRowId() const;
    // How many rows the last INSERT, UPDATE or DELETE changed.
    int changedRows() const;
    // Notices tables and columns that another connection has added or changed.
    void refreshSchema();
    // The declared type of a column; empty when the table or the column does not exist.
    std::optional<QByteArray> declaredType(const QByteArray &table, const QByteArray &column) const;
    bool hasTable(const QByteArray &table) const;
    bool isKey(const QByteArray &table, const QByteArray &column) const;
    // The bytes of one binary value, read straight into the result, and how many there are without reading them.
    // Nothing for a Null, a number, and a row that is gone.
    std::optional<QByteArray> readBlob(const QByteArray &table, const QByteArray &column, qint64 rowId) const;
    std::optional<qint64> blobSize(const QByteArray &table, const QByteArray &column, qint64 rowId) const;
    // Provides the SQL function store_like(PATTERN, VALUE) of Collation.h.
    void provideLike();
    // Lets statements end with an error (SQLITE_INTERRUPT) once the function, which is asked every now and then, says
    // so.
    void stopWhen(bool (*isAsked)());
    // Writes the whole file, as it is at one moment, into another that is open and empty. Between a few pages and the
    // next other connections may write; the copy begins again then. `told` hears how many pages of how many are done,
    // and stops the copy by an exception.
    void copyTo(Database &target, const std::function<void(int done, int all)> &told) const;

private:
    void openWith(const QString &path, int flags);
    struct ColumnFacts
    {
        const char *declaredType = nullptr;
        bool isKey = false;
    };
    // Without a column: of the table as such. Nothing when the table or the column does not exist.
    std::optional<ColumnFacts> factsOf(const char *table, const char *column) const;
    class Blob;
    Blob openBlob(const QByteArray &table, const QByteArray &column, qint64 rowId) const;

    std::shared_ptr<Handle> m_handle; // shared with its statements
    QString m_path;
    bool m_hasLike = false;
};

} // namespace data
