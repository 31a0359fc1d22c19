#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "support/Outcome.h"

#include <QLocale>
#include <QTest>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using runtime::Currency;
using runtime::Date;
using runtime::Value;

class FormatTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fillsWithZeros_data()
    {
        QTest::addColumn<Value>("value");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("text");

        const auto row = [](const char *name, const Value &value, const char *text, const char *pattern = "00") {
            QTest::newRow(name) << value << QString::fromLatin1(pattern) << QString::fromLatin1(text);
        };
        row("one digit", Value(qint16(5)), "05");
        row("negative", Value(qint32(-5)), "-05");
        row("half goes away from zero", Value(2.5), "3", "0");
        row("below the half", Value(0.4999), "00");
        row("negative that rounds to nothing", Value(-0.4), "-0", "0");
        row("no double holds it", Value(Currency::fromScaled(std::numeric_limits<qint64>::max() - 5'807)),
            "922337203685477");
        row("number in a text", Value(u" (7) "_s), "-07");
        row("word", Value(u"noon"_s), "noon");
        row("bytes", Value(QByteArray("7")), "error 13");
        row("unknown pattern", Value(qint16(5)), "error 5", "#0");
        row("no pattern", Value(qint16(5)), "error 5", "");
    }
    void fillsWithZeros()
    {
        QFETCH(Value, value);
        QFETCH(QString, pattern);
        QTEST(outcomeOf([&] { return runtime::Format(value, pattern); }), "text");
    }

    void writesAmounts_data()
    {
        QTest::addColumn<Value>("value");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const Value &value, const char *text) {
            QTest::newRow(name) << value << QString::fromLatin1(text);
        };
        row("grouped", Value(1234.5), "$1,234.50");
        row("negative in brackets", Value(-1234.5), "($1,234.50)");
        row("zeros behind the point", Value(qint32(1'000'000)), "$1,000,000.00");
        row("half goes away from zero", Value(Currency::fromScaled(10'050)), "$1.01");
        row("also below zero", Value(Currency::fromScaled(-10'050)), "($1.01)");
        row("carries into the whole part", Value(Currency::fromScaled(9'999'950)), "$1,000.00");
        row("nothing left of a negative", Value(Currency::fromScaled(-49)), "$0.00");
        row("highest", Value(Currency::fromScaled(std::numeric_limits<qint64>::max())), "$922,337,203,685,477.58");
        row("lowest", Value(Currency::fromScaled(std::numeric_limits<qint64>::min())), "($922,337,203,685,477.58)");
        row("one that a double would move", Value(Currency::fromScaled(9'007'199'254'740'993'149)),
            "$900,719,925,474,099.31");
        row("text", Value(u"$1,200.505"_s), "$1,200.51");
        row("beyond the amounts", Value(1e15), "error 6");
        row("word", Value(u"abc"_s), "error 13");
    }
    void writesAmounts()
    {
        QFETCH(Value, value);
        QTEST(outcomeOf([&] { return runtime::FormatCurrency(value); }), "text");
    }

    void writesAmountsOfOtherRegions()
    {
        const Value positive(Currency::fromScaled(12'345'678'950));
        const Value negative(Currency::fromScaled(-5'000));
        for (const auto &[region, ofPositive, ofNegative] :
             {std::tuple(u"en_GB"_s, u"£1,234,567.90"_s, u"-£0.50"_s),
              std::tuple(u"de_DE"_s, u"1.234.567,90\u00a0€"_s, u"-0,50\u00a0€"_s),
              std::tuple(u"pt_BR"_s, u"R$\u00a01.234.567,90"_s, u"R$\u00a0-0,50"_s),
              std::tuple(u"ja_JP"_s, u"￥1,234,568"_s, u"-￥1"_s),
              std::tuple(u"hi_IN"_s, u"₹12,34,567.90"_s, u"₹-0.50"_s),
              std::tuple(u"ar_KW"_s, u"١٬٢٣٤٬٥٦٧٫٨٩٥\u00a0د.ك.\u200f"_s, u"\u061c-٠٫٥٠٠\u00a0د.ك.\u200f"_s)}) {
            QLocale::setDefault(QLocale(region));
            QCOMPARE(runtime::FormatCurrency(positive), ofPositive);
            QCOMPARE(runtime::FormatCurrency(negative), ofNegative);
        }
    }

    void cleanup() { QLocale::setDefault(QLocale::c()); }
};

QTEST_APPLESS_MAIN(FormatTest)
#include "tst_format.moc"
