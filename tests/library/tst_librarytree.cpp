// The structure of the document library: its two modes, its menus, its labels and what is saved of it.
#include "library/OpenLibrary.h"
#include "support/StoreTest.h"

using namespace Qt::Literals::StringLiterals;

using Mode = OpenLibrary::Mode;

namespace {

constexpr const char *smallLibrary =
    "DELETE FROM ObjectTbl; DELETE FROM Resources;"
    "INSERT INTO ObjectTbl (ObjectIndex, ObjectParentIndex, ObjectText, ObjectType) VALUES"
    " (1, 0, 'Main Library', 'Root'), (3, 2, 'Bylaws', 'Catagory'), (2, 1, 'Office', 'Library'),"
    " (4, 1, 'Main Library', 'Catagory');"
    "INSERT INTO Resources (ObjectIndex, DocumentName, DocuemntVersion) VALUES (3, 'a', 1), (3, 'a', 2), (4, 'b', 1);";

const QStringList loaded{u"1 Main Library under 0"_s, u"2 Office under 1"_s, u"3 Bylaws under 2"_s,
                         u"4 Main Library under 1"_s};

} // namespace

class tst_LibraryTree : public StoreTest
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(DataFolder::Content::Empty, smallLibrary); }
    void cleanup() { close(); }

    void theManagerOffersWhatTheBrowserDoesNot()
    {
        OpenLibrary manager;
        QCOMPARE(manager.window().Caption(), u"Tolmark Document Library Manager"_s);
        QCOMPARE(manager.nodes(), loaded);
        OpenLibrary browser(Mode::Browser);
        QCOMPARE(browser.window().Caption(), u"Resource Manager Browser"_s);
        QCOMPARE(browser.nodes(), (QStringList{u"1 Main Library under 0"_s, u"2 Office under 1"_s,
                                               u"3 Bylaws     (2) under 2"_s, u"4 Main Library     (1) under 1"_s}));
        for (const char *name : {"mnuSave", "mnuUpLoadDocument", "mnuCat", "MnuLibrary"}) {
            QVERIFY2(manager.item(name).isVisible(), name);
            QVERIFY2(!browser.item(name).isVisible(), name);
        }
        QVERIFY(manager.isEnabled("MnuLibraryOption"));
        QVERIFY(!browser.isEnabled("MnuLibraryOption"));
        QVERIFY(manager.tree().editTriggers() == QAbstractItemView::SelectedClicked);
        QVERIFY(browser.tree().editTriggers() != QAbstractItemView::SelectedClicked);
        browser.press(2, Qt::RightButton);
        QVERIFY(!child<QMenu>(browser.window(), "MnuLibraryOption.menu")->isVisible());
        browser.choose("mnuClose");
        QVERIFY(!browser.window().isVisible());
    }

    // A second save leaves two sets of rows, and the next load finds each node twice, nested by the shifted places.
    void nodesAreAddedAndSaved()
    {
        m_folder->execute("DELETE FROM ObjectTbl");
        OpenLibrary library;
        library.choose("mnuAddlib");
        library.choose("mnuAddCat");
        library.select(2);
        library.choose("mnuAddCatagory");
        QVERIFY(library.tree().Nodes(2).isExpanded());
        QCOMPARE(m_folder->row("SELECT count(*) FROM ObjectTbl"), u"0"_s);
        library.choose("mnuSave");
        QCOMPARE(m_folder->rows("SELECT ObjectIndex, ObjectParentIndex, ObjectText, ObjectType FROM ObjectTbl"),
                 (QStringList{u"1|0|Main Library|Root"_s, u"2|1|Library 1|Library"_s, u"3|1|Catagory 2|Catagory"_s,
                              u"4|2|Catagory 3|Catagory"_s}));
        OpenLibrary again;
        QCOMPARE(again.nodes(), library.nodes());

        // After a removal the number can be taken, within its type.
        library.select(3);
        BoxAnswers boxes({QMessageBox::Yes});
        library.choose("mnuRemoveCat");
        library.choose("mnuAddCatagory");
        QCOMPARE(m_errors->takeNumber(), 35602);
        library.choose("MnuAddLibrary");
        QCOMPARE(library.nodes().last(), u"4 Library 3 under 2"_s);

        again.choose("mnuSave");
        OpenLibrary twice;
        QCOMPARE(twice.nodes().sliced(0, 3),
                 (QStringList{u"1 Main Library under 0"_s, u"2 Library 1 under 1"_s, u"3 Library 1 under 1"_s}));
        QCOMPARE(twice.nodes().last(), u"7 Catagory 3 under 2"_s);
    }

    // A node with the root's label is saved as a root, and no load finds it again.
    void aNodeWithTheRootsLabelCountsAsTheRoot()
    {
        OpenLibrary library;
        library.select(4);
        library.choose("mnuAddCat");
        library.choose("mnuSave");
        QCOMPARE(m_folder->rows("SELECT ObjectIndex, ObjectParentIndex FROM ObjectTbl WHERE ObjectType = 'Root'"),
                 (QStringList{u"1|0"_s, u"1|0"_s, u"4|0"_s}));
        QVERIFY(!library.isEnabled("mnuRemoveCat"));
    }

    void deletingAsksTwiceWhereThereIsMoreUnderIt()
    {
        using Plan = QList<QMessageBox::StandardButton>;
        constexpr auto yes = QMessageBox::Yes;
        const QString more = u"Warning deleting this Library will delete all object listed under it"_s;
        for (const auto &[node, plan, left] : {std::tuple(3, Plan{QMessageBox::No}, 4),
                                               {3, Plan{yes}, 3},
                                               {2, Plan{QMessageBox::Cancel}, 4},
                                               {2, Plan{yes, QMessageBox::No}, 4},
                                               {2, Plan{yes, yes}, 2}}) {
            OpenLibrary library;
            library.select(node);
            BoxAnswers boxes(plan);
            library.choose(node == 2 ? "mnuRemoveCat" : "MnuDeleteNode");
            QCOMPARE(library.tree().Nodes.Count(), left);
            QCOMPARE(boxes.seen.size(), plan.size());
            if (left == 3) {
                library.press(3); // the next node, which has the documents of "Bylaws" now
                QCOMPARE(library.documents().size(), 2);
                QCOMPARE(library.tree().SelectedItem()->Text(), u"Main Library"_s);
            }
            const QString first = node == 2 ? u"Library Office"_s : u"Catagory Bylaws"_s;
            for (const SeenBox &box : boxes.seen) {
                const QString asked = &box == &boxes.seen.first() ? u"You are about to delete the "_s + first : more;
                QCOMPARE(box.text, asked + u"\nDo you wish to continue"_s);
                QCOMPARE(box.buttons, yes | QMessageBox::No | QMessageBox::Cancel);
            }
        }
        QCOMPARE(m_folder->row("SELECT count(*) FROM ObjectTbl"), u"4"_s); // until it is saved
    }

    // Esc brings back the label remembered last, also on a node that nobody edited.
    void labelsAreEdited()
    {
        OpenLibrary library;
        for (const auto &[node, label] : {std::pair(2, u" "_s), {1, u"Main Library"_s}, {4, u"Main Library"_s}}) {
            library.select(node);
            library.rename(u" "_s);
            QTRY_VERIFY(!library.editor());
            QCOMPARE(library.tree().Nodes(node).Text(), label);
        }
        library.select(2);
        BoxAnswers boxes({QMessageBox::Ok});
        library.rename({});
        QTRY_COMPARE(boxes.seen.value(0).text, u"Invalid Name"_s);
        QTRY_VERIFY(library.editor() && library.editor()->text() == u" ");
        QTest::keyClicks(library.editor(), u"Desk\r"_s); // over the old label, which is selected
        QTRY_COMPARE(library.tree().Nodes(2).Text(), u"Desk"_s);
        library.select(3);
        QTest::keyClick(&library.tree(), Qt::Key_Escape);
        QCOMPARE(library.tree().Nodes(3).Text(), u" "_s);
        QTest::keyRelease(&library.tree(), Qt::Key_F2); // pressed somewhere else, as in a message box
        QVERIFY(!library.editor());
    }

    // Nodes: the root, "Office" (a library), "Bylaws" (a catagory), and one that bears the root's label. Each has
    // another kind before it, so that the menus have to change.
    void menusFollowTheSelectedNode()
    {
        OpenLibrary window;
        auto *popup = child<QMenu>(window.window(), "MnuLibraryOption.menu");
        for (const auto &[node, library, catagory, changes] : {std::tuple(3, false, true, true),
                                                               {1, true, true, false},
                                                               {2, true, false, true},
                                                               {3, false, true, true},
                                                               {4, true, true, false}}) {
            window.press(node);
            QCOMPARE(window.isEnabled("MnuLibrary"), library);
            QCOMPARE(window.isEnabled("mnuCat"), catagory);
            Q_EMIT child<QMenu>(window.window(), "mnuCat.menu")->aboutToShow();
            for (const char *name : {"mnuRemoveLib", "mnuRenameLib", "mnuRemoveCat", "mnuRenameCat"})
                QCOMPARE(window.isEnabled(name), changes);
            window.press(node, Qt::RightButton);
            QTRY_VERIFY(popup->isVisible());
            for (const char *name : {"MnuDeleteNode", "MnuRenameNode"})
                QCOMPARE(window.isEnabled(name), changes);
            popup->hide();
        }
        window.press(3);
        Q_EMIT popup->aboutToShow(); // opened from the bar, where nothing sets its items
        QVERIFY(!window.isEnabled("MnuDeleteNode"));
        window.press(1, Qt::RightButton); // selects nothing: the menu is for the node that was selected before
        QTRY_VERIFY(popup->isVisible());
        QVERIFY(window.isEnabled("MnuDeleteNode"));
        popup->hide();
        window.item("MnuRenameNode").trigger();
        QCOMPARE(window.editor()->text(), u"Bylaws"_s);
    }

    void whatCannotBeLoadedGoesToTheOpener()
    {
        for (const auto &[change, error] : {std::pair("UPDATE ObjectTbl SET ObjectParentIndex = 9", 35600),
                                            {"UPDATE ObjectTbl SET ObjectParentIndex = NULL", 94},
                                            {"DROP TABLE ObjectTbl", -2147217865}}) {
            m_folder->execute(change);
            desktop::guarded([] { OpenLibrary library; });
            QCOMPARE(m_errors->takeNumber(), error);
        }
    }

    void f10GoesToTheMenuBarBesideTheKeyboardAndAltToNone()
    {
        QWidget window;
        std::array<QWidget, 2> halves;
        for (QWidget &half : halves) {
            half.setParent(&window);
            half.setFocusPolicy(Qt::StrongFocus);
            (new MenuBar(&half, u"bar"))->add(u"menu"_s, u"Menu"_s)->addItem(u"item", u"Item"_s);
        }
        window.show();
        window.activateWindow();
        for (QWidget &half : halves) {
            half.setFocus();
            QTRY_VERIFY(half.hasFocus());
            QTest::keyClick(&half, Qt::Key_Alt, Qt::AltModifier);
            QVERIFY(half.hasFocus());
            QTest::keyClick(&half, Qt::Key_F10);
            QTRY_VERIFY(half.findChild<QMenu *>()->isVisible());
            QTest::keyClick(half.findChild<QMenu *>(), Qt::Key_Escape);
            QTRY_VERIFY(half.findChild<QMenuBar *>()->hasFocus());
        }
    }
};

QTEST_MAIN(tst_LibraryTree)
#include "tst_librarytree.moc"
