#include "platform/runtime/Clock.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/DateDiff.h"
#include "support/Outcome.h"
#include "support/UnitedStates.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using runtime::Date;
using runtime::Value;

class DatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        runtime::setClock([] { return QDateTime(QDate(2003, 5, 17), QTime(14, 30)); });
    }

    void cleanup() { runtime::setClock({}); }

    void readsDates()
    {
        const UnitedStates region;
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

QTEST_APPLESS_MAIN(DatesTest)
#include "tst_dates.moc"
