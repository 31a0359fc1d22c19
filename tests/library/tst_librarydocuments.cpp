// The documents of the library: their list, the upload with its versions, and the links to persons.
#include "library/OpenLibrary.h"
#include "support/ShownWork.h"
#include "support/StoreTest.h"
#include "support/UnitedStates.h"

using namespace Qt::Literals::StringLiterals;

using Mode = OpenLibrary::Mode;

class tst_LibraryDocuments : public StoreTest
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        open(DataFolder::Content::Empty,
             "INSERT INTO ObjectTbl (ObjectIndex, ObjectParentIndex, ObjectText, ObjectType) VALUES"
             " (2, 1, 'Office', 'Library'), (3, 2, 'Bylaws', 'Catagory')");
    }
    void cleanup() { close(); }

    void allVersionsOfANodeAreListed()
    {
        const UnitedStates region;
        m_folder->execute("INSERT INTO Resources (ObjectIndex, DocumentName, DocumentDate, DocuemntVersion) VALUES"
                          " (2, 'a.txt', '2003-01-06 00:00:00', 1), (3, 'b.txt', NULL, 1), (2, 'a.txt', NULL, 2),"
                          " (2, NULL, NULL, NULL)");
        for (const Mode mode : {Mode::Manager, Mode::Browser}) {
            OpenLibrary library(mode);
            QCOMPARE(library.documents(), QStringList()); // until a node is clicked
            library.press(2);
            QCOMPARE(library.documents(), (QStringList{u"1|1/6/2003|a.txt|1"_s, u"3||a.txt|2"_s, u"4|||"_s}));
            library.press(1);
            QCOMPARE(library.documents(), QStringList());
            QTest::keyClick(&library.tree(), Qt::Key_Down);
            QCOMPARE(library.documents().size(), 3);
        }
        QCOMPARE(m_errors->takeNumber(), 0);
    }

    // From the highest that is there: the number of a row that is gone is given again.
    void versionsCountByNameWithinANode()
    {
        m_folder->execute("INSERT INTO Resources (ObjectIndex, DocumentName, DocuemntVersion) VALUES"
                          " (2, 'A.TXT', 4), (2, 'a.txt', 2), (2, 'b.txt', 9), (2, 'a.txt', 5);"
                          "DELETE FROM Resources WHERE DocuemntVersion = 5");
        const QString path = m_folder->write(u"a.txt"_s, "one");
        OpenLibrary library;
        library.press(2);
        FileAnswers files({path, path, path});
        library.choose("mnuUpLoadDocument");
        QCOMPARE(files.title, u"OPEN FILE"_s);
        QCOMPARE(files.filters, (QStringList{u"All files (*)"_s, u"EXE files (*.exe)"_s, u"COM files (*.com)"_s,
                                             u"BIN files (*.bin )"_s, u"SYS files (*.sys)"_s, u"DLL files (*.dll)"_s}));
        QCOMPARE(library.documents().size(), 3); // the new line shows when the node is clicked again
        library.choose("mnuUpLoadDocument");
        library.press(3);
        library.choose("mnuUpLoadDocument");
        QCOMPARE(m_folder->rows("SELECT ObjectIndex, DocumentName, DocuemntVersion, typeof(DocuemntVersion), "
                                "hex(Document), DocumentDate IS NULL FROM Resources WHERE DocumentId > 4"),
                 (QStringList{u"2|a.txt|5|integer|6F6E6500|0"_s, u"2|a.txt|6|integer|6F6E6500|0"_s,
                              u"3|a.txt|1|integer|6F6E6500|0"_s}));
        library.press(2);
        QCOMPARE(library.documents().size(), 5);
    }

    void aLargeUploadIsToldByItsSteps()
    {
        OpenLibrary library;
        library.press(2);
        FileAnswers files({m_folder->write(u"large.bin"_s, QByteArray(8 << 20, 'x')), m_folder->write(u"a"_s, "x")});
        ShownWork shown;
        desktop::LongWork::interval = std::chrono::hours(1);
        library.choose("mnuUpLoadDocument");
        QCOMPARE(shown.takeTexts(),
                 (QStringList{u"Uploading large.bin: step 1 of 2"_s, u"Uploading large.bin: step 2 of 2"_s}));
        library.choose("mnuUpLoadDocument");
        QCOMPARE(shown.takeTexts(), QStringList());
    }

    void whatCannotBeUploadedEndsTheProgram()
    {
        m_folder->execute("INSERT INTO Resources (ObjectIndex, DocumentName, DocuemntVersion) VALUES"
                          " (1, 'full.txt', 2147483647), (1, 'null.txt', NULL)");
        OpenLibrary library;
        for (const auto &[name, error] : {std::pair(QString(), 424),
                                          {u"it's.txt"_s, -2147217900},
                                          {u"full.txt"_s, -2147217887},
                                          {u"null.txt"_s, 0}}) {
            FileAnswers files({name.isEmpty() ? QString() : m_folder->write(name, "x")});
            library.choose("mnuUpLoadDocument");
            QCOMPARE(m_errors->takeNumber(), error);
            QCOMPARE(m_folder->row("SELECT count(*), count(DocuemntVersion) FROM Resources"),
                     error == 0 ? u"3|1"_s : u"2|1"_s);
        }
    }

    void aDoubleClickLinksInTheBrowser()
    {
        m_folder->execute("INSERT INTO Resources (ObjectIndex, DocumentName) VALUES (2, 'a.txt'), (2, 'b.txt')");
        BoxAnswers boxes; // nothing is told
        for (const auto &[mode, person, links] : {std::tuple(Mode::Manager, u"7"_s, QStringList()),
                                                  {Mode::Browser, QString(), {}},
                                                  {Mode::Browser, u"Cole"_s, {}},
                                                  {Mode::Browser, u"7"_s, {u"2|7"_s, u"2|7"_s}}}) {
            OpenLibrary library(mode, person);
            library.window().PersonalInformationId = person;
            QTest::mouseDClick(library.list().viewport(), Qt::LeftButton, {}, QPoint(10, 10)); // an empty list
            library.press(2);
            library.doubleClickDocument(2);
            QTest::keyClick(&library.list(), Qt::Key_Return);
            QCOMPARE(m_folder->rows("SELECT DocumentId, PersonalInformationId FROM ReferenceInfo"), links);
        }
    }
};

QTEST_MAIN(tst_LibraryDocuments)
#include "tst_librarydocuments.moc"
