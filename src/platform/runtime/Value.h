// A value as the data store, the fields of a window and the run-time's functions pass it: Null, Boolean, whole numbers
// of 16 and 32 bits, floating-point number, currency, date, text or bytes.
//
// Null is a value of its own and never the empty text. Nothing converts by itself: Conversion.h says how each type
// becomes another and what it raises.
#pragma once

#include "platform/runtime/Currency.h"
#include "platform/runtime/Date.h"

#include <QByteArray>
#include <QString>

#include <utility>
#include <variant>

namespace runtime {

class Value
{
public:
    // In the order of the alternatives below.
    enum class Type { Null, Boolean, Integer, Long, Double, Currency, Date, Text, Binary };

    Value() = default;
    explicit Value(bool flag) : m_data(flag) {}
    explicit Value(qint16 number) : m_data(number) {}
    explicit Value(qint32 number) : m_data(number) {}
    explicit Value(double number) : m_data(number) {}
    explicit Value(runtime::Currency amount) : m_data(amount) {}
    explicit Value(runtime::Date date) : m_data(date) {}
    explicit Value(QString text) : m_data(std::move(text)) {}
    explicit Value(QByteArray bytes) : m_data(std::move(bytes)) {}
    explicit Value(const char *) = delete;

    Type type() const { return Type(m_data.index()); }
    bool isNull() const { return m_data.index() == 0; }

    // The alternative itself; the type must be that one.
    template <class T> const T &get() const & { return std::get<T>(m_data); }
    template <class T> T get() && { return std::get<T>(std::move(m_data)); }
    template <class T> bool is() const { return std::holds_alternative<T>(m_data); }

    friend bool operator==(const Value &, const Value &) = default;

private:
    std::variant<std::monostate, bool, qint16, qint32, double, runtime::Currency, runtime::Date, QString, QByteArray>
        m_data;
};

} // namespace runtime
