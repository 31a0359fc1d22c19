#include "platform/data/engine/Database.h"

#include "platform/data/engine/Collation.h"
#include "platform/runtime/ProviderError.h"

#include <QFileInfo>

#include <new>
#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

namespace data {

namespace {

constexpr int busyTimeout = 2000; // milliseconds; another tool may hold the file for a moment

struct NumberedText
{
    int number;
    QString text;
};

QString cannotOpen(const QString &path)
{
    return u"The Microsoft Jet database engine cannot open the file '%1'.  It is already opened exclusively by another "
           u"user, or you need permission to view its data."_s.arg(path);
}

// The provider's answer to a result code of SQLite, as a statement that changes rows meets it.
NumberedText providerAnswer(int extendedCode, const QString &message, const QString &path)
{
    switch (extendedCode) {
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
        return {provider::Unspecified,
                u"The changes you requested to the table were not successful because they would create "
                u"duplicate values in the index, primary key, or relationship.  Change the data in the "
                u"field or fields that contain duplicate data, remove the index, or redefine the index to "
                u"permit duplicate entries and try again."_s};
    case SQLITE_CONSTRAINT_NOTNULL: {
        const runtime::RuntimeError error = provider::requiredField(message.section(u": "_s, 1));
        return {error.number(), error.description()};
    }
    default:
        break;
    }
    switch (extendedCode & 0xff) {
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        return {provider::Unspecified, u"Unrecognized database format '%1'."_s.arg(path)};
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return {provider::Unspecified, cannotOpen(path)};
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {provider::Unspecified, u"Could not use '%1'; file already in use."_s.arg(path)};
    case SQLITE_READONLY:
        return {provider::Unspecified, u"Operation must use an updateable query."_s};
    case SQLITE_FULL:
        return {runtime::DiskFull, runtime::errorText(runtime::DiskFull)};
    case SQLITE_NOMEM:
        return {runtime::OutOfMemory, runtime::errorText(runtime::OutOfMemory)};
    default:
        return {provider::Unspecified, message};
    }
}

// SQLite's C code lies between these functions and our own, so no exception may leave them. A collation has no way to
// report a failure: it stops the running statement, and Statement::step() raises error 7.
int compareForSqlite(void *handle, int lengthA, const void *a, int lengthB, const void *b)
{
    try {
        return compareTexts({static_cast<const char *>(a), lengthA}, {static_cast<const char *>(b), lengthB});
    } catch (const std::bad_alloc &) {
        comparisonFailed = true;
        sqlite3_interrupt(static_cast<sqlite3 *>(handle));
        return 0;
    }
}

// SQLite asks for a collation when a statement first names it, so that opening a file does not pay for it.
void provideCollation(void *, sqlite3 *handle, int, const char *name)
{
    if (qstricmp(name, "STORE") == 0)
        sqlite3_create_collation_v2(handle, name, SQLITE_UTF8, handle, compareForSqlite, nullptr);
}

// A number is compared by the text that a field of a text column shows for it. SQLite would write one with a fraction
// differently; that text is kept in `number`. Any other value is a view of SQLite's own text.
QByteArrayView textOf(sqlite3_value *value, QByteArray &number)
{
    if (sqlite3_value_type(value) == SQLITE_FLOAT)
        return number = QByteArray::number(sqlite3_value_double(value), 'g', 15);
    const auto *bytes = reinterpret_cast<const char *>(sqlite3_value_text(value));
    if (!bytes)
        throw std::bad_alloc();
    return {bytes, sqlite3_value_bytes(value)};
}

void likeForSqlite(sqlite3_context *context, int, sqlite3_value **arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL)
        return sqlite3_result_null(context);
    try {
        QByteArray patternNumber;
        QByteArray number;
        const QByteArrayView pattern = textOf(arguments[0], patternNumber);
        sqlite3_result_int(context, matchesLike(pattern, textOf(arguments[1], number)) ? 1 : 0);
    } catch (const std::bad_alloc &) {
        sqlite3_result_error_nomem(context);
    }
}

} // namespace

class Database::Blob
{
public:
    explicit Blob(sqlite3_blob *opened) : handle(opened) {}
    Blob(const Blob &) = delete;
    Blob &operator=(const Blob &) = delete;
    ~Blob() { sqlite3_blob_close(handle); }

    sqlite3_blob *const handle; // none where there are no bytes to open
};

StoreError::StoreError(int extendedCode, const QString &message, const QString &path)
    : RuntimeError(providerAnswer(extendedCode, message, path).number, providerAnswer(extendedCode, message, path).text,
                   provider::source()),
      m_extendedCode(extendedCode)
{
}

