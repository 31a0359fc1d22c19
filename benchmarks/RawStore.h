// The C API of SQLite as the floors use it: nothing around it but that handles are closed and a failure ends the
// program.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdio>
#include <cstdlib>
#include <sqlite3.h>

namespace raw {

inline void check(bool good, sqlite3 *handle)
{
    if (good)
        return;
    std::fprintf(stderr, "The floor failed: %s\n", sqlite3_errmsg(handle));
    std::abort();
}

class File
{
public:
    explicit File(const QByteArray &path)
    {
        check(sqlite3_open_v2(path.constData(), &m_handle, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK, m_handle);
    }
    explicit File(const QString &path) : File(path.toUtf8()) {}
    File(const File &) = delete;
    File &operator=(const File &) = delete;
    ~File() { sqlite3_close(m_handle); }

    sqlite3 *handle() const { return m_handle; }
    void execute(const char *sql) const
    {
        check(sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr) == SQLITE_OK, m_handle);
    }

private:
    sqlite3 *m_handle = nullptr;
};

class Statement
{
public:
    Statement(const File &file, const QByteArray &sql)
    {
        check(sqlite3_prepare_v2(file.handle(), sql.constData(), int(sql.size()), &m_statement, nullptr) == SQLITE_OK,
              file.handle());
    }
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;
    ~Statement() { sqlite3_finalize(m_statement); }

    sqlite3_stmt *get() const { return m_statement; }
    bool step() const
    {
        const int code = sqlite3_step(m_statement);
        check(code == SQLITE_ROW || code == SQLITE_DONE, sqlite3_db_handle(m_statement));
        return code == SQLITE_ROW;
    }
    QString text(int column) const
    {
        const auto *utf8 = reinterpret_cast<const char *>(sqlite3_column_text(m_statement, column));
        return QString::fromUtf8(utf8, sqlite3_column_bytes(m_statement, column));
    }

private:
    sqlite3_stmt *m_statement = nullptr;
};

} // namespace raw
