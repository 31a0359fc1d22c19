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

    void cleanup() { QLocale::setDefault(QLocale::c()); }
};

QTEST_APPLESS_MAIN(FormatTest)
#include "tst_format.moc"
