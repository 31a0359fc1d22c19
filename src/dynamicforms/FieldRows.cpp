#include "dynamicforms/FieldRows.h"

#include "platform/runtime/RuntimeError.h"

#include <limits>
#include <utility>

int FieldRows::checked(int position) const
{
    if (position < 0 || position >= int(m_rows.size()))
        throw runtime::RuntimeError(runtime::SubscriptOutOfRange);
    return position;
}

int FieldRows::upperBound() const
{
    return checked(int(m_rows.size()) - 1);
}

FieldRow &FieldRows::operator[](int position)
{
    return m_rows[size_t(checked(position))];
}

const FieldRow &FieldRows::operator[](int position) const
{
    return m_rows[size_t(checked(position))];
}

void FieldRows::resize()
{
    m_rows.resize(size_t(RowCounter) + 1);
}

void FieldRows::countUp()
{
    if (RowCounter == std::numeric_limits<qint16>::max())
        throw runtime::RuntimeError(runtime::Overflow);
    ++RowCounter;
}

void FieldRows::store(FieldRow row)
{
    resize();
    (*this)[RowCounter - 1] = std::move(row);
    countUp();
}

FieldRow fieldRowOf(data::Recordset &fields)
{
    const auto text = [&fields](QStringView column) { return runtime::toText(fields[column].Value()); };
    FieldRow row;
    row.RowTabNam = text(u"TabNam");
    row.RowTabDescription = text(u"TabDescription");
    row.RowFieldName = text(u"FieldName");
    row.RowFieldDescription = text(u"FieldDescription");
    row.RowFieldLeft = text(u"fieldLeft");
    row.RowFieldTop = text(u"fieldTop");
    row.RowLabelLeft = text(u"labelLeft");
    row.RowLabelTop = text(u"labelTop");
    row.RowFieldWidth = text(u"fieldWidth");
    return row;
}
