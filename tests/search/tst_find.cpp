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
        m_errors.emplace();
        m_window.emplace();
        m_window->Show();
    }
    void cleanup()
    {
        m_window.reset();
        m_errors.reset();
        m_folder.reset();
    }

    void offersMembersAndFileTypes()
    {
        QCOMPARE(itemsOf(*m_window->lstSearchClient), (QStringList{u"Ann  B  Cole"_s, u"Dan    O'Hara"_s}));
        QCOMPARE(m_window->lstSearchClient->ListIndex(), -1);
        QStringList types = itemsOf(*m_window->lstSearchFileType);
        QCOMPARE(types.takeFirst(), u"All"_s);
        types.sort();
        QCOMPARE(types, (QStringList{u"doc"_s, u"txt"_s}));
        QCOMPARE(m_window->lstSearchFileType->Text(), u"All"_s);
    }

    void onlyWithAMemberTheCurrentOneCanBeSearched()
    {
        QVERIFY(m_window->optSearchClient(0)->Value());
        QVERIFY(!m_window->optSearchClient(1)->isEnabled());
        frmFindInfo window;
        window.MemberId = u"7"_s;
        window.Show();
        click(window.optSearchClient(1));
        QCOMPARE(window.contentStatement(), u"SELECT * FROM Attachments WHERE MemberId = 7"_s);
    }

    void choicesEnableWhatBelongsToThem()
    {
        const auto isSpecified = [this] {
            return std::pair(m_window->lstSearchClient->isEnabled(), m_window->txtSpecifyVersion->isEnabled());
        };
        QCOMPARE(isSpecified(), std::pair(false, false));
        for (const auto &[member, version] : {std::pair(true, false), {true, true}, {false, true}, {false, false}}) {
            click(m_window->optSearchClient(member ? 2 : 0));
            click(m_window->optSearchVersion(version ? 1 : 0));
            QCOMPARE(isSpecified(), std::pair(member, version));
        }
        click(m_window->optSearchSummary(0));
        click(m_window->optSearchExactPhrase(0));
        QVERIFY(m_window->optSearchExactPhrase(0)->Value());
        click(m_window->optSearchSummary(1));
        QVERIFY(m_window->optSearchExactPhrase(1)->Value());
        QVERIFY(!m_window->optSearchExactPhrase(0)->isEnabled());
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
        m_window->optSearchClient(member < 0 ? 0 : 2)->setValue(true);
        m_window->lstSearchClient->setCurrentIndex(member);
        m_window->lstSearchFileType->setText(type);
        m_window->optSearchVersion(version.isEmpty() ? 0 : 1)->setValue(true);
        m_window->txtSpecifyVersion->setText(version);
        const auto behind = [&filters](const QString &joint) { return filters.isEmpty() ? filters : joint + filters; };
        QCOMPARE(m_window->contentStatement(), u"SELECT * FROM Attachments"_s + behind(u" WHERE "_s));
        const QString summary = u"SELECT * FROM Attachments WHERE AttachmentDescription "_s;
        QCOMPARE(m_window->summaryStatement(u"it's"_s), summary + u"like '%it's%'"_s + behind(u" AND "_s));
        m_window->optSearchSummary(0)->setValue(true);
        m_window->optSearchExactPhrase(0)->setValue(true);
        QCOMPARE(m_window->summaryStatement(u"it's"_s), summary + u"= 'it's'"_s + behind(u" AND "_s));
    }

    void finds_data()
    {
        QTest::addColumn<QString>("phrase");
        QTest::addColumn<QStringList>("found");
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
        search(u"annual"_s);
        QCOMPARE(hits(), 3);
        search(phrase);
        QTEST(lines(*m_window->lstViewResults), "found");
        QStringList headers;
        for (int index = 1; index <= columns(); ++index)
            headers << m_window->lstViewResults->ColumnHeaders(index).Text;
        const QStringList three{u"File Id"_s, u"File Name"_s, u"File Version"_s};
        QCOMPARE(headers, three + three);
        QVERIFY(QDir(m_folder->path(u"temp/Search"_s)).isEmpty());
    }

    void filtersWhatItLooksThrough()
    {
        click(m_window->optSearchClient(2));
        QTest::keyClicks(m_window->lstSearchClient, u"Ann"_s);
        m_window->lstSearchFileType->setText(u"txt"_s);
        click(m_window->optSearchVersion(1));
        QTest::keyClicks(m_window->txtSpecifyVersion, u"2"_s);
        search(u"annual"_s);
        QCOMPARE(lines(*m_window->lstViewResults), QStringList(u"12|minutes.txt|2"_s));
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
        const SeenBox &warning = boxes.seen[0];
        QCOMPARE(warning.title, u"Sarnet Content Search Warning"_s);
        QCOMPARE(warning.text,
                 u"Warning this operation could take some time to complete.\r\nDo you want to continue"_s);
        QCOMPARE(warning.icon, QMessageBox::NoIcon);
        QCOMPARE(warning.buttons, QMessageBox::Yes | QMessageBox::No);
        for (const SeenBox &refusal : boxes.seen.sliced(2)) {
            QCOMPARE(refusal.text, u"Please select a client"_s);
            QCOMPARE(refusal.title, u"Error"_s);
            QCOMPARE(refusal.icon, QMessageBox::Critical);
        }
    }

    // Not even a statement that is broken shows itself.
    void aSummarySearchLeavesTheListAsItWas()
    {
        search(u"annual"_s);
        m_window->optSearchSummary(0)->setValue(true);
        for (const QString &phrase : {u"Notes"_s, u"it's"_s, QString()}) {
            m_window->txtSearchString->setText(phrase);
            click(m_window->cmdSearch);
            QCOMPARE(columns(), 3);
            QCOMPARE(hits(), 3);
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
        search(u"annual"_s);
        m_window->lstSearchFileType->append({u"o'x"_s});
        m_window->lstSearchFileType->setText(type);
        QCOMPARE(m_window->lstSearchFileType->Text(), type);
        m_window->optSearchVersion(version.isNull() ? 0 : 1)->setValue(true);
        m_window->txtSpecifyVersion->setText(version);
        if (error == 76)
            QVERIFY(QDir(m_folder->path(u"temp/Search"_s)).removeRecursively());
        search(u"annual"_s);
        QCOMPARE(m_errors->takeNumber(), error);
        QCOMPARE(hits(), 3); // what was found before
        QCOMPARE(columns(), 3);
    }

    void aHitIsOpenedInItsProgram()
    {
        Launches launches;
        search(u"annual"_s);
        doubleClick(*m_window->lstViewResults, 2);
        const QString copy = m_folder->path(u"temp/minutes.txt"_s);
        QFile file(copy);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("The annual meeting, O'Hara"));
        QTest::keyClick(m_window->lstViewResults, Qt::Key_Down);
        QTest::keyClick(m_window->lstViewResults, Qt::Key_Return);
        QCOMPARE(launches.paths, (QStringList{copy, m_folder->path(u"temp/plan.doc"_s)}));
    }

    void openingWhatIsNotThereEndsInTheReport()
    {
        desktop::ListView &list = *m_window->lstViewResults;
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, {10, 10}); // an empty list
        QCOMPARE(m_errors->takeNumber(), 91);
        QTest::keyClick(&list, Qt::Key_Return); // the key alone asks for a line first
        search(u"annual"_s);
        QVERIFY(QDir(m_folder->path(u"temp"_s)).removeRecursively());
        doubleClick(list, 1);
        QCOMPARE(m_errors->takeNumber(), 76);
        QVERIFY(QDir(m_folder->folder()).mkdir(u"temp"_s));
        m_folder->execute("DELETE FROM Attachments");
        doubleClick(list, 1);
        QCOMPARE(m_errors->takeNumber(), 3021);
    }

    // With its border and title bar, whatever its contents would like.
    void keepsItsSizeInTheFrame()
    {
        desktop::MdiForm frame(u"Frame");
        frame.resize(1000, 760);
        frame.Show();
        QPointer<frmFindInfo> window(desktop::showNew<frmFindInfo>());
        auto *host = qobject_cast<QMdiSubWindow *>(window->parentWidget());
        const QSize size(385, 624);
        QCOMPARE(host->size(), size);
        host->resize(700, 400);
        QTRY_COMPARE(host->size(), size);
        click(window->cmdCancel);
        QTRY_VERIFY(!window);
    }

    void tabFollowsTheEye()
    {
        QVERIFY(QTest::qWaitForWindowActive(&*m_window));
        click(m_window->optSearchClient(2));
        click(m_window->optSearchVersion(1));
        m_window->txtSearchString->setFocus();
        QStringList stops;
        do {
            const QWidget *stop = QApplication::focusWidget();
            stops << stop->objectName();
            QVERIFY2(!stop->accessibleName().isEmpty() || qobject_cast<const QAbstractButton *>(stop),
                     qPrintable(stops.constLast()));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (QApplication::focusWidget() != m_window->txtSearchString && stops.size() < 20);
        QCOMPARE(stops, (QStringList{u"txtSearchString"_s, u"optSearchSummary(1)"_s, u"optSearchExactPhrase(1)"_s,
                                     u"optSearchClient(2)"_s, u"lstSearchClient"_s, u"lstSearchFileType"_s,
                                     u"optSearchVersion(1)"_s, u"txtSpecifyVersion"_s, u"lstSearchCategory"_s,
                                     u"cmdSearch"_s, u"cmdCancel"_s, u"lstViewResults"_s}));
    }

private:
    void search(const QString &phrase)
    {
        BoxAnswers boxes({QMessageBox::Yes});
        m_window->txtSearchString->setText(phrase);
        click(m_window->cmdSearch);
    }
    int columns() const { return m_window->lstViewResults->ColumnHeaders.Count(); }
    int hits() const { return m_window->lstViewResults->ListItems.Count(); }

    std::optional<DataStoreFolder> m_folder;
    std::optional<CaughtErrors> m_errors;
    std::optional<frmFindInfo> m_window;
};

QTEST_MAIN(tst_Find)
#include "tst_find.moc"
