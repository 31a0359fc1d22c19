// Numbers, amounts, dates and texts: read from each other, compared and shown.
#include "platform/runtime/Clock.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/DateDiff.h"
#include "platform/runtime/Format.h"
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
    void cleanup()
    {
        QLocale::setDefault(QLocale::c());
        runtime::setClock({});
    }

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
                 {text("1e999"), "error 6"},
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
                 {Value(Date()), "12:00:00 AM"},
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
             {u""_s,       u" "_s,           u"-"_s,        u"$"_s,    u"()"_s,  u"."_s,     u"&H"_s,    u"&HG"_s,
              u"&H0x1F"_s, u"&H100000000"_s, u"1e"_s,       u"1e 3"_s, u"--5"_s, u"1.2.3"_s, u"1.2,3"_s, u",5"_s,
              u"5%"_s,     u"1 2"_s,         u"1/2/2001"_s, u"True"_s, u"abc"_s, u"5x"_s}) {
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
    }

    void fillsWithZeros()
    {
        for (const auto &[value, text] :
             {std::pair(Value(qint16(5)), "05"), std::pair(Value(qint32(-5)), "-05"), std::pair(Value(0.4999), "00"),
              std::pair(Value(Currency::fromScaled(std::numeric_limits<qint64>::max() - 5'807)), "922337203685477"),
              std::pair(Value(u" (7) "_s), "-07"), std::pair(Value(u"noon"_s), "noon"),
              std::pair(Value(QByteArray("7")), "error 13")})
            QCOMPARE(outcomeOf([&shown = value] { return runtime::Format(shown, u"00"); }), QString::fromLatin1(text));
        QCOMPARE(runtime::Format(Value(2.5), u"0"), u"3"_s); // half goes away from zero
        QCOMPARE(runtime::Format(Value(-0.4), u"0"), u"-0"_s);
        for (const QString &pattern : {u"#0"_s, QString()})
            QCOMPARE(errorNumberOf([&] { runtime::Format(Value(qint16(5)), pattern); }), 5);
    }

    void writesAmounts()
    {
        const auto amount = [](qint64 scaled) { return Value(Currency::fromScaled(scaled)); };
        for (const auto &[value, text] :
             {std::pair(Value(1234.5), "$1,234.50"), std::pair(Value(-1234.5), "($1,234.50)"),
              std::pair(Value(qint32(1'000'000)), "$1,000,000.00"),
              std::pair(amount(10'050), "$1.01"), // half goes away from zero
              std::pair(amount(-10'050), "($1.01)"), std::pair(amount(9'999'950), "$1,000.00"),
              std::pair(amount(-49), "$0.00"),
              std::pair(amount(std::numeric_limits<qint64>::max()), "$922,337,203,685,477.58"),
              std::pair(amount(std::numeric_limits<qint64>::min()), "($922,337,203,685,477.58)"),
              std::pair(amount(9'007'199'254'740'993'149), "$900,719,925,474,099.31"), // a double would move it
              std::pair(Value(u"$1,200.505"_s), "$1,200.51"), std::pair(Value(1e15), "error 6"),
              std::pair(Value(u"abc"_s), "error 13")})
            QCOMPARE(outcomeOf([&shown = value] { return runtime::FormatCurrency(shown); }), QString::fromLatin1(text));
    }

    void writesAmountsOfOtherRegions()
    {
        const Value positive(Currency::fromScaled(12'345'678'950));
        const Value negative(Currency::fromScaled(-5'000));
        for (const auto &[region, ofPositive, ofNegative] :
             {std::tuple(u"en_GB"_s, u"£1,234,567.90"_s, u"-£0.50"_s),
              std::tuple(u"fr_TN"_s, u"1\u202f234\u202f567,895\u00a0DT"_s, u"-0,500\u00a0DT"_s),
              std::tuple(u"pt_BR"_s, u"R$\u00a01.234.567,90"_s, u"R$\u00a0-0,50"_s),
              std::tuple(u"ja_JP"_s, u"￥1,234,568"_s, u"-￥1"_s),
              std::tuple(u"hi_IN"_s, u"₹12,34,567.90"_s, u"₹-0.50"_s),
              std::tuple(u"ur_IN"_s, u"₹۱٬۲۳۴٬۵۶۷٫۹۰"_s, u"\u200e-\u200e₹۰٫۵۰"_s)}) {
            QLocale::setDefault(QLocale(region));
            QCOMPARE(runtime::FormatCurrency(positive), ofPositive);
            QCOMPARE(runtime::FormatCurrency(negative), ofNegative);
        }
    }

    void readsDates()
    {
        const UnitedStates region;
        runtime::setClock([] { return QDateTime(QDate(2003, 5, 17), QTime(14, 30)); });
        const auto read = [](const QString &text) {
            return text + u": "_s + outcomeOf([&] { return runtime::toDate(Value(text)).toIsoText(); });
        };
        for (const auto &[written, moment] :
             {std::pair(u"1/31/2001"_s, u"2001-01-31 00:00:00"_s), std::pair(u"31/1/2001"_s, u"2001-01-31 00:00:00"_s),
              std::pair(u"1-31-01"_s, u"2001-01-31 00:00:00"_s), std::pair(u"1/1/29"_s, u"2029-01-01 00:00:00"_s),
              std::pair(u"1/1/30"_s, u"1930-01-01 00:00:00"_s), std::pair(u"2001-01-31"_s, u"2001-01-31 00:00:00"_s),
              std::pair(u"2001-01-31 17:04:09"_s, u"2001-01-31 17:04:09"_s),
              std::pair(u"1/31"_s, u"2003-01-31 00:00:00"_s), std::pair(u"Jan 31, 2001"_s, u"2001-01-31 00:00:00"_s),
              std::pair(u"31 january 01"_s, u"2001-01-31 00:00:00"_s),
              std::pair(u"March 3"_s, u"2003-03-03 00:00:00"_s), std::pair(u"1/1/100"_s, u"0100-01-01 00:00:00"_s),
              std::pair(u"12/31/9999"_s, u"9999-12-31 00:00:00"_s), std::pair(u"10:05"_s, u"1899-12-30 10:05:00"_s),
              std::pair(u"5 PM"_s, u"1899-12-30 17:00:00"_s), std::pair(u"12:00 am"_s, u"1899-12-30 00:00:00"_s),
              std::pair(u"12:30PM"_s, u"1899-12-30 12:30:00"_s)})
            QCOMPARE(read(written), written + u": "_s + moment);
        for (const QString &written :
             {u""_s, u" "_s, u"2/29/2001"_s, u"13/32/2001"_s, u"0/1/2001"_s, u"2001-31-01x"_s, u"1/2/3/4"_s, u"Jan"_s,
              u"Janus 3 2001"_s, u"25:00"_s, u"10:60"_s, u"13 PM"_s, u"10:00 11:00"_s, u"Monday, January 1, 2001"_s,
              u"noon"_s, u"the first dry weekend"_s})
            QCOMPARE(read(written), written + u": error 13"_s);
    }

    void countsDays()
    {
        for (const auto &[serial, moment] : {std::pair(36922.5, u"2001-01-31 12:00:00"_s),
                                             std::pair(-1.75, u"1899-12-29 18:00:00"_s), // forward from midnight
                                             std::pair(-657434.0, u"0100-01-01 00:00:00"_s),
                                             std::pair(2958465.0 + 86399.0 / 86400, u"9999-12-31 23:59:59"_s)}) {
            QCOMPARE(Date::fromSerial(serial).toIsoText(), moment);
            QCOMPARE(Date::fromSerial(serial).toSerial(), serial);
        }
        for (const double beyond : {2958465.9999999, 2958466.0, -657435.0})
            QCOMPARE(errorNumberOf([&] { Date::fromSerial(beyond); }), 6);
    }

    void comesBackFromTheStoresForm()
    {
        const auto read = [](const QString &text) {
            const auto date = Date::fromIsoText(text);
            return date ? date->toIsoText() : u"no date"_s;
        };
        QCOMPARE(read(u"2001-01-31T17:04:09"_s), u"2001-01-31 17:04:09"_s);
        QCOMPARE(read(u"2001-01-31"_s), u"2001-01-31 00:00:00"_s);
        for (const QString &text : {QString(), u"2001-01"_s, u"2001-02-30"_s, u"1/31/2001"_s, u"2001-01-31 25:00:00"_s,
                                    u"2001-01-31x"_s, u"2001-01-31 "_s, u"0099-12-31"_s, u"2001-01-31 5 PM"_s})
            QCOMPARE(read(text), u"no date"_s);
    }

    void countsBoundaries()
    {
        for (const auto &[interval, from, to, count] :
             {std::tuple(u"n"_s, u"2001-01-31 10:00:59"_s, u"2001-01-31 10:01:00"_s, u"1"_s),
              std::tuple(u"s"_s, u"2001-01-31 10:00:50"_s, u"2001-01-31 10:01:10"_s, u"20"_s),
              std::tuple(u"n"_s, u"2001-01-31 10:01:00"_s, u"2001-01-31 10:00:59"_s, u"-1"_s),
              std::tuple(u"N"_s, u"2001-01-31 23:00:00"_s, u"2001-02-02 01:00:00"_s, u"1560"_s),
              std::tuple(u"n"_s, u"1899-12-29 23:59:59"_s, u"1899-12-30 00:00:01"_s, u"1"_s),
              std::tuple(u"h"_s, u"2001-01-31 10:59:59"_s, u"2001-01-31 11:00:00"_s, u"1"_s),
              std::tuple(u"d"_s, u"1899-12-29 18:00:00"_s, u"1899-12-30 06:00:00"_s, u"1"_s),
              std::tuple(u"m"_s, u"2000-12-31"_s, u"2001-01-01"_s, u"1"_s),
              std::tuple(u"yyyy"_s, u"2000-12-31 23:59:59"_s, u"2001-01-01"_s, u"1"_s),
              std::tuple(u"s"_s, u"1970-01-01"_s, u"2038-01-19 03:14:07"_s, u"2147483647"_s),
              std::tuple(u"s"_s, u"1970-01-01"_s, u"2038-01-19 03:14:08"_s, u"error 6"_s),
              std::tuple(u"s"_s, u"2038-01-19 03:14:08"_s, u"1970-01-01"_s, u"-2147483648"_s),
              std::tuple(u"minutes"_s, u"2001-01-31"_s, u"2001-01-31"_s, u"error 5"_s)}) {
            const Date first = *Date::fromIsoText(from);
            const Date second = *Date::fromIsoText(to);
            QCOMPARE(outcomeOf([&, &unit = interval] { return runtime::DateDiff(unit, first, second); }), count);
        }
    }
};

QTEST_APPLESS_MAIN(ConversionTest)
#include "tst_conversion.moc"
