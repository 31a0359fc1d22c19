#include "platform/data/engine/ColumnType.h"

#include "platform/runtime/Conversion.h"
#include "platform/runtime/RuntimeError.h"

#include <QByteArray>

#include <array>

namespace data {

namespace {

struct Declaration
{
    const char *begins;
    ColumnType type;
};

// The first entry with which a declaration begins decides.
constexpr std::array declarations{
    Declaration{"SMALLINT", ColumnType::Integer}, Declaration{"INT", ColumnType::Long},
    Declaration{"LONGTEXT", ColumnType::Memo},    Declaration{"LONGBLOB", ColumnType::Binary},
    Declaration{"LONG", ColumnType::Long},        Declaration{"BLOB", ColumnType::Binary},
    Declaration{"DOUBLE", ColumnType::Double},    Declaration{"REAL", ColumnType::Double},
    Declaration{"FLOAT", ColumnType::Double},     Declaration{"CURRENCY", ColumnType::Currency},
    Declaration{"DATE", ColumnType::Date},        Declaration{"TIME", ColumnType::Date},
    Declaration{"BOOL", ColumnType::Boolean},     Declaration{"MEMO", ColumnType::Memo},
    Declaration{"CLOB", ColumnType::Memo},        Declaration{"TEXT", ColumnType::Text},
    Declaration{"VARCHAR", ColumnType::Text},     Declaration{"CHAR", ColumnType::Text},
};

} // namespace

ColumnType columnTypeOfDeclaration(QByteArrayView declaration)
{
    for (const Declaration &entry : declarations) {
        const QByteArrayView begins(entry.begins);
        if (declaration.size() >= begins.size() &&
            qstrnicmp(declaration.data(), begins.data(), size_t(begins.size())) == 0)
            return entry.type;
    }
    return ColumnType::Unknown;
}

std::optional<runtime::Currency> storedAmount(QByteArrayView text)
{
    const QByteArrayView digits = text.endsWith(exactAmountMark) ? text.chopped(exactAmountMark.size()) : text;
    return runtime::Currency::fromPlainText(QString::fromUtf8(digits));
}

runtime::Value convertedTo(ColumnType type, const runtime::Value &value)
{
    using runtime::Value;
    if (value.isNull())
        return value;
    switch (type) {
    case ColumnType::Unknown:
        return value;
    case ColumnType::Integer:
        return Value(runtime::toInteger(value));
    case ColumnType::Long:
        return Value(runtime::toLong(value));
    case ColumnType::Double:
        return Value(runtime::toDouble(value));
    case ColumnType::Currency:
        return Value(runtime::toCurrency(value));
    case ColumnType::Date:
        return Value(runtime::toDate(value));
    case ColumnType::Boolean:
        return Value(runtime::toBoolean(value));
    case ColumnType::Text:
    case ColumnType::Memo:
        return Value(runtime::toText(value));
    case ColumnType::Binary:
        if (value.is<QByteArray>())
            return value;
        break;
    }
    throw runtime::RuntimeError(runtime::TypeMismatch);
}

} // namespace data
