#include "platform/data/engine/Statement.h"

#include "platform/data/engine/Collation.h"
#include "platform/data/engine/ColumnType.h"
#include "platform/data/engine/Database.h"

#include <cmath>
#include <new>
#include <sqlite3.h>
#include <utility>

namespace data {

namespace {

QByteArrayView viewOf(const char *text)
{
    return text ? QByteArrayView(text) : QByteArrayView();
}

} // namespace

void Statement::GiveBack::operator()(sqlite3_stmt *) const noexcept
{
    handle->giveBack(prepared);
}

Statement::Statement(std::shared_ptr<Handle> handle, QByteArrayView sql, Reuse reuse)
{
    const Handle::Prepared prepared = handle->prepare(sql, reuse);
    m_statement = {prepared.statement, GiveBack{std::move(handle), prepared}};
    m_columnCount = sqlite3_column_count(prepared.statement);
}

void Statement::check(int code) const
{
    if (code != SQLITE_OK && code != SQLITE_ROW && code != SQLITE_DONE)
        handle().fail(code);
}

void Statement::bind(int parameter, qint64 number)
{
    check(sqlite3_bind_int64(m_statement.get(), parameter, number));
}

void Statement::bindText(int parameter, QByteArrayView utf8)
{
    // SQLite takes a null pointer for Null, and an empty text may have one.
    check(sqlite3_bind_text64(m_statement.get(), parameter, utf8.isEmpty() ? "" : utf8.data(),
                              sqlite3_uint64(utf8.size()), SQLITE_TRANSIENT, SQLITE_UTF8));
}

void Statement::bind(int parameter, const runtime::Value &value)
{
    using Type = runtime::Value::Type;
    switch (value.type()) {
    case Type::Null:
        check(sqlite3_bind_null(m_statement.get(), parameter));
        break;
    case Type::Boolean:
        bind(parameter, qint64(value.get<bool>() ? -1 : 0));
        break;
    case Type::Integer:
        bind(parameter, qint64(value.get<qint16>()));
        break;
    case Type::Long:
        bind(parameter, qint64(value.get<qint32>()));
        break;
    case Type::Double:
        check(sqlite3_bind_double(m_statement.get(), parameter, value.get<double>()));
        break;
    case Type::Currency:
        bindAmount(parameter, value.get<runtime::Currency>());
        break;
    case Type::Date:
        bindText(parameter, value.get<runtime::Date>().toIsoText().toLatin1());
        break;
    case Type::Text:
        bindText(parameter, value.get<QString>().toUtf8());
        break;
    case Type::Binary: {
        const QByteArray &bytes = value.get<QByteArray>();
        // SQLite takes a null pointer for Null, and an empty array may have one.
        check(sqlite3_bind_blob64(m_statement.get(), parameter, bytes.isEmpty() ? "" : bytes.constData(),
                                  sqlite3_uint64(bytes.size()), SQLITE_STATIC));
        break;
    }
    }
}

void Statement::bindAmount(int parameter, runtime::Currency amount)
{
    const double number = amount.toDouble();
    constexpr double largest = 9e14; // less than the largest amount, so that its neighbours are in range
    const bool isExact = std::abs(number) < largest && runtime::Currency::fromDouble(number) == amount;
    if (isExact)
        check(sqlite3_bind_double(m_statement.get(), parameter, number));
    else
        bindText(parameter, amount.toPlainText().toLatin1() + exactAmountMark.toByteArray());
}

bool Statement::step()
{
    const int code = sqlite3_step(m_statement.get());
    if (std::exchange(comparisonFailed, false)) {
        handle().setFailed();
        throw StoreError(SQLITE_NOMEM, {}, handle().path());
    }
    check(code);
    m_columnCount = sqlite3_column_count(m_statement.get());
    return code == SQLITE_ROW;
}

void Statement::reset()
{
    sqlite3_reset(m_statement.get());
}

QByteArrayView Statement::columnName(int column) const
{
    return viewOf(sqlite3_column_name(m_statement.get(), column));
}

QByteArrayView Statement::declaredType(int column) const
{
    return viewOf(sqlite3_column_decltype(m_statement.get(), column));
}

QByteArrayView Statement::originColumn(int column) const
{
    return viewOf(sqlite3_column_origin_name(m_statement.get(), column));
}

Statement::Storage Statement::storage(int column) const
{
    return Storage(sqlite3_column_type(m_statement.get(), column));
}

qint64 Statement::integer(int column) const
{
    return sqlite3_column_int64(m_statement.get(), column);
}

QByteArrayView Statement::text(int column) const
{
    const auto *bytes = reinterpret_cast<const char *>(sqlite3_column_text(m_statement.get(), column));
    return {bytes, sqlite3_column_bytes(m_statement.get(), column)};
}

// Each sqlite3_column_...() call looks the column up anew; sqlite3_value_...() reads from the value that was looked up.
// The value is unprotected: only the thread that steps the statement may read it.
Statement::Content Statement::content(int column) const
{
    sqlite3_value *value = sqlite3_column_value(m_statement.get(), column);
    Content content;
    content.storage = Storage(sqlite3_value_type(value));
    switch (content.storage) {
    case Storage::Integer:
        content.integer = sqlite3_value_int64(value);
        break;
    case Storage::Real:
        content.real = sqlite3_value_double(value);
        break;
    case Storage::Text:
        content.bytes = reinterpret_cast<const char *>(sqlite3_value_text(value));
        content.size = quint32(sqlite3_value_bytes(value));
        if (!content.bytes) {
            handle().setFailed();
            throw std::bad_alloc();
        }
        break;
    case Storage::Blob: // a null pointer when it is empty
        content.bytes = static_cast<const char *>(sqlite3_value_blob(value));
        content.size = quint32(sqlite3_value_bytes(value));
        break;
    case Storage::Null:
        break;
    }
    return content;
}

} // namespace data
