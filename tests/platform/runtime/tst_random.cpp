#include "platform/runtime/Clock.h"
#include "platform/runtime/Random.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QString sevenDigits(float number)
{
    return QString::number(double(number), 'g', 7);
}

} // namespace

class tst_Random : public QObject
{
    Q_OBJECT
private Q_SLOTS:
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
    void theClockReseeds()
    {
        runtime::setClock([] { return QDateTime(QDate(2026, 3, 4), QTime(9, 0, 0, 500)); });
        runtime::Rnd(-1.0F);
        runtime::Randomize();
        QCOMPARE(sevenDigits(runtime::Rnd()), u"0.3173552"_s);
        runtime::setClock({});
    }

    // Times the highest number that there is, a float would round up to the count.
    void theHighestNumberGivesTheLastPlace()
    {
        for (int count : {4, 9000}) {
            runtime::Rnd(-0.627012134F);
            QCOMPARE(runtime::randomPlace(count), count);
            QCOMPARE(sevenDigits(runtime::Rnd(0.0F)), u"0.9999999"_s);
        }
        QCOMPARE(runtime::randomPlace(0), 1);
    }
};

QTEST_APPLESS_MAIN(tst_Random)
#include "tst_random.moc"
