#include "platform/data/engine/Collation.h"
#include "platform/data/sql/Translation.h"
#include "support/DataFolder.h"

#include <QTest>

#include <algorithm>
#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using data::Connection;

namespace {

const QString kelvin = u"\u212A"_s;
const QString longS = u"\u017F"_s;

// Names that differ by case, accents, blanks, and signs of the dialect's own.
const QStringList names =
    QStringList{u""_s, u" "_s, kelvin + u"elly"_s, longS + u"mith"_s} +
    u"Smith,smith,Smith ,Smyth,Smi,Schäfer,SCHÄFER,Schafer,Elan,Élan,élan,Elba,O'Brien,O'brian,OBrien,"
    u"100%,100 percent,a_b,axb,[x],x],kelly,Kelly,Öberg,Oberg,Zoë,Zoe,Łukasz,Lukasz,ΣΊΣΥΦΟΣ,σίσυφος,"
    u"a@b,a`b,AzZ,a{,日本,😀,a*b?"_s.split(u',');

int compared(const QString &a, const QString &b)
{
    return data::compareTexts(a.toUtf8(), b.toUtf8());
}

} // namespace

class CollationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_folder.open(m_connection);
        data::Recordset rows;
        rows.Open(u"select * from MemberInformation"_s, m_connection);
        for (const QString &name : names) {
            rows.AddNew();
            rows[u"LastName"].setValue(name);
            rows.Update();
        }
        rows.AddNew(); // and one without a name
        rows.Update();
        QCOMPARE(m_folder.row("SELECT COUNT(*) FROM MemberInformation"), QString::number(names.size() + 1));
    }

    void tellsTextsApart()
    {
        for (const auto &[first, second] :
             {std::pair(u"Smith"_s, u"sMITH"_s), std::pair(u"Élan"_s, u"éLAN"_s), std::pair(u"ΑΒΓ"_s, u"αβγ"_s)})
            QCOMPARE(compared(first, second), 0);
        for (const auto &[lower, higher] :
             {std::pair(u"Elan"_s, u"Élan"_s), std::pair(u"Élan"_s, u"Elba"_s), std::pair(u"Öberg"_s, u"Ocker"_s),
              std::pair(u"Smith"_s, u"Smith "_s), std::pair(u"k"_s, kelvin), std::pair(u"s"_s, longS),
              std::pair(u"Strasse"_s, u"Straße"_s), std::pair(u"😀"_s, u"😁"_s)}) {
            QCOMPARE(compared(lower, higher), -1);
            QCOMPARE(compared(higher, lower), 1);
        }
    }

    // A comparison that contradicts itself damages indexes and sorts at random.
    void isAnOrder()
    {
        for (const QString &a : names) {
            for (const QString &b : names) {
                QCOMPARE(compared(a, b), -compared(b, a));
                for (const QString &c : names) {
                    if (compared(a, b) <= 0 && compared(b, c) <= 0)
                        QVERIFY2(compared(a, c) <= 0, qPrintable(a + u" <= "_s + b + u" <= "_s + c));
                    if (compared(a, b) == 0)
                        QCOMPARE(compared(a, c), compared(b, c));
                }
            }
        }
    }

    void matchesPatterns()
    {
        const auto matches = [](const QString &pattern, const QString &text) {
            return data::matchesLike(pattern.toUtf8(), text.toUtf8());
        };
        for (const auto &[pattern, text] :
             {std::pair(u"smi%"_s, u"SMITH"_s), std::pair(u"%"_s, u""_s), std::pair(u""_s, u""_s),
              std::pair(u"_"_s, u"😀"_s), std::pair(u"é%"_s, u"Élan"_s), std::pair(u"%a%b%c"_s, u"aXbXbc"_s),
              std::pair(u"%ab"_s, u"aab"_s), std::pair(u"[a-c]x"_s, u"Bx"_s), std::pair(u"[^a-c]x"_s, u"dx"_s),
              std::pair(u"100[%]"_s, u"100%"_s), std::pair(u"[[]x]"_s, u"[x]"_s), std::pair(u"[x"_s, u"[x"_s),
              std::pair(u"a*b?"_s, u"a*b?"_s)})
            QVERIFY2(matches(pattern, text), qPrintable(pattern));
        for (const auto &[pattern, text] :
             {std::pair(u""_s, u"x"_s), std::pair(u"_"_s, u""_s), std::pair(u"e%"_s, u"Élan"_s),
              std::pair(u"%a%b%c"_s, u"aXbXcb"_s), std::pair(u"[a-c]x"_s, u"dx"_s), std::pair(u"[^a-c]x"_s, u"Bx"_s),
              std::pair(u"100[%]"_s, u"100 percent"_s), std::pair(u"a[_]b"_s, u"axb"_s),
              std::pair(u"a*b?"_s, u"axxbx"_s), std::pair(u"k%"_s, kelvin)})
            QVERIFY2(!matches(pattern, text), qPrintable(pattern));
    }

    // Ranges over an index, equality and the function of the store have to find what the plain rule says.
    void findsByPatternWhatThePatternMatches()
    {
        for (const QString &pattern :
             {u"S%"_s,   u"smi%"_s,  u"Smith%"_s, u"Smith %"_s, u"e%"_s,     u"É%"_s,     u"él%"_s,
              u"Sch%"_s, u"schä%"_s, u"O'%"_s,    u"o'b%"_s,    u"k%"_s,     u"z%"_s,     u"zo%"_s,
              u"a@%"_s,  u"a`%"_s,   u"az%"_s,    u"a%"_s,      u"100[%]"_s, u"100%"_s,   u"a[_]b"_s,
              u"a_b"_s,  u"[[]x]"_s, u"x]%"_s,    u"%i%"_s,     u"_mith"_s,  u"[s-z]%"_s, u"[^a-z]%"_s,
              u"%"_s,    u""_s,      u" %"_s,     u"Ł%"_s,      u"日%"_s,    u"😀"_s,      u"σ%"_s,
              u"a*%"_s,  u"Smith"_s, u"ELAN"_s,   u"Élan"_s,    u"s[mc]%"_s, u"%%"_s}) {
            findsByThePlainRule(u"LIKE"_s, u"NOT LIKE"_s, pattern, [&pattern](const QString &name) {
                return data::matchesLike(pattern.toUtf8(), name.toUtf8());
            });
        }
    }

    void findsByEqualityWhatCountsAsEqual()
    {
        for (const QString &wanted : names)
            findsByThePlainRule(u"="_s, u"<>"_s, wanted,
                                [&wanted](const QString &name) { return compared(wanted, name) == 0; });
    }

    void groupsAndOrdersNames()
    {
        QCOMPARE(
            textsOf(m_connection,
                    u"SELECT DISTINCT LastName FROM MemberInformation WHERE LastName LIKE '%lan' ORDER BY LastName"_s,
                    u"LastName")
                .size(),
            2);
        QStringList sorted = names;
        std::stable_sort(sorted.begin(), sorted.end(), [](auto &a, auto &b) { return compared(a, b) < 0; });
        QCOMPARE(
            textsOf(m_connection, u"SELECT LastName FROM MemberInformation ORDER BY LastName, MemberId"_s, u"LastName"),
            QStringList(QString()) + sorted); // Null comes first
        const auto distinct =
            textsOf(m_connection, u"SELECT DISTINCT LastName FROM MemberInformation"_s, u"LastName").sliced(1);
        const auto isAlike = [](auto &a, auto &b) { return compared(a, b) == 0; };
        sorted.erase(std::unique(sorted.begin(), sorted.end(), isAlike), sorted.end());
        QVERIFY(std::equal(distinct.begin(), distinct.end(), sorted.begin(), sorted.end(), isAlike));
        QCOMPARE(textsOf(m_connection, u"SELECT DISTINCT LastName FROM MemberInformation ORDER BY MemberId + 0"_s,
                         u"LastName")
                     .size(),
                 sorted.size() + 1);
    }

    // The comparison runs inside SQLite, which no exception may pass through.
    void failsWithoutMemory()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("The sanitizer's own memory leaves no room for a limit.");
