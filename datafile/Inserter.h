// Adds rows by one prepared statement: insert(1, "Adams", nullptr). A null pointer is Null; "" is the empty text.
#pragma once

#include "platform/data/engine/Database.h"
#include "platform/runtime/Value.h"

#include <concepts>
#include <cstddef>

namespace datafile {

class Inserter
{
public:
    Inserter(const data::Database &file, QByteArrayView sql) : m_statement(file.prepare(sql)) {}

    template <class... Values> void operator()(const Values &...values)
    {
        int parameter = 0;
        (bind(++parameter, values), ...);
        m_statement.step();
        m_statement.reset();
    }

private:
    void bind(int parameter, std::nullptr_t) { m_statement.bind(parameter, runtime::Value()); }
    void bind(int parameter, std::integral auto number) { m_statement.bind(parameter, qint64(number)); }
    void bind(int parameter, const runtime::Value &value) { m_statement.bind(parameter, value); }
    void bind(int parameter, const QByteArray &utf8) { m_statement.bindText(parameter, utf8); }
    void bind(int parameter, const char *utf8)
    {
        if (utf8)
            m_statement.bindText(parameter, utf8);
        else
            bind(parameter, nullptr);
    }

    data::Statement m_statement;
};

} // namespace datafile
