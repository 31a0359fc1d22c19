#include "platform/runtime/Conversion.h"
#include "platform/runtime/NumberText.h"
#include "support/Outcome.h"

#include <QTest>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using runtime::Currency;
using runtime::Date;
using runtime::Value;

namespace {

void inRegion(QLocale::Language language, QLocale::Territory territory)
{
    QLocale::setDefault(QLocale(language, territory));
}

Value text(const char *utf8)
{
    return Value(QString::fromUtf8(utf8));
}

} // namespace

class ConversionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void roundsToWholeNumbers_data()
    {
        QTest::addColumn<Value>("value");
        QTest::addColumn<QString>("asInteger");
        QTest::addColumn<QString>("asLong");

        const auto row = [](const char *name, const Value &value, const char *integer, const char *longer = nullptr) {
            QTest::newRow(name) << value << QString::fromLatin1(integer)
                                << QString::fromLatin1(longer ? longer : integer);
        };
        row("half below an even number", Value(0.5), "0");
        row("half above an odd number", Value(1.5), "2");
        row("half above an even number", Value(2.5), "2");
        row("half of a negative number", Value(-1.5), "-2");
        row("last 16-bit number", Value(32767.4), "32767");
        row("rounds beyond 16 bits", Value(32767.5), "error 6", "32768");
        row("rounds back into 16 bits", Value(-32768.5), "-32768");
        row("last 32-bit number", Value(2147483647.4), "error 6", "2147483647");
        row("beyond 32 bits", Value(2147483647.5), "error 6");
        row("no number at all", Value(std::numeric_limits<double>::quiet_NaN()), "error 6");
        row("text beyond every number", text("1e400"), "error 6");
        row("true", Value(true), "-1");
        row("day", Value(Date(QDate(1989, 9, 18))), "error 6", "32769");
        row("16-bit pattern", text("&HFFFF"), "-1");
        row("word", text("twelve"), "error 13");
        row("date as text", text("1/31/2001"), "error 13");
        row("bytes", Value(QByteArray("12")), "error 13");
        row("Null", Value(), "error 94");
    }
    void roundsToWholeNumbers()
    {
        QFETCH(Value, value);
        QTEST(outcomeOf([&] { return int(runtime::toInteger(value)); }), "asInteger");
        QTEST(outcomeOf([&] { return int(runtime::toLong(value)); }), "asLong");
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
        row("1e400", "error 6");
        row("-1e400", "error 6");
    }
    void readsNumbers()
    {
        QFETCH(QString, text);
        QTEST(outcomeOf([&] { return runtime::toDouble(Value(text)); }), "number");
        QFETCH(QString, number);
        QCOMPARE(runtime::IsNumeric(Value(text)), !number.startsWith(u"error"));
    }

    void tellsWhatCountsAsANumber()
    {
        for (const Value &number : {Value(qint16(0)), Value(-0.5), Value(Currency()), Value(false)})
            QVERIFY(runtime::IsNumeric(number));
        for (const Value &other : {Value(), Value(Date(QDate(2001, 1, 31))), Value(QByteArray("12"))})
            QVERIFY(!runtime::IsNumeric(other));
    }

    void readsNumbersOfAnotherRegion_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("number");

        QTest::newRow("decimal comma") << u"1.234,5"_s << u"1234.5"_s;
        QTest::newRow("point as thousands sign") << u"1.5"_s << u"15"_s;
        QTest::newRow("sign of its currency") << u"12,50 €"_s << u"12.5"_s;
        QTest::newRow("sign of another currency") << u"$12"_s << u"error 13"_s;
        QTest::newRow("thousands sign behind the decimal sign") << u"1,234.5"_s << u"error 13"_s;
    }
    void readsNumbersOfAnotherRegion()
    {
        inRegion(QLocale::German, QLocale::Germany);
        QFETCH(QString, text);
        QTEST(outcomeOf([&] { return runtime::toDouble(Value(text)); }), "number");
    }

    void tellsBooleans_data()
    {
        QTest::addColumn<Value>("value");
        QTest::addColumn<QString>("flag");

        QTest::newRow("word") << text("tRUE") << u"True"_s;
        QTest::newRow("other word") << text("false") << u"False"_s;
        QTest::newRow("number in a text") << text("-1") << u"True"_s;
        QTest::newRow("zero in a text") << text("0.0") << u"False"_s;
        QTest::newRow("midnight of day 0") << Value(Date()) << u"False"_s;
        QTest::newRow("no word for it") << text("Yes") << u"error 13"_s;
        QTest::newRow("empty text") << text("") << u"error 13"_s;
    }
    void tellsBooleans()
    {
        QFETCH(Value, value);
        QTEST(outcomeOf([&] { return runtime::toBoolean(value); }), "flag");
    }

    void readsAmounts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("amount");

        const auto row = [](const char *written, const char *amount) {
            QTest::newRow(written) << QString::fromLatin1(written) << QString::fromLatin1(amount);
        };
        row("12.5", "12.5");
        row("$1,200.50", "1200.5");
        row("(0.0001)", "-0.0001");
        row("0.00005", "0");      // half to even
        row("0.00015", "0.0002"); // half to even
        row("0.000050000001", "0.0001");
        row("-0.00015", "-0.0002");
        row("123456.78905e-1", "12345.6789");
        row("9e-99", "0");
        row("0e999999", "0");
        row("922337203685477.5807", "922337203685477.5807");
        row("922337203685477.58074999", "922337203685477.5807");
        row("922337203685477.5808", "error 6");
        row("-922337203685477.5808", "-922337203685477.5808");
        row("-922337203685477.58081", "-922337203685477.5808");
        row("-922337203685477.58086", "error 6");
        row("1e15", "error 6");
        row("1e999999", "error 6");
        row("twelve", "error 13");
        row("", "error 13");
    }
    void readsAmounts()
    {
        QFETCH(QString, text);
        QTEST(outcomeOf([&] { return runtime::toCurrency(Value(text)).toPlainText(); }), "amount");
    }

    void makesAmountsOfNumbers_data()
    {
        QTest::addColumn<Value>("value");
        QTest::addColumn<QString>("amount");

        QTest::newRow("fraction that no double holds") << Value(0.1) << u"0.1"_s;
        QTest::newRow("half to even, down") << Value(0.00025 / 2) << u"0.0001"_s;
        QTest::newRow("exact half to even") << Value(1.0 / 32) << u"0.0312"_s;
        QTest::newRow("exact half to even, up") << Value(3.0 / 32) << u"0.0938"_s;
        QTest::newRow("true") << Value(true) << u"-1"_s;
        QTest::newRow("more digits than a double multiplies") << Value(90071992547409.9375) << u"90071992547409.9375"_s;
        QTest::newRow("lowest") << Value(-922337203685477.5) << u"-922337203685477.5"_s;
        QTest::newRow("too low") << Value(-922337203685477.625) << u"error 6"_s;
        QTest::newRow("too high") << Value(922337203685477.625) << u"error 6"_s;
        QTest::newRow("no number") << Value(std::numeric_limits<double>::quiet_NaN()) << u"error 6"_s;
    }
    void makesAmountsOfNumbers()
    {
        QFETCH(Value, value);
        QTEST(outcomeOf([&] { return runtime::toCurrency(value).toPlainText(); }), "amount");
    }

    void writesValues_data()
    {
        QTest::addColumn<Value>("value");
        QTest::addColumn<QString>("written");

        QTest::newRow("fifteen digits") << Value(0.1 + 0.2) << u"0.3"_s;
        QTest::newRow("fifteen digits before the point") << Value(123456789012345.0) << u"123456789012345"_s;
        QTest::newRow("sixteen") << Value(1e15) << u"1E+15"_s;
        QTest::newRow("small and short") << Value(0.00001) << u"0.00001"_s;
        QTest::newRow("small and long") << Value(1.0 / 300000) << u"3.33333333333333E-06"_s;
        QTest::newRow("amount") << Value(Currency::fromScaled(-125'000)) << u"-12.5"_s;
        QTest::newRow("flag") << Value(true) << u"True"_s;
        QTest::newRow("day") << Value(Date(QDate(2001, 1, 31))) << u"1/31/2001"_s;
        QTest::newRow("moment") << Value(Date(QDate(2001, 1, 31), QTime(10, 5))) << u"1/31/2001 10:05:00 AM"_s;
        QTest::newRow("time alone") << Value(Date(QDate(1899, 12, 30), QTime(17, 4, 9))) << u"5:04:09 PM"_s;
        QTest::newRow("day 0") << Value(Date()) << u"12/30/1899"_s;
        QTest::newRow("bytes") << Value(QByteArray("x")) << u"error 13"_s;
        QTest::newRow("Null") << Value() << u"error 94"_s;
    }
    void writesValues()
    {
        QFETCH(Value, value);
        QTEST(outcomeOf([&] { return runtime::toText(value); }), "written");
    }
};

QTEST_APPLESS_MAIN(ConversionTest)
#include "tst_conversion.moc"
