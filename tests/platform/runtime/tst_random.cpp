#include "platform/runtime/Clock.h"
#include "platform/runtime/Random.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QString sevenDigits(float number)
{
    return QString::number(double(number), 'g', 7);
}

void setSecondsSinceMidnight(double seconds)
{
    runtime::setClock(
        [seconds] { return QDateTime(QDate(2026, 3, 4), QTime::fromMSecsSinceStartOfDay(int(seconds * 1000))); });
}

} // namespace

class tst_Random : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { runtime::setClock({}); }

    // Nothing before it may draw: it sees the state with which a process starts.
    void everyProcessStartsWithTheSameSequence()
    {
        QStringList drawn;
        for (int draw = 0; draw < 10; ++draw)
            drawn << sevenDigits(runtime::Rnd());
        QCOMPARE(drawn, (QStringList{u"0.7055475"_s, u"0.533424"_s, u"0.5795186"_s, u"0.2895625"_s, u"0.301948"_s,
                                     u"0.7747401"_s, u"0.01401764"_s, u"0.7607236"_s, u"0.81449"_s, u"0.7090379"_s}));
        QCOMPARE(sevenDigits(runtime::Rnd(0.0F)), u"0.7090379"_s);
        QVERIFY(sevenDigits(runtime::Rnd(1.0F)) != u"0.7090379"_s);
    }

    void aSequenceIsChosenByANumber()
    {
        QCOMPARE(sevenDigits(runtime::Rnd(-1.0F)), u"0.224007"_s);
        runtime::Randomize(1.0);
        QCOMPARE(sevenDigits(runtime::Rnd()), u"0.3335753"_s);
    }

    // The lowest 8 bits are those of Rnd(-1), the others the clock's.
    void theClockReseeds_data()
    {
        QTest::addColumn<double>("seconds");
        QTest::addColumn<QString>("first");
        QTest::newRow("midnight") << 0.0 << u"0.3328429"_s;
        QTest::newRow("nine o'clock") << 32400.0 << u"0.329074"_s;
        QTest::newRow("a fraction later") << 32400.5 << u"0.3173552"_s;
    }
    void theClockReseeds()
    {
        QFETCH(double, seconds);
        setSecondsSinceMidnight(seconds);
        runtime::Rnd(-1.0F);
        runtime::Randomize();
        QTEST(sevenDigits(runtime::Rnd()), "first");
    }

    void aPlaceIsNeverOutsideOfWhatIsCounted()
    {
        runtime::Rnd(-1.0F);
        QList<int> hits(5, 0);
        for (int draw = 0; draw < 10000; ++draw) {
            const int place = runtime::randomPlace(4);
            QVERIFY(place >= 1 && place <= 4);
            ++hits[place];
        }
        for (int place = 1; place <= 4; ++place)
            QVERIFY2(hits[place] > 2300, qPrintable(QString::number(hits[place])));
        QCOMPARE(runtime::randomPlace(0), 1);
    }

    // Times the highest number that there is, a float would round up to the count.
    void theHighestNumberGivesTheLastPlace()
    {
        for (int count : {4, 9000}) {
            runtime::Rnd(-0.627012134F);
            QCOMPARE(runtime::randomPlace(count), count);
            QCOMPARE(sevenDigits(runtime::Rnd(0.0F)), u"0.9999999"_s);
        }
    }
};

QTEST_APPLESS_MAIN(tst_Random)
#include "tst_random.moc"
