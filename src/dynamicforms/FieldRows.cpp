#include "dynamicforms/FieldRows.h"

#include "platform/runtime/RuntimeError.h"

#include <limits>

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

FieldRow &FieldRows::next()
{
    resize();
    return (*this)[RowCounter - 1];
}

void takeNames(FieldRow &row, data::Recordset &fields)
{
    row.RowTabNam = runtime::toText(fields[u"TabNam"].Value());
    row.RowTabDescription = runtime::toText(fields[u"TabDescription"].Value());
    row.RowFieldName = runtime::toText(fields[u"FieldName"].Value());
    row.RowFieldDescription = runtime::toText(fields[u"FieldDescription"].Value());
}

void takePlaces(FieldRow &row, data::Recordset &fields)
{
    row.RowFieldLeft = runtime::toText(fields[u"fieldLeft"].Value());
    row.RowFieldTop = runtime::toText(fields[u"fieldTop"].Value());
    row.RowLabelLeft = runtime::toText(fields[u"labelLeft"].Value());
    row.RowLabelTop = runtime::toText(fields[u"labelTop"].Value());
    row.RowFieldWidth = runtime::toText(fields[u"fieldWidth"].Value());
}
