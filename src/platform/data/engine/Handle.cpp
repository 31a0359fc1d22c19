#include "platform/data/engine/Handle.h"

#include "platform/data/engine/Database.h"

#include <algorithm>
#include <sqlite3.h>
#include <utility>

namespace data {

namespace {

constexpr size_t mostStatements = 64;
constexpr int mostStatementBytes = 1'000'000;
constexpr int mostDefinitionBytes = 3'000'000;

} // namespace

Handle::Handle(sqlite3 *opened, QString path) : m_handle(opened), m_path(std::move(path))
{
    m_waiting.reserve(mostStatements + 1);
}

Handle::~Handle()
{
    forgetStatements();
    sqlite3_close_v2(m_handle);
}

void Handle::fail(int code)
{
    m_hasFailed = true;
    const int extended = m_handle && sqlite3_errcode(m_handle) != SQLITE_OK ? sqlite3_extended_errcode(m_handle) : code;
    throw StoreError(extended, QString::fromUtf8(m_handle ? sqlite3_errmsg(m_handle) : sqlite3_errstr(code)), m_path);
}

void Handle::check(int code)
{
    if (code != SQLITE_OK)
        fail(code);
}

// Changes with each write to the file: at once for a write of this handle, and for one of another handle when this one
// has taken a lock since.
unsigned Handle::version() const
{
    unsigned version = 0;
    sqlite3_file_control(m_handle, "main", SQLITE_FCNTL_DATA_VERSION, &version);
    return version;
}

Handle::Prepared Handle::prepare(QByteArrayView sql, Reuse reuse)
{
    const bool isKept = reuse == Reuse::Allowed && sqlite3_get_autocommit(m_handle) != 0;
    Prepared prepared{.version = isKept ? version() : 0};
    if (!m_waiting.empty() && m_waiting.back().version != prepared.version && isKept)
        forgetStatements();
    const auto waiting = std::find_if(m_waiting.rbegin(), m_waiting.rend(), [&](const Prepared &known) {
        return sql == QByteArrayView(sqlite3_sql(known.statement));
    });
    if (isKept && waiting != m_waiting.rend()) {
        prepared = *waiting;
        m_waitingBytes -= prepared.bytes;
        m_waiting.erase(std::prev(waiting.base()));
    } else {
        check(sqlite3_prepare_v2(m_handle, sql.data(), int(sql.size()), &prepared.statement, nullptr));
    }
    return prepared;
}

void Handle::giveBack(Prepared prepared) noexcept
{
    sqlite3_reset(prepared.statement); // before the version is read: it may complete a change
    if (m_hasFailed || prepared.version == 0 || sqlite3_get_autocommit(m_handle) == 0 ||
        prepared.version != version()) {
        sqlite3_finalize(prepared.statement);
        return;
    }
    sqlite3_clear_bindings(prepared.statement);
    if (prepared.bytes == 0)
        prepared.bytes = sqlite3_stmt_status(prepared.statement, SQLITE_STMTSTATUS_MEMUSED, 0);
    if (!m_waiting.empty() && m_waiting.back().version != prepared.version)
        forgetStatements();
    m_waiting.push_back(prepared);
    m_waitingBytes += prepared.bytes;
    while (m_waiting.size() > mostStatements || m_waitingBytes > mostStatementBytes) {
        m_waitingBytes -= m_waiting.front().bytes;
        sqlite3_finalize(m_waiting.front().statement);
        m_waiting.erase(m_waiting.begin());
    }
}

void Handle::forgetStatements() noexcept
{
    for (const Prepared &prepared : m_waiting)
        sqlite3_finalize(prepared.statement);
    m_waiting.clear();
    m_waitingBytes = 0;
}

bool Handle::rest()
{
    if (m_hasFailed || sqlite3_get_autocommit(m_handle) == 0)
        return false;
    int frames = 0; // of the write-ahead log; -1 without one
    sqlite3_wal_checkpoint_v2(m_handle, "main", SQLITE_CHECKPOINT_PASSIVE, &frames, nullptr);
    int definitionBytes = 0;
    int most = 0;
    sqlite3_db_status(m_handle, SQLITE_DBSTATUS_SCHEMA_USED, &definitionBytes, &most, 0);
    if (frames >= 0 || definitionBytes > mostDefinitionBytes)
        return false;
    sqlite3_db_release_memory(m_handle);        // the pages of the file that it remembers
    sqlite3_set_last_insert_rowid(m_handle, 0); // as that of a new connection
    return true;
}

} // namespace data
