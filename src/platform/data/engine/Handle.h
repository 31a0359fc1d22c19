// The sqlite3 handle of an open file, and the prepared statements that wait in it for their next use.
//
// The Database and its statements own it together: it is closed after the last of them. A statement that was given back
// serves the next one of the same text, as long as nothing was written to the file since it was prepared; at most
// 64 wait, with 1 MB together. Within a transaction none is kept, since its changes do not count as written yet.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace data {

// Whether a statement may wait for its next use. One with a secret in its text may not.
enum class Reuse { Allowed, Never };

class Handle
{
public:
    // Takes over what sqlite3_open_v2() gave, also of a failed open. Errors name the file by `path`.
    Handle(sqlite3 *opened, QString path);
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;
    ~Handle();

    sqlite3 *get() const { return m_handle; }
    const QString &path() const { return m_path; }

    // Raises the StoreError of the call that has just returned `code`.
    [[noreturn]] void fail(int code);
    void check(int code);
    // A call has failed in a way that the caller reports itself or passes over.
    void setFailed() { m_hasFailed = true; }

    struct Prepared
    {
        sqlite3_stmt *statement = nullptr;
        unsigned version = 0; // of the file, when it was prepared; 0 for one that will not be kept
        int bytes = 0;        // that it takes; 0 until it has waited
    };
    Prepared prepare(QByteArrayView sql, Reuse reuse);
    void giveBack(Prepared prepared) noexcept;

    // Readies the handle to wait, open, for another connection: from then on its memory is that of the file's
    // definitions and of the waiting statements, 4 MB at most. False when it is not fit for that: a call has failed, a
    // transaction is open, the definitions take more, or the file has a write-ahead log, which the last connection has
    // to clear away.
    bool rest();

private:
    unsigned version() const;
    void forgetStatements() noexcept;

    sqlite3 *m_handle;
    QString m_path;
    bool m_hasFailed = false;
    std::vector<Prepared> m_waiting; // the one used last at the end; all of one version
    int m_waitingBytes = 0;
};

} // namespace data