bool StoreError::isConstraint() const
{
    return (m_extendedCode & 0xff) == SQLITE_CONSTRAINT;
}

bool StoreError::isReadOnly() const
{
    return (m_extendedCode & 0xff) == SQLITE_READONLY;
}

bool StoreError::isUnreadable() const
{
    return (m_extendedCode & 0xff) == SQLITE_NOTADB || (m_extendedCode & 0xff) == SQLITE_CORRUPT;
}

bool StoreError::isInUse() const
{
    return (m_extendedCode & 0xff) == SQLITE_BUSY;
}

QByteArray Database::systemName(const QString &path)
{
    // A relative path that begins with "file:" would be read as a URI.
    return QFileInfo(path).absoluteFilePath().toUtf8();
}

void Database::openWith(const QString &path, int flags)
{
    sqlite3 *handle = nullptr;
    const QByteArray name = flags & SQLITE_OPEN_MEMORY ? path.toUtf8() : systemName(path);
    // Without locks round each call: a connection belongs to the one thread.
    const int code = sqlite3_open_v2(name.constData(), &handle, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    const auto opened = std::make_shared<Handle>(handle, path); // also of a failed open
    opened->check(code);
    sqlite3_extended_result_codes(handle, 1);
    sqlite3_busy_timeout(handle, busyTimeout);
    sqlite3_collation_needed(handle, nullptr, provideCollation);
    // A name in double quotes is a name: a misspelt column must not turn into a text.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    // What a message calls saved outlasts a loss of power right after it: the deletion of the journal is synced too.
    opened->check(sqlite3_exec(handle, "PRAGMA synchronous = EXTRA", nullptr, nullptr, nullptr));
    m_handle = opened;
    m_path = path;
    m_hasLike = false;
}

void Database::open(const QString &path)
{
    close();
    m_path = path;
    const QFileInfo file(path);
    if (!file.exists()) {
        if (!QFileInfo::exists(file.path()))
            throw provider::error(provider::Unspecified,
                                  u"'%1' is not a valid path.  Make sure that the path name is spelled "
                                  u"correctly and that you are connected to the server on which the file "
                                  u"resides."_s.arg(path));
        throw provider::error(provider::Unspecified, u"Could not find file '%1'."_s.arg(path));
    }
    if (file.isDir())
        throw provider::error(provider::Unspecified, cannotOpen(path));
    if (file.size() == 0) // SQLite would take it for a new data file
        throw StoreError(SQLITE_NOTADB, {}, path);
    try {
        openWith(path, SQLITE_OPEN_READWRITE);
        // Asking for any column reads the schema, which the first statement needs in any case.
        m_handle->check(sqlite3_table_column_metadata(m_handle->get(), "main", "sqlite_master", "name", nullptr,
                                                      nullptr, nullptr, nullptr, nullptr));
    } catch (const StoreError &) {
        m_handle.reset();
        throw;
    }
}

void Database::close()
{
    m_handle.reset();
}

bool Database::rest()
{
    return m_handle.use_count() == 1 && m_handle->rest();
}

void Database::create(const QString &path)
{
    m_path = path;
    if (QFileInfo::exists(path) || QFileInfo(path).isSymLink())
        throw provider::error(provider::DatabaseExists, u"Database already exists."_s);
    openWith(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_EXCLUSIVE);
}

void Database::createInMemory()
{
    openWith(u":memory:"_s, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_MEMORY);
}

void Database::execute(const QByteArray &sql)
{
    m_handle->check(sqlite3_exec(m_handle->get(), sql.constData(), nullptr, nullptr, nullptr));
}

Database::WritableSchema::~WritableSchema()
{
    sqlite3_exec(m_file.m_handle->get(), "PRAGMA writable_schema = RESET", nullptr, nullptr, nullptr);
}

void Database::executeWhole(const QByteArray &sql)
{
    change([&] { execute(sql); });
}

void Database::change(const std::function<void()> &steps)
{
    execute("BEGIN IMMEDIATE");
    try {
        steps();
        execute("COMMIT");
    } catch (...) {
        sqlite3_exec(m_handle->get(), "ROLLBACK", nullptr, nullptr, nullptr); // SQLite may have done it already
        throw;
    }
}

Statement Database::prepare(QByteArrayView sql, Reuse reuse) const
{
    return Statement(m_handle, sql, reuse);
}

qint64 Database::lastInsertRowId() const
{
    return sqlite3_last_insert_rowid(m_handle->get());
}

int Database::changedRows() const
{
    return sqlite3_changes(m_handle->get());
}

void Database::refreshSchema()
{
    // A step, unlike a preparation, looks whether the file's schema is still the one in memory.
    prepare("SELECT 1 FROM sqlite_master LIMIT 0").step();
}

std::optional<Database::ColumnFacts> Database::factsOf(const char *table, const char *column) const
{
    ColumnFacts facts;
    int isKey = 0;
    const int code = sqlite3_table_column_metadata(m_handle->get(), "main", table, column, &facts.declaredType, nullptr,
                                                   nullptr, &isKey, nullptr);
    if (code != SQLITE_ERROR) // which says that there is none
        m_handle->check(code);
    facts.isKey = isKey != 0;
    return code == SQLITE_OK ? std::optional(facts) : std::nullopt;
}

std::optional<QByteArray> Database::declaredType(const QByteArray &table, const QByteArray &column) const
{
    const auto facts = factsOf(table.constData(), column.constData());
    return facts ? std::optional(QByteArray(facts->declaredType)) : std::nullopt;
}

bool Database::hasTable(const QByteArray &table) const
{
    return factsOf(table.constData(), nullptr).has_value();
}

bool Database::isKey(const QByteArray &table, const QByteArray &column) const
{
    const auto facts = factsOf(table.constData(), column.constData());
    return facts && facts->isKey;
}

Database::Blob Database::openBlob(const QByteArray &table, const QByteArray &column, qint64 rowId) const
{
    sqlite3_blob *handle = nullptr;
    const int code =
        sqlite3_blob_open(m_handle->get(), "main", table.constData(), column.constData(), rowId, 0, &handle);
    if (code != SQLITE_ERROR) // a Null, a number, or a row that is gone: there are no bytes to open
        m_handle->check(code);
    return Blob(handle);
}

std::optional<QByteArray> Database::readBlob(const QByteArray &table, const QByteArray &column, qint64 rowId) const
{
    const Blob blob = openBlob(table, column, rowId);
    if (!blob.handle)
        return std::nullopt;
    QByteArray bytes(sqlite3_blob_bytes(blob.handle), Qt::Uninitialized);
    m_handle->check(sqlite3_blob_read(blob.handle, bytes.data(), int(bytes.size()), 0));
    return bytes;
}

std::optional<qint64> Database::blobSize(const QByteArray &table, const QByteArray &column, qint64 rowId) const
{
    const Blob blob = openBlob(table, column, rowId);
    return blob.handle ? std::optional<qint64>(sqlite3_blob_bytes(blob.handle)) : std::nullopt;
}

void Database::provideLike()
{
    if (m_hasLike)
        return;
    m_handle->check(sqlite3_create_function_v2(m_handle->get(), "store_like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                                               nullptr, likeForSqlite, nullptr, nullptr, nullptr));
    m_hasLike = true;
}

void Database::stopWhen(bool (*isAsked)())
{
    constexpr int instructions = 100'000; // between two questions: some milliseconds
    sqlite3_progress_handler(
        m_handle->get(), instructions, [](void *asked) -> int { return reinterpret_cast<bool (*)()>(asked)() ? 1 : 0; },
        reinterpret_cast<void *>(isAsked));
}

void Database::copyTo(Database &target, const std::function<void(int done, int all)> &told) const
{
    constexpr int pages = 256;     // in one step: a megabyte, during which others cannot write
    constexpr int mostWaits = 200; // in a row, for a writer
    constexpr int waitMilliseconds = 50;
    const auto finish = [](sqlite3_backup *backup) { sqlite3_backup_finish(backup); };
    const std::unique_ptr<sqlite3_backup, decltype(finish)> backup(
        sqlite3_backup_init(target.m_handle->get(), "main", m_handle->get(), "main"));
    if (!backup)
        target.m_handle->fail(sqlite3_errcode(target.m_handle->get()));
    int waits = 0;
    for (int code = SQLITE_OK; code != SQLITE_DONE;) {
        code = sqlite3_backup_step(backup.get(), pages);
        const bool isHeld = code == SQLITE_BUSY || code == SQLITE_LOCKED;
        if (isHeld && ++waits <= mostWaits)
            sqlite3_sleep(waitMilliseconds);
        else if (code != SQLITE_OK && code != SQLITE_DONE)
            throw StoreError(code, QString::fromUtf8(sqlite3_errstr(code)), isHeld ? m_path : target.m_path);
        else
            waits = 0;
        const int all = sqlite3_backup_pagecount(backup.get());
        told(all - sqlite3_backup_remaining(backup.get()), all);
    }
}

} // namespace data
