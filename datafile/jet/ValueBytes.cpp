#include "datafile/jet/ValueBytes.h"

#include "platform/runtime/RuntimeError.h"

#include <QUuid>
#include <QtEndian>

#include <array>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace jet {

namespace {

using runtime::Value;

[[noreturn]] void refuse(const QString &text)
{
    throw runtime::RuntimeError(runtime::DeviceError, text);
}

template <class Number> Number numberOf(QByteArrayView bytes)
{
    if (bytes.size() != qsizetype(sizeof(Number)))
        refuse(u"its value has %1 bytes where %2 are needed"_s.arg(bytes.size()).arg(sizeof(Number)));
    return qFromLittleEndian<Number>(bytes.data());
}

QString plainText(QByteArrayView bytes)
{
    if (bytes.size() % 2 != 0)
        refuse(u"its text ends in the middle of a character"_s);
    QString text(bytes.size() / 2, Qt::Uninitialized);
    qFromLittleEndian<char16_t>(bytes.data(), text.size(), text.data());
    return text;
}

Value realOf(double number)
{
    if (!std::isfinite(number))
        refuse(u"its value is no number"_s);
    return Value(number);
}

Value dateOf(double serial)
{
    try {
        return Value(runtime::Date::fromSerial(serial));
    } catch (const runtime::RuntimeError &) {
        refuse(u"its date is outside the years 100 to 9999"_s);
    }
}

Value guidOf(QByteArrayView bytes)
{
    if (bytes.size() != 16)
        refuse(u"its GUID has %1 bytes where 16 are needed"_s.arg(bytes.size()));
    // The first three parts are numbers, the others bytes in their order.
    QByteArray inOrder = bytes.toByteArray();
    qToBigEndian(qFromLittleEndian<quint32>(bytes.data()), inOrder.data());
    qToBigEndian(qFromLittleEndian<quint16>(bytes.data() + 4), inOrder.data() + 4);
    qToBigEndian(qFromLittleEndian<quint16>(bytes.data() + 6), inOrder.data() + 6);
    return Value(QUuid::fromRfc4122(inOrder).toString(QUuid::WithoutBraces));
}

// A byte for the sign and 128 bits, in four numbers of which the first one is the highest.
Value numericOf(QByteArrayView bytes, int scale)
{
    if (bytes.size() != 17)
        refuse(u"its number has %1 bytes where 17 are needed"_s.arg(bytes.size()));
    std::array<quint32, 4> parts{};
    for (std::size_t i = 0; i < parts.size(); ++i)
        parts[i] = qFromLittleEndian<quint32>(bytes.data() + 1 + 4 * i);
    QString digits;
    while (parts != std::array<quint32, 4>{}) {
        quint64 rest = 0;
        for (quint32 &part : parts) {
            const quint64 number = rest << 32 | part;
            part = quint32(number / 10);
            rest = number % 10;
        }
        digits.prepend(QChar(u'0' + char16_t(rest)));
    }
    const bool isNegative = bytes[0] != 0 && !digits.isEmpty();
    digits = digits.rightJustified(scale + 1, u'0');
    if (scale > 0)
        digits.insert(digits.size() - scale, u'.');
    return Value((isNegative ? u"-"_s : QString()) + digits);
}

} // namespace

// Behind the mark FF FE characters stand in one byte each. A zero byte switches between that and two bytes each.
QString textOf(QByteArrayView bytes)
{
    if (!bytes.startsWith("\xff\xfe"))
        return plainText(bytes);
    QString text;
    bool isShort = true;
    for (qsizetype i = 2; i < bytes.size();) {
        if (bytes[i] == 0) {
            isShort = !isShort;
            ++i;
        } else if (isShort) {
            text += QLatin1Char(bytes[i]);
            ++i;
        } else {
            text += plainText(bytes.sliced(i, qMin<qsizetype>(2, bytes.size() - i)));
            i += 2;
        }
    }
    return text;
}

Value valueOf(const ColumnHead &column, const CellBytes &cell)
{
    if (column.kind == ColumnKind::Boolean)
        return Value(cell.has_value());
    if (!cell)
        return {};
    switch (column.kind) {
    case ColumnKind::Boolean:
        break;
    case ColumnKind::Byte:
        return Value(qint16(numberOf<quint8>(*cell)));
    case ColumnKind::Integer:
        return Value(numberOf<qint16>(*cell));
    case ColumnKind::Long:
        return Value(numberOf<qint32>(*cell));
    case ColumnKind::Currency:
        return Value(runtime::Currency::fromScaled(numberOf<qint64>(*cell)));
    case ColumnKind::Float:
        return realOf(double(numberOf<float>(*cell)));
    case ColumnKind::Double:
        return realOf(numberOf<double>(*cell));
    case ColumnKind::Date:
        return dateOf(numberOf<double>(*cell));
    case ColumnKind::Binary:
    case ColumnKind::Ole:
        return Value(*cell);
    case ColumnKind::Text:
    case ColumnKind::Memo:
        return Value(textOf(*cell));
    case ColumnKind::Guid:
        return guidOf(*cell);
    case ColumnKind::Numeric:
        return numericOf(*cell, column.scale);
    }
    refuse(u"its type %1 is none of the format"_s.arg(int(column.kind)));
}

} // namespace jet