#endif
        const DataFolder folder(DataFolder::Content::Empty);
        folder.execute(
            "INSERT INTO EventInformation (EventName) VALUES (replace(hex(zeroblob(10000000)), '00', 'é')), ('e')");
        Connection connection;
        folder.open(connection);
        for (const QString &condition : {u"EventName > 'é'"_s, u"EventName LIKE '%é'"_s}) {
            data::Recordset rows;
            rows.Open(u"SELECT EventIdentification FROM EventInformation WHERE "_s + condition, connection);
            malloc_trim(0); // what is free inside the process would be room too
            QFile memory(u"/proc/self/statm"_s);
            QVERIFY(memory.open(QIODevice::ReadOnly));
            const rlim_t used = memory.readAll().split(' ').first().toULongLong() * rlim_t(sysconf(_SC_PAGESIZE));
            rlimit unlimited{};
            getrlimit(RLIMIT_AS, &unlimited);
            const rlimit limited{used + 60'000'000, unlimited.rlim_max}; // room for the text, not for its characters
            setrlimit(RLIMIT_AS, &limited);
            const QString error = errorOf([&] { rows.Eof(); });
            setrlimit(RLIMIT_AS, &unlimited);
            QCOMPARE(error, u"7 Out of memory"_s);
            rows.Close();
            rows.Open(u"SELECT EventName FROM EventInformation WHERE EventName = 'É' OR EventName = 'e'"_s, connection);
            QCOMPARE(rows.RecordCount(), 1);
        }
    }

    void searchesByIndex()
    {
        data::Database file;
        file.open(m_folder.file());
        file.provideLike();
        for (const auto &[condition, search] :
             {std::pair(u"[LastName] like 'A%' and Active = yes"_s, u"(LastName>? AND LastName<?)"_s),
              std::pair(u"[LastName] like 'Schä%'"_s, u"(LastName>? AND LastName<?)"_s),
              std::pair(u"LastName = 'smith'"_s, u"(LastName=?)"_s)}) {
            const QByteArray sql = sql::translate(u"select * from [MemberInformation] Where "_s + condition).sql;
            QString plan;
            for (data::Statement query = file.prepare("EXPLAIN QUERY PLAN " + sql); query.step();)
                plan += QString::fromUtf8(query.text(3)) + u'\n';
            QVERIFY2(plan.contains(u"USING INDEX MemberInformation_LastName "_s + search), qPrintable(plan));
        }
    }

private:
    void findsByThePlainRule(const QString &sign, const QString &opposite, const QString &text, auto &&rule)
    {
        QStringList expected;
        std::copy_if(names.cbegin(), names.cend(), std::back_inserter(expected), rule);
        const QString condition = u"LastName %1 '%2'"_s;
        const QString written = QString(text).replace(u"'"_s, u"''"_s);
        QCOMPARE(namesWhere(condition.arg(sign, written)), expected);
        QCOMPARE(namesWhere(condition.arg(opposite, written)).size(), names.size() - expected.size());
    }

    QStringList namesWhere(const QString &condition)
    {
        return textsOf(m_connection,
                       u"SELECT LastName FROM MemberInformation WHERE "_s + condition + u" ORDER BY MemberId"_s,
                       u"LastName");
    }

    DataFolder m_folder{DataFolder::Content::Empty};
    Connection m_connection;
};

QTEST_GUILESS_MAIN(CollationTest)
#include "tst_collation.moc"
