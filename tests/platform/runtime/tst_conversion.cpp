#include "platform/runtime/Conversion.h"
#include "support/Outcome.h"
#include "support/UnitedStates.h"

#include <QTest>

#include <functional>
#include <limits>

using namespace Qt::Literals::StringLiterals;
using runtime::Currency;
using runtime::Date;
using runtime::Value;

namespace {

using Conversion = std::function<QString(const Value &)>;
using Rows = QList<std::pair<Value, const char *>>; // a value and what comes of it

Value text(const char *utf8)
{
    return Value(QString::fromUtf8(utf8));
}

void addRows(const char *conversion, const Conversion &convert, const Rows &rows)
{
    for (qsizetype at = 0; at < rows.size(); ++at)
        QTest::addRow("%s %d", conversion, int(at)) << convert << rows[at].first << QString::fromUtf8(rows[at].second);
}

const Conversion toInteger = [](const Value &value) { return asText(runtime::toInteger(value)); };
const Conversion toLong = [](const Value &value) { return asText(runtime::toLong(value)); };
const Conversion toDouble = [](const Value &value) { return asText(runtime::toDouble(value)); };
const Conversion toBoolean = [](const Value &value) { return asText(runtime::toBoolean(value)); };
const Conversion toAmount = [](const Value &value) { return runtime::toCurrency(value).toPlainText(); };
const Conversion toText = [](const Value &value) { return runtime::toText(value); };

} // namespace

class ConversionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void converts_data()
    {
        QTest::addColumn<Conversion>("convert");
        QTest::addColumn<Value>("value");
        QTest::addColumn<QString>("outcome");

        const Value noNumber(std::numeric_limits<double>::quiet_NaN());
        const Value bytes(QByteArray("12"));
        const Value day(Date(QDate(1989, 9, 18)));
        addRows("integer", toInteger, // half to even
                {{Value(0.5), "0"},
                 {Value(1.5), "2"},
                 {Value(32767.5), "error 6"},
                 {Value(-32768.5), "-32768"},
                 {Value(true), "-1"},
                 {text("&HFFFF"), "-1"},
                 {Value(), "error 94"}});
        addRows("long", toLong,
                {{Value(2.5), "2"},
                 {Value(2147483647.5), "error 6"},
                 {noNumber, "error 6"},
                 {text("1e400"), "error 6"},
                 {day, "32769"},
                 {text("twelve"), "error 13"},
                 {text("1/31/2001"), "error 13"},
                 {bytes, "error 13"},
                 {Value(), "error 94"}});
        addRows("boolean", toBoolean,
                {{text("tRUE"), "True"},
                 {text("-1"), "True"},
                 {text("0.0"), "False"},
                 {Value(Date()), "False"}, // midnight of day 0
                 {text("Yes"), "error 13"},
                 {text(""), "error 13"}});
        addRows("amount", toAmount,
                {{text("$1,200.50"), "1200.5"},
                 {text("0.00005"), "0"}, // half to even
                 {text("-0.00015"), "-0.0002"},
                 {text("0.000050000001"), "0.0001"},
                 {text("123456.78905e-1"), "12345.6789"},
                 {text("922337203685477.58074999"), "922337203685477.5807"},
                 {text("922337203685477.5808"), "error 6"},
                 {text("-922337203685477.58086"), "error 6"},
                 {text("1e999999"), "error 6"},
                 {text("twelve"), "error 13"},
                 {Value(0.00025 / 2), "0.0001"},
                 {Value(90071992547409.9375), "90071992547409.9375"}, // more digits than a double multiplies
                 {Value(-922337203685477.625), "error 6"},
                 {noNumber, "error 6"}});
        addRows("text", toText,
                {{Value(0.1 + 0.2), "0.3"},
                 {Value(1e15), "1E+15"},
                 {Value(0.00001), "0.00001"},
                 {Value(1.0 / 300000), "3.33333333333333E-06"},
                 {Value(true), "True"},
                 {day, "9/18/1989"},
                 {Value(Date(QDate(2001, 1, 31), QTime(10, 5))), "1/31/2001 10:05:00 AM"},
                 {Value(Date(QDate(1899, 12, 30), QTime(17, 4, 9))), "5:04:09 PM"},
                 {Value(Date()), "12/30/1899"},
                 {bytes, "error 13"},
                 {Value(), "error 94"}});
    }
    void converts()
    {
        const UnitedStates region;
        QFETCH(Conversion, convert);
        QFETCH(Value, value);
        QTEST(outcomeOf([&] { return convert(value); }), "outcome");
    }

    void readsNumbers()
    {
        const UnitedStates region;
        for (const auto &[written, number] :
             {std::pair(u"$1,200.50"_s, u"1200.5"_s), std::pair(u"1,2,3"_s, u"123"_s), std::pair(u"(5)"_s, u"-5"_s),
              std::pair(u" 5- "_s, u"-5"_s), std::pair(u"- 5"_s, u"-5"_s), std::pair(u".5"_s, u"0.5"_s),
              std::pair(u"5."_s, u"5"_s), std::pair(u"1e3"_s, u"1000"_s), std::pair(u"1d5"_s, u"100000"_s),
              std::pair(u"&H1F"_s, u"31"_s), std::pair(u"&o17"_s, u"15"_s), std::pair(u"&H8000"_s, u"-32768"_s),
              std::pair(u"&H10000"_s, u"65536"_s), std::pair(u"&HFFFFFFFF"_s, u"-1"_s),
              std::pair(u"-1e400"_s, u"error 6"_s)}) {
            QCOMPARE(written + u": "_s + outcomeOf([&, &text = written] { return toDouble(Value(text)); }),
                     written + u": "_s + number);
            QCOMPARE(runtime::IsNumeric(Value(written)), number != u"error 6");
        }
        for (const QString &written :
             {u""_s,    u" "_s,           u"-"_s,   u"$"_s,        u"()"_s,   u"."_s,     u"&H"_s,
              u"&HG"_s, u"&H100000000"_s, u"1e"_s,  u"1e 3"_s,     u"--5"_s,  u"1.2.3"_s, u"1.2,3"_s,
              u",5"_s,  u"5%"_s,          u"1 2"_s, u"1/2/2001"_s, u"True"_s, u"abc"_s,   u"5x"_s}) {
            QCOMPARE(written + u": "_s + outcomeOf([&] { return toDouble(Value(written)); }),
                     written + u": error 13"_s);
            QVERIFY(!runtime::IsNumeric(Value(written)));
        }
    }

    void tellsWhatCountsAsANumber()
    {
        for (const Value &number : {Value(qint16(0)), Value(-0.5), Value(Currency()), Value(false)})
            QVERIFY(runtime::IsNumeric(number));
        for (const Value &other : {Value(), Value(Date(QDate(2001, 1, 31))), Value(QByteArray("12"))})
            QVERIFY(!runtime::IsNumeric(other));
    }

    void readsNumbersOfAnotherRegion()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        for (const auto &[value, number] : Rows{{text("1.234,5"), "1234.5"},
                                                {text("1.5"), "15"},
                                                {text("12,50 €"), "12.5"},
                                                {text("$12"), "error 13"},
                                                {text("1,234.5"), "error 13"}})
            QCOMPARE(outcomeOf([convert = toDouble, &value = value] { return convert(value); }),
                     QString::fromLatin1(number));
        QLocale::setDefault(QLocale::c());
    }
};

QTEST_APPLESS_MAIN(ConversionTest)
#include "tst_conversion.moc"
