#include "explorers/SortClause.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_SortClause : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Clicks follow one another on one window: each starts from the clause that the last one left.
    void clicksInARow()
    {
        struct Click
        {
            QString tag;
            QString clause;
            QString direction;
        };
        const QList<Click> clicks{
            {u"LastName"_s, u" ORDER BY LastName ASC"_s, u"ascending"_s},
            {u"LastName"_s, u" ORDER BY LastName DESC"_s, u"descending"_s},
            {u"LastName"_s, u" ORDER BY LastName ASC"_s, u"ascending"_s},
            {u"CellPhone]"_s, u" ORDER BY CellPhone] ASC"_s, u"ascending"_s},
            {u"CellPhone]"_s, u" ORDER BY CellPhone] DESC"_s, u"descending"_s},
            {u"City"_s, u" ORDER BY City ASC"_s, u"ascending"_s},
        };
        QString clause;
        for (const Click &click : clicks) {
            clause = sortClauseAfterClick(clause, click.tag);
            QCOMPARE(clause, click.clause);
            QCOMPARE(sortDirection(clause), click.direction);
        }
    }
};

QTEST_APPLESS_MAIN(tst_SortClause)
#include "tst_sortclause.moc"
