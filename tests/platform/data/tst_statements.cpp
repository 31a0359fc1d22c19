#include "support/DataFolder.h"
#include "support/UnitedStates.h"

#include <QFile>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using data::Connection;
using data::Recordset;

// What the windows compose, a statement of each form, and what else is refused, run on a fresh sample file that holds
// what the fixture's values look for. What the fixture marks as an error has to be that error and to leave the file as
// it was; every other SELECT has to give rows, and every other statement has to change the file.
namespace {

int columnCount(Recordset &rows)
{
    int columns = 0;
    while (errorOf([&] { rows.Fields(columns); }).isEmpty())
        ++columns;
    return columns;
}

} // namespace

class StatementsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_sample.execute(
            "INSERT INTO Security (SecurityId, UserName, UserPassword, UserLastName) VALUES (12, 'jdoe', 'secret', "
            "'Brown'),"
            " (13, 'josé', 'a*b?c%d', 'Lee, Ann Mary'), (14, '', '', '');"
            "INSERT INTO MemberInformation (FirstName, MiddleName, LastName, AddressOne, AddressTwo, City, State,"
            " HomePhone, CellPhone, EMailAddress) VALUES"
            " ('Ann', '', 'Lee', '1 Main St', '', 'Springfield', 'Illinois', '555-0100', '', 'ann@example.org'),"
            " ('Zoë', '', 'Nuñez', '', '', 'Köln', '', '', '', ''), ('', '', 'ÖZ', '', '', '', '', '', '', '');"
            "INSERT INTO EventMemberInfo (MemberId, EventName) VALUES (17, 'Gala');"
            "INSERT INTO Attachments (MemberId, PersonalInformationId, AttachmentsName, AttachmentVersion,"
            " AttachmentDescription, AttachmentExtension, Attachments) VALUES"
            " (17, 3, 'letter.doc', 2, 'budget', 'doc', x'00');"
            "INSERT INTO MeetingInfo (MemberId, MeetingDate) VALUES (17, '2003-01-31 00:00:00');"
            "INSERT INTO Resources (ObjectIndex, DocumentName, DocuemntVersion, Document) VALUES (3, 'plan.doc', 1, "
            "x'00');"
            "INSERT INTO TabInfo (TabNam) VALUES ('Contact Details')");
    }

    void runsWhatTheWindowsCompose_data()
    {
        QTest::addColumn<QString>("statement");
        QTest::addColumn<QString>("error");

        QFile file(QStringLiteral(STATEMENTS_FILE));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
        for (qsizetype at = 0; at < lines.size(); ++at) {
            if (lines[at].isEmpty() || lines[at].startsWith(u'#'))
                continue;
            const qsizetype line = at + 1;
            const QString &statement = lines[at];
            QString error;
            for (const QString &mark : {u"ERROR: "_s, u"STORE ERROR: "_s}) {
                if (at + 1 < lines.size() && lines[at + 1].startsWith(mark)) {
                    error = lines[++at].sliced(mark.size());
                    break;
                }
            }
            QTest::addRow("line %d", int(line)) << statement << error;
        }
    }

    void runsWhatTheWindowsCompose()
    {
        const UnitedStates region;
        QFETCH(QString, statement);
        QFETCH(QString, error);
        const DataFolder folder(DataFolder::Content::None);
        QVERIFY(QFile::copy(m_sample.file(), folder.file()));
        const QByteArray before = contentOf(folder.file());
        Connection connection;
        folder.open(connection);
        Recordset rows;
        QCOMPARE(errorOf([&] { rows.Open(statement, connection); }), error);
        if (!error.isEmpty()) {
            QCOMPARE(rows.State(), data::adStateClosed);
            QVERIFY(contentOf(folder.file()) == before);
            return;
        }
        const bool selects = statement.startsWith(u"select", Qt::CaseInsensitive);
        QCOMPARE(rows.State(), selects ? data::adStateOpen : data::adStateClosed);
        if (selects) {
            const int columns = columnCount(rows);
            const qint32 counted = rows.RecordCount();
            QVERIFY(counted > 0);
            qint32 count = 0;
            for (; !rows.Eof(); rows.MoveNext(), ++count) {
                for (int column = 0; column < columns; ++column)
                    rows.Fields(column).Value(); // the bytes included
            }
            QCOMPARE(count, counted);
        }
        QCOMPARE(contentOf(folder.file()) == before, selects);
        QCOMPARE(folder.row("PRAGMA integrity_check"), u"ok"_s);
    }

private:
    DataFolder m_sample;
};

QTEST_GUILESS_MAIN(StatementsTest)
#include "tst_statements.moc"
