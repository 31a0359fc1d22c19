#include "dossier/OpenDossier.h"
#include "support/Drop.h"
#include "support/Launches.h"
#include "support/UnitedStates.h"

using namespace Qt::Literals::StringLiterals;

class tst_Attachments : public StoreTest
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        open(DataFolder::Content::Empty,
             "INSERT INTO MemberInformation (MemberId, LastName) VALUES (1, 'Cole'), (2, 'Dean')");
    }
    void cleanup() { close(); }

    void versionsCountByNameOverAllMembers()
    {
        m_folder->execute("INSERT INTO Attachments (MemberId, AttachmentsName, AttachmentVersion) VALUES"
                          " (2, 'A.TXT', 4), (2, 'a.txt', 5), (2, 'b.txt', 9)");
        const QString path = m_folder->write(u"a.txt"_s, "one");
        OpenDossier dossier;
        FileAnswers files({path, path, m_folder->write(u"it's.txt"_s, "x"), path, m_folder->write(u"b.txt"_s, "x")});
        BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok});
        AttachmentsTab &tab = *dossier->Frame4;
        tab.butAddAttachement->click();
        QCOMPARE(files.title, u"OPEN FILE"_s);
        QCOMPARE(files.filters, (QStringList{u"All files (*)"_s, u"DOC files (*.doc)"_s, u"PDF files (*.pdf)"_s}));
        QCOMPARE(boxes.seen[0].whole(), u"Tolmark Lite: Attachment successfully uploaded (Information, Ok)"_s);
        tab.butAddAttachement->click();
        QCOMPARE(versions(tab), QStringList(u"a.txt 7"_s)); // the current one alone
        tab.Check1->click();
        QCOMPARE(versions(tab), (QStringList{u"a.txt 7"_s, u"a.txt 6"_s}));
        QCOMPARE(m_folder->rows("SELECT MemberId, AttachmentsName, AttachmentVersion, hex(Attachments), "
                                "AttachmentsDate IS NULL FROM Attachments WHERE AttachmentsId > 3"),
                 (QStringList{u"1|a.txt|6|6F6E6500|0"_s, u"1|a.txt|7|6F6E6500|0"_s}));
        m_folder->execute("UPDATE Attachments SET AttachmentVersion = 32767 WHERE MemberId = 1; UPDATE Attachments SET "
                          "AttachmentVersion = 2147483647 WHERE MemberId = 2 AND AttachmentsName = 'b.txt'");
        for (const int error : {-2147217900, 6, 6}) {
            tab.butAddAttachement->click();
            QCOMPARE(m_errors->takeNumber(), error);
        }
        QCOMPARE(m_folder->row("SELECT count(*) FROM Attachments"), u"5"_s);
        QCOMPARE(m_folder->row("PRAGMA integrity_check"), u"ok"_s);
    }

    void namesStandInDescendingOrderWhileOnlyCurrentVersionsShow()
    {
        const UnitedStates region;
        m_folder->execute("INSERT INTO Attachments (MemberId, AttachmentsName, AttachmentVersion, AttachmentsDate) "
                          "VALUES (1, 'b', 2, '2026-01-01 00:00:00'), (1, 'c', 1, NULL), (1, 'b', 1, '2026-02-01 "
                          "10:00:00'), (1, NULL, 1, NULL)");
        OpenDossier dossier;
        const desktop::ListView &list = *dossier->Frame4->lstAttachement;
        QCOMPARE(lines(list), (QStringList{u"c||1"_s, u"b|2/1/2026 10:00:00 AM|2"_s, u"||1"_s}));
        QCOMPARE(list.ListItems(2).Tag, u"3"_s); // version, day and key are the highest each by itself
        QVERIFY(list.ListItems(3).Tag.isEmpty());
    }

    // What the process reads while a dossier with 20 MB of attachments opens, and while one more is added.
    void openingAndAddingReadNoContent()
    {
        m_folder->execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20) INSERT INTO "
                          "Attachments (MemberId, AttachmentsName, AttachmentVersion, Attachments) SELECT 1, 'a.txt', "
                          "i, randomblob(1000000) FROM n");
        const QString path = m_folder->write(u"a.txt"_s, "one");
        FileAnswers files({path});
        BoxAnswers boxes({QMessageBox::Ok});
        const qint64 before = bytesRead();
        QVERIFY(before > 0);
        OpenDossier dossier;
        dossier->Frame4->Check1->click();
        QCOMPARE(dossier->Frame4->lstAttachement->ListItems.Count(), 20);
        dossier->Frame4->butAddAttachement->click();
        QCOMPARE(dossier->Frame4->lstAttachement->ListItems(1).SubItems(2), u"21"_s);
        const qint64 read = bytesRead() - before;
        QVERIFY2(read < 5'000'000, qPrintable(QString::number(read)));
    }

    void unusualFilesComeBackWithOneByteMore()
    {
        const std::pair<QString, QByteArray> files[] = {{u"empty.bin"_s, {}},
                                                        {u"zeros.bin"_s, QByteArray("\0a\0\0", 4)},
                                                        {u"report\\#1 %41.TXT"_s, "y"},
                                                        {u".profile"_s, "z"},
                                                        {u"Grüße 日本.txt"_s, "x"}};
        const QString saved = m_folder->path(u"saved"_s);
        m_folder->write(u"SAVED"_s, "another's");
        for (const auto &[name, content] : files) {
            m_folder->execute("DELETE FROM Attachments");
            OpenDossier dossier;
            AttachmentsTab &tab = *dossier->Frame4;
            drop({QUrl::fromLocalFile(m_folder->write(name, content))}, tab);
            QTRY_COMPARE(tab.lstAttachement->ListItems.Count(), 1);
            select(*tab.lstAttachement, 1);
            Launches launches;
            dossier.choose("MnuView");
            QCOMPARE(launches.paths, QStringList(m_folder->path(u"temp/"_s + name)));
            QCOMPARE(contentOf(launches.paths[0]), content + '\0');
            FileAnswers answers({saved});
            dossier.choose("MnuSaveAs");
            QCOMPARE(answers.name, name);
            QCOMPARE(contentOf(saved), content + '\0');
            QVERIFY(QFile::remove(saved));
        }
        QCOMPARE(contentOf(m_folder->path(u"SAVED"_s)), "another's");
    }

    void aLongerFileKeepsItsTailAndTheTempFolderIsMade()
    {
        m_folder->execute("INSERT INTO Attachments (MemberId, AttachmentsName, AttachmentVersion, Attachments) VALUES"
                          " (1, 'a.txt', 1, x'6C6F6E67657200'), (1, 'a.txt', 2, x'78797A00')");
        QVERIFY(QDir(m_folder->path(u"temp"_s)).removeRecursively());
        Launches launches;
        OpenDossier dossier;
        AttachmentsTab &tab = *dossier->Frame4;
        tab.Check1->click();
        for (int line : {2, 1}) {
            select(*tab.lstAttachement, line);
            dossier.choose("MnuView");
        }
        QCOMPARE(contentOf(m_folder->path(u"Temp/a.txt"_s)), QByteArray("xyz\0er\0", 7));
    }

    // Viewing ends in the report, saving silently.
    void whatIsNotThereIsNeitherSavedNorViewed()
    {
        m_folder->execute("INSERT INTO Attachments (MemberId, AttachmentsName, AttachmentVersion, Attachments) VALUES"
                          " (1, 'a.txt', 1, x'00'), (1, 'it''s', 1, x'00'), (1, 'null', 1, NULL)");
        BoxAnswers none;
        OpenDossier dossier;
        AttachmentsTab &tab = *dossier->Frame4;
        const auto viewed = [&] {
            dossier.choose("MnuView");
            return m_errors->takeNumber();
        };
        tab.lstAttachement->setCurrentItem(nullptr);
        dossier.choose("MnuSaveAs");
        QCOMPARE(viewed(), 91);
        select(*tab.lstAttachement, 2);
        QCOMPARE(tab.lstAttachement->ListItems(2).Text(), u"it's"_s); // breaks the statement
        dossier.choose("MnuSaveAs");
        QCOMPARE(viewed(), -2147217900);
        select(*tab.lstAttachement, 3);
        FileAnswers files({QString(), QString()});
        dossier.choose("MnuSaveAs");    // cancelled
        tab.butAddAttachement->click(); // this too
        QCOMPARE(m_folder->row("SELECT count(*) FROM Attachments"), u"3"_s);
        QVERIFY(!QFile::exists(m_folder->path(u"a.txt"_s)));
        QDir(m_folder->folder()).mkpath(u"temp/a.txt"_s);
        QCOMPARE(viewed(), 75); // the copy cannot be written
        QDir(m_folder->folder()).rmdir(u"temp/a.txt"_s);
        m_folder->execute("DELETE FROM Attachments");
        QCOMPARE(viewed(), 3021); // the row is gone
    }

    void aStoredNameLeadsNowhereElse()
    {
        QVERIFY(QFile::link(m_folder->file(), m_folder->path(u"temp/link"_s)));
        m_folder->execute("INSERT INTO Attachments (MemberId, AttachmentsName, AttachmentVersion, Attachments) VALUES"
                          " (1, 'link', 1, x'00'), (1, '../evil.txt', 1, x'00'), (1, '../Tolmark.mdb', 1, x'00')");
        Launches launches;
        OpenDossier dossier;
        for (const int line : {1, 2, 3}) {
            select(*dossier->Frame4->lstAttachement, line);
            dossier.choose("MnuView");
            QCOMPARE(m_errors->takeNumber(), 75);
            if (line > 1)
                dossier.choose("MnuSaveAs"); // no dialog suggests the name
        }
        QCOMPARE(dossier->Frame4->lstAttachement->ListItems(1).Text(), u"link"_s);
        QCOMPARE(launches.paths, QStringList());
        QVERIFY(!QFile::exists(m_folder->path(u"evil.txt"_s)));
        QCOMPARE(m_folder->row("PRAGMA integrity_check"), u"ok"_s);
    }

    void severalFilesAreDroppedAndWhatCannotBeTakenGivesTheMessage()
    {
        m_folder->write(u"it's.txt"_s, "x");
        m_folder->write(u"GONE.txt"_s, "x");
        QDir(m_folder->folder()).mkdir(u"folder"_s);
        OpenDossier dossier;
        AttachmentsTab &tab = *dossier->Frame4;
        {
            BoxAnswers none;
            drop({QUrl::fromLocalFile(m_folder->write(u"a.txt"_s, "a")),
                  QUrl::fromLocalFile(m_folder->write(u"b.txt"_s, "b"))},
                 tab);
            QTRY_COMPARE(versions(tab), (QStringList{u"b.txt 1"_s, u"a.txt 1"_s}));
        }
        int added = 2;
        // What follows a good file; a text alone. The missing file has its like beside it.
        for (const QString &second : {u"just a text"_s, u"folder"_s, u"gone.txt"_s, u"it's.txt"_s}) {
            BoxAnswers boxes({QMessageBox::Ok});
            if (second == u"just a text") {
                drop({}, tab, second);
            } else {
                const QString good = m_folder->write(QString::number(++added), "a");
                drop({QUrl::fromLocalFile(good), QUrl::fromLocalFile(m_folder->path(second))}, tab);
            }
            QTRY_COMPARE(boxes.seen.size(), 1);
            QCOMPARE(boxes.seen[0].text, u"Currently you can't drag and drop straight from that application\r\n"
                                         "Try dragging and dropping from the desktop then to Brenlow Premium."_s);
            QCOMPARE(boxes.seen[0].icon, QMessageBox::Information);
            QCOMPARE(tab.lstAttachement->ListItems.Count(), added); // the list was loaded again
            QCOMPARE(m_folder->row("SELECT count(*) FROM Attachments"), QString::number(added));
        }
    }

private:
    // By system calls, since the process began.
    static qint64 bytesRead()
    {
        const QByteArray counts = contentOf(u"/proc/self/io"_s);
        return counts.startsWith("rchar: ") ? counts.mid(7, counts.indexOf('\n') - 7).toLongLong() : 0;
    }

    static QStringList versions(const AttachmentsTab &tab)
    {
        QStringList all;
        for (int index = 1; index <= tab.lstAttachement->ListItems.Count(); ++index)
            all << tab.lstAttachement->ListItems(index).Text() + u' ' +
                       tab.lstAttachement->ListItems(index).SubItems(2);
        return all;
    }

    // A drag that enters the list and is dropped on it.
    static void drop(const QList<QUrl> &urls, AttachmentsTab &tab, const QString &text = {})
    {
        QMimeData data;
        if (!urls.isEmpty())
            data.setUrls(urls);
        if (!text.isEmpty())
            data.setText(text);
        // What is dropped stays where it came from.
        QCOMPARE(dropOn(*tab.lstAttachement->viewport(), data), Qt::CopyAction);
    }
};

QTEST_MAIN(tst_Attachments)
#include "tst_attachments.moc"
