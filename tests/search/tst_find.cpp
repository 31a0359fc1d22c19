#include "search/frmFindInfo.h"
#include "support/Launches.h"
#include "support/Lines.h"
#include "support/ShownWork.h"
#include "support/StoreTest.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char *rows =
    "INSERT INTO MemberInformation (MemberId, FirstName, MiddleName, LastName) VALUES"
    " (4, 'Ann', 'B', 'Cole'), (7, 'Dan', NULL, 'O''Hara');"
    "INSERT INTO Attachments (AttachmentsId, MemberId, AttachmentsName, AttachmentVersion, AttachmentExtension,"
    " AttachmentDescription, Attachments) VALUES"
    " (11, 4, 'minutes.txt', 1, 'txt', 'Notes', CAST('The ANNUAL meeting' AS BLOB)),"
    " (12, 4, 'minutes.txt', 2, 'txt', 'Notes', CAST('The annual meeting, O''Hara' AS BLOB)),"
    " (13, 7, 'plan.doc', 1, 'doc', 'Plan', CAST('a \"\" b annual \"' AS BLOB)),"
    " (14, 7, 'photo', NULL, NULL, NULL, x'00');";

void click(QAbstractButton *button)
{
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

} // namespace

class tst_Find : public StoreTest
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        open(DataFolder::Content::Empty, rows);
        m_window.emplace();
        m_window->Show();
    }
    void cleanup()
    {
        m_window.reset();
        close();
    }

    void offersMembersAndFileTypes()
    {
        QCOMPARE(m_window->lstSearchClient->count(), 2);
        QCOMPARE(m_window->lstSearchClient->itemText(0), u"Ann  B  Cole"_s);
        QCOMPARE(m_window->lstSearchClient->itemText(1), u"Dan    O'Hara"_s);
        QCOMPARE(m_window->lstSearchClient->ListIndex(), -1);
        QCOMPARE(m_window->lstSearchFileType->Text(), u"All"_s);
        QCOMPARE(m_window->lstSearchFileType->count(), 3);
        QVERIFY(m_window->optSearchClient(0)->Value());
        QVERIFY(!m_window->optSearchClient(1)->isEnabled());
        m_window.emplace();
        m_window->MemberId = u"7"_s;
        m_window->Show();
        QVERIFY(m_window->optSearchClient(1)->Value());
        search(u"annual"_s);
        QCOMPARE(lines(*m_window->lstViewResults, 3), QStringList(u"13|plan.doc|1"_s));
    }

    void choicesEnableWhatBelongsToThem()
    {
        for (const bool is : {false, true, false}) {
            click(m_window->optSearchClient(is ? 2 : 0));
            click(m_window->optSearchVersion(is ? 1 : 0));
            QCOMPARE(m_window->lstSearchClient->isEnabled(), is);
            QCOMPARE(m_window->txtSpecifyVersion->isEnabled(), is);
        }
        click(m_window->optSearchSummary(0));
        click(m_window->optSearchExactPhrase(0));
        QVERIFY(m_window->optSearchExactPhrase(0)->Value());
        click(m_window->optSearchSummary(1));
        QVERIFY(m_window->optSearchExactPhrase(1)->Value());
        QVERIFY(!m_window->optSearchExactPhrase(0)->isEnabled());
    }

    // A second search adds its columns to the first one's and takes its lines away.
    void finds()
    {
        const QString first = u"11|minutes.txt|1"_s;
        const QString second = u"12|minutes.txt|2"_s;
        const QString plan = u"13|plan.doc|1"_s;
        int searches = 0;
        ShownWork shown;
        for (const auto &[phrase, found] : {std::pair(u"Annual M"_s, QStringList{first, second}),
                                            {u"\"the annual\""_s, {first, second}},
                                            {u"o'h"_s, {second}},
                                            {u"\"\""_s, {plan}},
                                            {QString(), {first, second, plan, u"14|photo|"_s}},
                                            {u"quarterly"_s, {}}}) {
            search(phrase);
            QCOMPARE(lines(*m_window->lstViewResults, 3), found);
            QCOMPARE(columns(), 3 * ++searches);
            QCOMPARE(shown.takeTexts().join(u' '),
                     u"Searching 1 of 4 Searching 2 of 4 Searching 3 of 4 Searching 4 of 4"_s);
        }
        QCOMPARE(m_window->lstViewResults->ColumnHeaders(4).Text, u"File Id"_s);
        QCOMPARE(m_window->lstViewResults->ColumnHeaders(5).Text, u"File Name"_s);
        QCOMPARE(m_window->lstViewResults->ColumnHeaders(6).Text, u"File Version"_s);
        QVERIFY(QDir(m_folder->path(u"temp/Search"_s)).isEmpty());
        m_window->optSearchSummary(0)->setValue(true); // is not run, so that a broken statement does not show
        m_window->txtSearchString->setText(u"it's"_s);
        click(m_window->cmdSearch);
        QCOMPARE(columns(), 3 * searches);
    }

    void filtersWhatItLooksThrough()
    {
        for (const auto &[member, type, version, found] : {std::tuple(-1, u"txt"_s, QString(), QList{11, 12}),
                                                           {1, u"All"_s, QString(), {13}},
                                                           {-1, u"All"_s, u"1"_s, {11, 13}},
                                                           {0, u"txt"_s, u"2"_s, {12}}}) {
            click(m_window->optSearchClient(member < 0 ? 0 : 2));
            m_window->lstSearchClient->setCurrentIndex(member);
            m_window->lstSearchFileType->setText(type);
            click(m_window->optSearchVersion(version.isNull() ? 0 : 1));
            m_window->txtSpecifyVersion->setText(version);
            search(u"annual"_s);
            QList<int> ids;
            for (const QString &line : lines(*m_window->lstViewResults, 3))
                ids << line.first(2).toInt();
            QCOMPARE(ids, found);
        }
    }

    // First whether it may begin, then for the member that is to be specified, which a search by summary wants too.
    void asksBeforeItBegins()
    {
        BoxAnswers boxes({QMessageBox::No, QMessageBox::Yes, QMessageBox::Ok, QMessageBox::Ok});
        click(m_window->cmdSearch);
        click(m_window->optSearchClient(2));
        click(m_window->cmdSearch);
        click(m_window->optSearchSummary(0));
        click(m_window->cmdSearch);
        QCOMPARE(columns(), 0);
        QCOMPARE(boxes.seen[0].whole(), u"Sarnet Content Search Warning: Warning this operation could take some time "
                                        "to complete.\r\nDo you want to continue (NoIcon, Yes|No)"_s);
        for (const SeenBox &refusal : boxes.seen.sliced(2))
            QCOMPARE(refusal.whole(), u"Error: Please select a client (Critical, Ok)"_s);
    }

    void whatFailsEndsInTheReport()
    {
        search(u"annual"_s);
        m_window->lstSearchFileType->append({u"o'x"_s});
        for (const auto &[type, version, error] : {std::tuple(u"o'x"_s, QString(), -2147217900),
                                                   {u"All"_s, u"two"_s, -2147217904},
                                                   {u"All"_s, u""_s, -2147217900},
                                                   {u"All"_s, QString(), 76}}) {
            m_window->lstSearchFileType->setText(type);
            m_window->optSearchVersion(version.isNull() ? 0 : 1)->setValue(true);
            m_window->txtSpecifyVersion->setText(version);
            if (error == 76)
                QVERIFY(QDir(m_folder->path(u"temp/Search"_s)).removeRecursively());
            search(u"annual"_s);
            QCOMPARE(m_errors->takeNumber(), error);
            QCOMPARE(m_window->lstViewResults->ListItems.Count(), 3); // what was found before
            QCOMPARE(columns(), 3);
        }
    }

    void aHitIsOpenedInItsProgram()
    {
        Launches launches;
        desktop::ListView &list = *m_window->lstViewResults;
        QTest::keyClick(&list, Qt::Key_Return); // the key asks for a line first
        desktop::guarded([this] { m_window->lstViewResults_DblClick(); });
        QCOMPARE(m_errors->takeNumber(), 91);
        search(u"annual"_s);
        doubleClick(list, 2);
        const QString copy = m_folder->path(u"temp/minutes.txt"_s);
        QCOMPARE(contentOf(copy), QByteArray("The annual meeting, O'Hara"));
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(launches.paths, (QStringList{copy, m_folder->path(u"temp/plan.doc"_s)}));
        QVERIFY(QDir(m_folder->path(u"temp"_s)).removeRecursively());
        doubleClick(list, 1);
        QCOMPARE(m_errors->takeNumber(), 76);
        QVERIFY(QDir(m_folder->folder()).mkdir(u"temp"_s));
        m_folder->execute("DELETE FROM Attachments");
        doubleClick(list, 1);
        QCOMPARE(m_errors->takeNumber(), 3021);
    }

private:
    void search(const QString &phrase)
    {
        BoxAnswers boxes({QMessageBox::Yes});
        m_window->txtSearchString->setText(phrase);
        click(m_window->cmdSearch);
    }
    int columns() const { return m_window->lstViewResults->ColumnHeaders.Count(); }

    std::optional<frmFindInfo> m_window;
};

QTEST_MAIN(tst_Find)
#include "tst_find.moc"
