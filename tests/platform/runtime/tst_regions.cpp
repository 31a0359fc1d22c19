#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Regional.h"
#include "support/Outcome.h"

#include <QTest>

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
        for (const QTime &time : {QTime(0, 0), QTime(0, 5, 1), QTime(9, 0), QTime(10, 42, 7), QTime(12, 0, 59),
                                  QTime(22, 24), QTime(22, 42), QTime(23, 59, 59)}) {
            const Date alone = Date::timeAlone(time);
            const Date moment(QDate(2001, 12, 5), time);
            const Date toTheMinute = Date::timeAlone(QTime(time.hour(), time.minute()));
            inEachRegion([&] {
                readsAs(runtime::longTimeText(time), alone);
                readsAs(runtime::shortTimeText(time), toTheMinute);
                readsAs(runtime::toText(Value(alone)), alone);
                readsAs(runtime::toText(Value(moment)), moment);
            });
        }
    }

    void readsItsOwnDays()
    {
        for (const QDate &day : {QDate(100, 1, 1), QDate(1899, 12, 30), QDate(1999, 12, 31), QDate(2001, 2, 3),
                                 QDate(2010, 11, 12), QDate(9999, 10, 9)})
            inEachRegion([&] { readsAs(runtime::shortDateText(day), Date(day)); });
    }

    void readsItsOwnNumbers()
    {
        for (const double number : {0.0, -0.5, 1234567.25, 1e20, -2.5e-9})
            inEachRegion([&] { numberReadsAs(runtime::toText(Value(number)), number); });
        inEachRegion([&] { numberReadsAs(runtime::singleText(-12.25F), -12.25); });
        inEachRegion([&] { numberReadsAs(runtime::Format(Value(qint32(-7)), u"00"), -7.0); });
    }

    void readsItsOwnAmounts()
    {
        for (const qint64 scaled : {qint64(0), qint64(50'000), qint64(-120'000), qint64(12'345'670'000),
                                    qint64(-922'337'203'685'470'000)}) {
            const Currency amount = Currency::fromScaled(scaled);
            inEachRegion([&] {
                for (const QString &text : typings(runtime::FormatCurrency(Value(amount)))) {
                    tell(text, asText(runtime::IsNumeric(Value(text))), u"True"_s);
                    tell(text, amountOf(text), amount.toPlainText());
                }
            });
        }
        for (const qint64 scaled : {qint64(-1), qint64(125'000), std::numeric_limits<qint64>::max()}) {
            const Currency amount = Currency::fromScaled(scaled);
            inEachRegion([&] {
                const QString text = runtime::toText(Value(amount));
                tell(text, amountOf(text), amount.toPlainText());
            });
        }
    }

private:
    static QString amountOf(const QString &text)
    {
        return outcomeOf([&] { return runtime::toCurrency(Value(text)).toPlainText(); });
    }

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
        if (actual != expected)
            m_faults << u"%1: \"%2\" reads as %3, not as %4"_s.arg(QLocale().name(), text, actual, expected);
    }

    void readsAs(const QString &written, const Date &moment)
    {
        for (const QString &text : typings(written))
            tell(text, outcomeOf([&] { return runtime::toDate(Value(text)).toIsoText(); }), moment.toIsoText());
    }

    void numberReadsAs(const QString &written, double number)
    {
        for (const QString &text : typings(written)) {
            tell(text, outcomeOf([&] { return runtime::toDouble(Value(text)); }), asText(number));
            tell(text, asText(runtime::IsNumeric(Value(text))), u"True"_s);
        }
    }

    QList<QLocale> m_regions;
    QStringList m_faults;
};

QTEST_APPLESS_MAIN(RegionsTest)
#include "tst_regions.moc"
