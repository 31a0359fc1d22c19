#include "platform/desktop/MdiForm.h"
#include "search/frmFindInfo.h"
#include "support/DataStoreFolder.h"
#include "support/Dialogs.h"
#include "support/Launches.h"

#include <QMdiSubWindow>

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

QStringList lines(const desktop::ListView &list)
{
    QStringList all;
    for (int index = 1; index <= list.ListItems.Count(); ++index)
        all << list.ListItems(index).Text() + u'|' + list.ListItems(index).SubItems(1) + u'|' +
                   list.ListItems(index).SubItems(2);
    return all;
}

QStringList itemsOf(const QComboBox &box)
{
    QStringList items;
    for (int index = 0; index < box.count(); ++index)
        items << box.itemText(index);
    return items;
}

void click(QAbstractButton *button)
{
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

void doubleClick(desktop::ListView &list, int index)
{
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(&list.ListItems(index)).center());
}

} // namespace

class tst_Find : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_folder.emplace(DataStoreFolder::Content::Empty);
        m_folder->execute(rows);
    }

    void offersMembersAndFileTypes()
    {
        CaughtErrors errors;
        frmFindInfo window;
        window.Show();
        QCOMPARE(itemsOf(*window.lstSearchClient), (QStringList{u"Ann  B  Cole"_s, u"Dan    O'Hara"_s}));
        QCOMPARE(window.lstSearchClient->ListIndex(), -1);
        QStringList types = itemsOf(*window.lstSearchFileType);
        QCOMPARE(types.takeFirst(), u"All"_s);
        types.sort();
        QCOMPARE(types, (QStringList{u"doc"_s, u"txt"_s}));
        QCOMPARE(window.lstSearchFileType->Text(), u"All"_s);
        QVERIFY(window.optSearchClient(0)->Value());
        QVERIFY(!window.optSearchClient(1)->isEnabled());
    }

    void withAMemberTheCurrentOneCanBeSearched()
    {
        CaughtErrors errors;
        frmFindInfo window;
        window.MemberId = u"7"_s;
        window.Show();
        click(window.optSearchClient(1));
        QCOMPARE(window.contentStatement(), u"SELECT * FROM Attachments WHERE MemberId = 7"_s);
    }

    void choicesEnableWhatBelongsToThem()
    {
        CaughtErrors errors;
        frmFindInfo window;
        window.Show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QVERIFY(!window.lstSearchClient->isEnabled() && !window.txtSpecifyVersion->isEnabled());
        click(window.optSearchVersion(1));
        click(window.optSearchClient(2));
        QVERIFY(window.lstSearchClient->isEnabled() && window.txtSpecifyVersion->isEnabled());
        QTest::keyClick(window.optSearchClient(2), Qt::Key_Up); // over the one that cannot be chosen
        click(window.optSearchVersion(0));
        QVERIFY(window.optSearchClient(0)->Value());
        QVERIFY(!window.lstSearchClient->isEnabled() && !window.txtSpecifyVersion->isEnabled());

        click(window.optSearchSummary(0));
        click(window.optSearchExactPhrase(0));
        QVERIFY(window.optSearchExactPhrase(0)->Value());
        click(window.optSearchSummary(1));
        QVERIFY(window.optSearchExactPhrase(1)->Value());
        QVERIFY(!window.optSearchExactPhrase(0)->isEnabled());
    }

    void statements_data()
    {
        QTest::addColumn<int>("member"); // the item, -1 for all members
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("version"); // empty for all
        QTest::addColumn<QString>("filters");
        QTest::newRow("all") << -1 << u"All"_s << QString() << QString();
        QTest::newRow("member") << 1 << u"All"_s << QString() << u"MemberId = 7"_s;
        QTest::newRow("type") << -1 << u"doc"_s << QString() << u"AttachmentExtension = 'doc'"_s;
        QTest::newRow("version") << -1 << u"All"_s << u"2"_s << u"AttachmentVersion = 2"_s;
        QTest::newRow("each") << 0 << u"txt"_s << u"x"_s
                              << u"MemberId = 4 AND AttachmentExtension = 'txt' AND AttachmentVersion = x"_s;
    }
    void statements()
    {
        QFETCH(int, member);
        QFETCH(QString, type);
        QFETCH(QString, version);
        QFETCH(QString, filters);
        CaughtErrors errors;
        frmFindInfo window;
        window.Show();
        window.optSearchClient(member < 0 ? 0 : 2)->setValue(true);
        window.lstSearchClient->setCurrentIndex(member);
        window.lstSearchFileType->setText(type);
        window.optSearchVersion(version.isEmpty() ? 0 : 1)->setValue(true);
        window.txtSpecifyVersion->setText(version);
        const auto behind = [&filters](const QString &joint) { return filters.isEmpty() ? filters : joint + filters; };
        QCOMPARE(window.contentStatement(), u"SELECT * FROM Attachments"_s + behind(u" WHERE "_s));
        const QString summary = u"SELECT * FROM Attachments WHERE AttachmentDescription "_s;
        QCOMPARE(window.summaryStatement(u"it's"_s), summary + u"like '%it's%'"_s + behind(u" AND "_s));
        window.optSearchSummary(0)->setValue(true);
        window.optSearchExactPhrase(0)->setValue(true);
        QCOMPARE(window.summaryStatement(u"it's"_s), summary + u"= 'it's'"_s + behind(u" AND "_s));
    }

    void finds_data()
    {
        QTest::addColumn<QString>("phrase");
        QTest::addColumn<QStringList>("hits");
        const QString first = u"11|minutes.txt|1"_s;
        const QString second = u"12|minutes.txt|2"_s;
        const QString plan = u"13|plan.doc|1"_s;
        QTest::newRow("in any case") << u"Annual M"_s << QStringList{first, second};
        QTest::newRow("in quotes") << u"\"the annual\""_s << QStringList{first, second};
        QTest::newRow("apostrophe") << u"o'h"_s << QStringList{second};
        QTest::newRow("two quotes") << u"\"\""_s << QStringList{plan};
        QTest::newRow("empty") << QString() << QStringList{first, second, plan, u"14|photo|"_s};
        QTest::newRow("nowhere") << u"quarterly"_s << QStringList();
    }
    // A second search adds its columns to the first one's and takes its lines away.
    void finds()
    {
        QFETCH(QString, phrase);
        QFETCH(QStringList, hits);
        CaughtErrors errors;
        frmFindInfo window;
        window.Show();
        search(window, u"annual"_s);
        QCOMPARE(window.lstViewResults->ListItems.Count(), 3);
        search(window, phrase);
        QCOMPARE(lines(*window.lstViewResults), hits);
        QStringList headers;
        for (int index = 1; index <= window.lstViewResults->ColumnHeaders.Count(); ++index)
            headers << window.lstViewResults->ColumnHeaders(index).Text;
        QCOMPARE(headers, (QStringList{u"File Id"_s, u"File Name"_s, u"File Version"_s, u"File Id"_s, u"File Name"_s,
                                       u"File Version"_s}));
        QVERIFY(QDir(m_folder->path(u"temp/Search"_s)).isEmpty());
    }

    void filtersWhatItLooksThrough()
    {
        CaughtErrors errors;
        frmFindInfo window;
        window.Show();
        click(window.optSearchClient(2));
        QTest::keyClicks(window.lstSearchClient, u"Ann"_s);
        window.lstSearchFileType->setText(u"txt"_s);
        click(window.optSearchVersion(1));
        QTest::keyClicks(window.txtSpecifyVersion, u"2"_s);
        search(window, u"annual"_s);
        QCOMPARE(lines(*window.lstViewResults), QStringList(u"12|minutes.txt|2"_s));
    }

    void warnsBeforeItBegins()
    {
        CaughtErrors errors;
        frmFindInfo window;
        window.Show();
        BoxAnswers boxes({QMessageBox::No});
        click(window.cmdSearch);
        QCOMPARE(boxes.seen.size(), 1);
        QCOMPARE(boxes.seen[0].title, u"Sarnet Content Search Warning"_s);
        QCOMPARE(boxes.seen[0].text,
                 u"Warning this operation could take some time to complete.\r\nDo you want to continue"_s);
        QCOMPARE(boxes.seen[0].icon, QMessageBox::NoIcon);
        QCOMPARE(boxes.seen[0].buttons, QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(window.lstViewResults->ColumnHeaders.Count(), 0);
    }

    void asksForTheMemberThatIsToBeSpecified()
    {
        CaughtErrors errors;
        frmFindInfo window;
        window.Show();
        click(window.optSearchClient(2));
        BoxAnswers boxes({QMessageBox::Yes, QMessageBox::Ok, QMessageBox::Ok});
        click(window.cmdSearch);
        QCOMPARE(boxes.seen[1].text, u"Please select a client"_s);
        QCOMPARE(boxes.seen[1].title, u"Error"_s);
        QCOMPARE(boxes.seen[1].icon, QMessageBox::Critical);
        click(window.optSearchSummary(0));
        click(window.cmdSearch);
        QCOMPARE(boxes.seen[2].text, u"Please select a client"_s);
        QCOMPARE(window.lstViewResults->ColumnHeaders.Count(), 0);
    }

    // Not even a statement that is broken shows itself.
    void aSummarySearchLeavesTheListAsItWas()
    {
        CaughtErrors errors;
        BoxAnswers boxes({QMessageBox::Yes});
        frmFindInfo window;
        window.Show();
        window.txtSearchString->setText(u"plan"_s);
        click(window.cmdSearch);
        window.txtSearchString->setText(u"annual"_s);
        window.optSearchSummary(0)->setValue(true);
        for (const QString &phrase : {u"Notes"_s, u"it's"_s, QString()}) {
            window.txtSearchString->setText(phrase);
            click(window.cmdSearch);
            QCOMPARE(window.lstViewResults->ColumnHeaders.Count(), 3);
            QCOMPARE(window.lstViewResults->ListItems.Count(), 0);
        }
    }

    void whatFailsEndsInTheReport_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("version"); // Null for all
        QTest::addColumn<int>("error");
        QTest::newRow("apostrophe in the file type") << u"o'x"_s << QString() << -2147217900;
        QTest::newRow("a word for the version") << u"All"_s << u"two"_s << -2147217904;
        QTest::newRow("two words") << u"All"_s << u"no number"_s << -2147217900;
        QTest::newRow("no version") << u"All"_s << u""_s << -2147217900;
        QTest::newRow("no folder") << u"All"_s << QString() << 76;
    }
    void whatFailsEndsInTheReport()
    {
        QFETCH(QString, type);
        QFETCH(QString, version);
        QFETCH(int, error);
        m_folder->execute("INSERT INTO Attachments (AttachmentsName, AttachmentExtension, Attachments) VALUES"
                          " ('x', 'o''x', x'00')");
        CaughtErrors errors;
        frmFindInfo window;
        window.Show();
        search(window, u"annual"_s);
        window.lstSearchFileType->setText(type);
        QCOMPARE(window.lstSearchFileType->Text(), type);
        window.optSearchVersion(version.isNull() ? 0 : 1)->setValue(true);
        window.txtSpecifyVersion->setText(version);
        if (error == 76)
            QVERIFY(QDir(m_folder->path(u"temp/Search"_s)).removeRecursively());
        search(window, u"annual"_s);
        QCOMPARE(errors.takeNumber(), error);
        QCOMPARE(window.lstViewResults->ListItems.Count(), 3); // what was found before
        QCOMPARE(window.lstViewResults->ColumnHeaders.Count(), 3);
    }

    void aHitIsOpenedInItsProgram()
    {
        CaughtErrors errors;
        Launches launches;
        frmFindInfo window;
        window.Show();
        search(window, u"annual"_s);
        doubleClick(*window.lstViewResults, 2);
        const QString copy = m_folder->path(u"temp/minutes.txt"_s);
        QFile file(copy);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("The annual meeting, O'Hara"));
        QTest::keyClick(window.lstViewResults, Qt::Key_Down);
        QTest::keyClick(window.lstViewResults, Qt::Key_Return);
        QCOMPARE(launches.paths, (QStringList{copy, m_folder->path(u"temp/plan.doc"_s)}));
    }

    void openingWhatIsNotThereEndsInTheReport()
    {
        CaughtErrors errors;
        frmFindInfo window;
        window.Show();
        QTest::mouseDClick(window.lstViewResults->viewport(), Qt::LeftButton, {}, {10, 10}); // an empty list
        QCOMPARE(errors.takeNumber(), 91);
        QTest::keyClick(window.lstViewResults, Qt::Key_Return); // the key alone asks for a line first
        search(window, u"annual"_s);
        QVERIFY(QDir(m_folder->path(u"temp"_s)).removeRecursively());
        doubleClick(*window.lstViewResults, 1);
        QCOMPARE(errors.takeNumber(), 76);
        QVERIFY(QDir(m_folder->folder()).mkdir(u"temp"_s));
        m_folder->execute("DELETE FROM Attachments");
        doubleClick(*window.lstViewResults, 1);
        QCOMPARE(errors.takeNumber(), 3021);
    }

    // With its border and title bar, whatever its contents would like and whoever pulls at it.
    void keepsItsSizeInTheFrame()
    {
        CaughtErrors errors;
        desktop::MdiForm frame(u"Frame");
        frame.resize(1000, 760);
        frame.Show();
        auto *window = desktop::showNew<frmFindInfo>();
        auto *host = qobject_cast<QMdiSubWindow *>(window->parentWidget());
        const QSize size(385, 624);
        QCOMPARE(host->size(), size);
        host->resize(700, 400);
        QTRY_COMPARE(host->size(), size);
        host->showMaximized();
        QTRY_COMPARE(host->size(), size);
        host->showMinimized();
        host->showNormal();
        QTRY_COMPARE(host->size(), size);
        for (int searches = 0; searches < 2; ++searches)
            search(*window, u"annual"_s);
        QCOMPARE(host->size(), size);
        QPointer<frmFindInfo> open(window);
        click(window->cmdCancel);
        QTRY_VERIFY(!open);
    }

    void tabFollowsTheEye()
    {
        CaughtErrors errors;
        frmFindInfo window;
        window.Show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        click(window.optSearchClient(2));
        click(window.optSearchVersion(1));
        window.txtSearchString->setFocus();
        QStringList stops;
        do {
            stops << QApplication::focusWidget()->objectName();
            QVERIFY2(!QApplication::focusWidget()->accessibleName().isEmpty() ||
                         qobject_cast<QAbstractButton *>(QApplication::focusWidget()),
                     qPrintable(stops.constLast()));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (QApplication::focusWidget() != window.txtSearchString && stops.size() < 20);
        QCOMPARE(stops, (QStringList{u"txtSearchString"_s, u"optSearchSummary(1)"_s, u"optSearchExactPhrase(1)"_s,
                                     u"optSearchClient(2)"_s, u"lstSearchClient"_s, u"lstSearchFileType"_s,
                                     u"optSearchVersion(1)"_s, u"txtSpecifyVersion"_s, u"lstSearchCategory"_s,
                                     u"cmdSearch"_s, u"cmdCancel"_s, u"lstViewResults"_s}));
    }

private:
    static void search(frmFindInfo &window, const QString &phrase)
    {
        BoxAnswers boxes({QMessageBox::Yes});
        window.txtSearchString->setText(phrase);
        click(window.cmdSearch);
    }

    std::optional<DataStoreFolder> m_folder;
};

QTEST_MAIN(tst_Find)
#include "tst_find.moc"
