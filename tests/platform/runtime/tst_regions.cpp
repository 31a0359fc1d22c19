#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Regional.h"
#include "support/Outcome.h"

#include <QTest>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using runtime::Currency;
using runtime::Date;
using runtime::Value;

namespace {

// The text itself, and as people type it who have neither the blanks nor the marks of their region on the keyboard.
QStringList typings(const QString &text)
{
    QString plain;
    for (const QChar character : text) {
        if (character.category() != QChar::Other_Format)
            plain += character.isSpace() ? QChar(u' ') : character;
    }
    QString noBreak = plain;
    QString narrow = plain;
    return {text, plain, noBreak.replace(u' ', QChar(0xa0)), narrow.replace(u' ', QChar(0x202f))};
}

} // namespace

// Every region that Qt knows: what is shown comes back as what it was.
class RegionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_regions = QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
        QVERIFY(m_regions.size() > 500);
    }
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void readsItsOwnMoments()
    {
        inEachRegion([this] {
            for (const QTime &time : {QTime(0, 0), QTime(0, 5, 1), QTime(10, 42, 7), QTime(12, 0, 59), QTime(22, 24)}) {
                const Date alone = Date::timeAlone(time);
                readsAs(runtime::longTimeText(time), alone);
                readsAs(runtime::shortTimeText(time), Date::timeAlone(QTime(time.hour(), time.minute())));
                readsAs(runtime::toText(Value(alone)), alone);
                const Date moment(QDate(2001, 12, 5), time);
                readsAs(runtime::toText(Value(moment)), moment);
            }
            for (const QDate &day : {QDate(100, 1, 1), QDate(1999, 12, 31), QDate(2001, 2, 3), QDate(9999, 10, 9)})
                readsAs(runtime::shortDateText(day), Date(day));
        });
    }

    void readsItsOwnNumbers()
    {
        inEachRegion([this] {
            for (const double number : {0.0, -0.5, 1234567.25, 1e20, -2.5e-9})
                numberReadsAs(runtime::toText(Value(number)), number);
            numberReadsAs(runtime::singleText(-12.25F), -12.25);
            numberReadsAs(runtime::Format(Value(qint32(-1234)), u"00"), -1234.0);
        });
    }

    void readsItsOwnAmounts()
    {
        inEachRegion([this] {
            for (const qint64 scaled : {qint64(0), qint64(50'000), qint64(-120'000), qint64(-922'337'203'685'470'000)})
                amountReadsAs(runtime::FormatCurrency(Value(Currency::fromScaled(scaled))), scaled);
            for (const qint64 scaled : {qint64(-1), qint64(125'000), std::numeric_limits<qint64>::max()})
                amountReadsAs(runtime::toText(Value(Currency::fromScaled(scaled))), scaled);
        });
    }

    // In the region's own pattern, with seconds where they are asked for.
    void showsTimes()
    {
        for (const auto &[region, withSeconds, without] :
             {std::tuple(u"en_US"_s, u"10:05:33 PM"_s, u"10:05 PM"_s),
              std::tuple(u"da_DK"_s, u"22.05.33"_s, u"22.05"_s),
              std::tuple(u"fr_CA"_s, u"22 h 05 min 33 s"_s, u"22 h 05"_s),
              std::tuple(u"nds_DE"_s, u"Kl. 22.05.33"_s, u"Kl. 22.05"_s),
              std::tuple(u"ko_KR"_s, u"오후 10:05:33"_s, u"오후 10:05"_s)}) {
            QLocale::setDefault(QLocale(region));
            QCOMPARE(runtime::longTimeText(QTime(22, 5, 33)), withSeconds);
            QCOMPARE(runtime::shortTimeText(QTime(22, 5, 33)), without);
        }
    }

    // A mistyped time or day is no number of days: its signs would pass for thousands signs or for the decimal sign.
    void readsWhatPeopleType()
    {
        for (const auto &[region, text, moment] :
             {std::tuple(u"da_DK"_s, u"22.24"_s, u"1899-12-30 22:24:00"_s),
              std::tuple(u"da_DK"_s, u"10.05.03"_s, u"1899-12-30 10:05:03"_s), // not a day with two digits of its year
              std::tuple(u"da_DK"_s, u"22.60"_s, u"error 13"_s), std::tuple(u"de_DE"_s, u"31.02.99"_s, u"error 13"_s),
              std::tuple(u"as_IN"_s, u"22.60"_s, u"error 13"_s), // the point of times and of decimals
              std::tuple(u"da_DK"_s, u"36922,25"_s, u"2001-01-31 06:00:00"_s),
              std::tuple(u"da_DK"_s, u"1.12.01 9.05"_s, u"2001-12-01 09:05:00"_s),
              std::tuple(u"ar_EG"_s, u"36922.25"_s, u"2001-01-31 06:00:00"_s),
              std::tuple(u"fr_CA"_s, u"22:5"_s, u"1899-12-30 22:05:00"_s), // as elsewhere
              std::tuple(u"en_GB"_s, u"2/3/2001"_s, u"2001-03-02 00:00:00"_s),
              std::tuple(u"en_GB"_s, u"1/31/2001"_s, u"2001-01-31 00:00:00"_s), // there is no month 31
              std::tuple(u"en_GB"_s, u"2001-02-03"_s, u"2001-02-03 00:00:00"_s),
              std::tuple(u"de_DE"_s, u"5. Dez. 2001"_s, u"2001-12-05 00:00:00"_s),
              std::tuple(u"de_DE"_s, u"5 March 2001"_s, u"2001-03-05 00:00:00"_s),
              std::tuple(u"ko_KR"_s, u"5 pm"_s, u"1899-12-30 17:00:00"_s)}) {
            QLocale::setDefault(QLocale(region));
            QCOMPARE(outcomeOf([&written = text] { return runtime::toDate(Value(written)).toIsoText(); }), moment);
        }
    }

private:
    template <class Body> void inEachRegion(Body &&body)
    {
        m_faults.clear();
        for (const QLocale &region : std::as_const(m_regions)) {
            QLocale::setDefault(region);
            body();
        }
        QVERIFY2(m_faults.isEmpty(), qPrintable(m_faults.join(u'\n')));
    }

    void tell(const QString &text, const QString &actual, const QString &expected)
    {
        if (actual != expected && m_faults.size() < 20)
            m_faults << u"%1: \"%2\" reads as %3, not as %4"_s.arg(QLocale().name(), text, actual, expected);
    }

    void amountReadsAs(const QString &shown, qint64 scaled)
    {
        for (const QString &text : typings(shown)) {
            tell(text, asText(runtime::IsNumeric(Value(text))), u"True"_s);
            tell(text, outcomeOf([&] { return runtime::toCurrency(Value(text)).toPlainText(); }),
                 Currency::fromScaled(scaled).toPlainText());
        }
    }

    void readsAs(const QString &shown, const Date &moment)
    {
        for (const QString &text : typings(shown))
            tell(text, outcomeOf([&] { return runtime::toDate(Value(text)).toIsoText(); }), moment.toIsoText());
    }

    void numberReadsAs(const QString &shown, double number)
    {
        for (const QString &text : typings(shown)) {
            tell(text, outcomeOf([&] { return runtime::toDouble(Value(text)); }), asText(number));
            tell(text, asText(runtime::IsNumeric(Value(text))), u"True"_s);
        }
    }

    QList<QLocale> m_regions;
    QStringList m_faults;
};

QTEST_APPLESS_MAIN(RegionsTest)
#include "tst_regions.moc"
