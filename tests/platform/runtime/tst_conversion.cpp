#include "platform/runtime/Conversion.h"
#include "support/Outcome.h"

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
                 {Value(-1.5), "-2"},
                 {Value(32767.4), "32767"},
                 {Value(32767.5), "error 6"},
                 {Value(-32768.5), "-32768"},
                 {Value(true), "-1"},
                 {text("&HFFFF"), "-1"},
                 {Value(), "error 94"}});
        addRows("long", toLong,
                {{Value(2.5), "2"},
                 {Value(2147483647.4), "2147483647"},
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
                 {text("false"), "False"},
                 {text("-1"), "True"},
                 {text("0.0"), "False"},
                 {Value(Date()), "False"}, // midnight of day 0
                 {text("Yes"), "error 13"},
                 {text(""), "error 13"}});
        addRows("amount", toAmount,
                {{text("$1,200.50"), "1200.5"},
                 {text("(0.0001)"), "-0.0001"},
                 {text("0.00005"), "0"}, // half to even
                 {text("-0.00015"), "-0.0002"},
                 {text("0.000050000001"), "0.0001"},
                 {text("123456.78905e-1"), "12345.6789"},
                 {text("9e-99"), "0"},
                 {text("0e999999"), "0"},
                 {text("922337203685477.58074999"), "922337203685477.5807"},
                 {text("922337203685477.5808"), "error 6"},
                 {text("-922337203685477.58081"), "-922337203685477.5808"},
                 {text("-922337203685477.58086"), "error 6"},
                 {text("1e999999"), "error 6"},
                 {text("twelve"), "error 13"},
                 {Value(0.1), "0.1"},
                 {Value(0.00025 / 2), "0.0001"},
                 {Value(3.0 / 32), "0.0938"},
                 {Value(90071992547409.9375), "90071992547409.9375"}, // more digits than a double multiplies
                 {Value(-922337203685477.5), "-922337203685477.5"},
                 {Value(-922337203685477.625), "error 6"},
                 {Value(922337203685477.625), "error 6"},
                 {noNumber, "error 6"}});
        addRows("text", toText,
                {{Value(0.1 + 0.2), "0.3"},
                 {Value(123456789012345.0), "123456789012345"},
                 {Value(1e15), "1E+15"},
                 {Value(0.00001), "0.00001"},
                 {Value(1.0 / 300000), "3.33333333333333E-06"},
                 {Value(Currency::fromScaled(-125'000)), "-12.5"},
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
        QFETCH(Conversion, convert);
        QFETCH(Value, value);
        QTEST(outcomeOf([&] { return convert(value); }), "outcome");
    }

    void readsNumbers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("number");

        const auto row = [](const char *written, const char *number) {
            QTest::newRow(written) << QString::fromUtf8(written) << QString::fromLatin1(number);
        };
        row("$1,200.50", "1200.5");
        row("1,2,3", "123");
        row("(5)", "-5");
        row(" 5- ", "-5");
        row("- 5", "-5");
        row(".5", "0.5");
        row("5.", "5");
        row("1e3", "1000");
        row("1d5", "100000");
        row("&H1F", "31");
        row("&o17", "15");
        row("&H8000", "-32768");
        row("&H10000", "65536");
        row("&HFFFFFFFF", "-1");

        for (const char *written :
             {"",    " ",     "-",     "$",  "()", ".",   "&H",       "&HG",  "&H100000000", "1e", "1e 3",
              "--5", "1.2.3", "1.2,3", ",5", "5%", "1 2", "1/2/2001", "True", "abc",         "5x"})
            row(written, "error 13");
        row("-1e400", "error 6");
    }
    void readsNumbers()
    {
        QFETCH(QString, text);
        QFETCH(QString, number);
        QCOMPARE(outcomeOf([&] { return toDouble(Value(text)); }), number);
        QCOMPARE(runtime::IsNumeric(Value(text)), !number.startsWith(u"error"));
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
