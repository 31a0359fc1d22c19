// The structure of the document library: its two modes, its menus, its labels and what is saved of it.
#include "library/OpenLibrary.h"

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

class tst_LibraryTree : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_folder.emplace(DataStoreFolder::Content::Empty);
        m_folder->execute(smallLibrary);
        m_errors.emplace();
    }
    void cleanup()
    {
        m_errors.reset();
        m_folder.reset();
    }

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
        browser.choose("mnuClose");
        QVERIFY(!browser.window().isVisible());
    }

    void nodesAreNamedByTheCountBeforeThem()
    {
        m_folder->execute("DELETE FROM ObjectTbl");
        OpenLibrary library;
        library.choose("mnuAddlib");
        library.choose("mnuAddCat");
        library.select(2);
        library.choose("mnuAddCatagory");
        library.choose("MnuAddLibrary");
        QCOMPARE(library.nodes(),
                 (QStringList{u"1 Main Library under 0"_s, u"2 Library 1 under 1"_s, u"3 Catagory 2 under 1"_s,
                              u"4 Catagory 3 under 2"_s, u"5 Library 4 under 2"_s}));
        QVERIFY(library.tree().Nodes(2).isExpanded());
        QCOMPARE(m_folder->row("SELECT count(*) FROM ObjectTbl"), u"0"_s); // nothing is written before it is saved

        // After a removal the number can be taken, within its type.
        library.select(3);
        BoxAnswers boxes({QMessageBox::Yes});
        library.choose("mnuRemoveCat");
        library.select(1);
        library.choose("mnuAddlib");
        QCOMPARE(m_errors->takeNumber(), 35602);
        library.choose("mnuAddCat");
        QCOMPARE(library.nodes().mid(2),
                 (QStringList{u"3 Catagory 3 under 2"_s, u"4 Library 4 under 2"_s, u"5 Catagory 4 under 1"_s}));
    }

    // A second save leaves two sets of rows, and the next load finds each node twice, nested by the shifted places.
    void savingOnlyAppends()
    {
        m_folder->execute("DELETE FROM ObjectTbl");
        {
            OpenLibrary library;
            library.choose("mnuAddlib");
            library.select(2);
            library.choose("mnuAddCatagory");
            library.choose("mnuSave");
            QCOMPARE(
                m_folder->rows("SELECT ObjectIndex, ObjectParentIndex, ObjectText, ObjectType FROM ObjectTbl"),
                (QStringList{u"1|0|Main Library|Root"_s, u"2|1|Library 1|Library"_s, u"3|2|Catagory 2|Catagory"_s}));
        }
        OpenLibrary again;
        QCOMPARE(again.nodes(),
                 (QStringList{u"1 Main Library under 0"_s, u"2 Library 1 under 1"_s, u"3 Catagory 2 under 2"_s}));
        again.choose("mnuSave");
        QCOMPARE(m_folder->row("SELECT count(*), count(DISTINCT ObjectIndex) FROM ObjectTbl"), u"6|3"_s);
        OpenLibrary twice;
        QCOMPARE(twice.nodes(),
                 (QStringList{u"1 Main Library under 0"_s, u"2 Library 1 under 1"_s, u"3 Library 1 under 1"_s,
                              u"4 Catagory 2 under 2"_s, u"5 Catagory 2 under 2"_s}));
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

    void removingShiftsTheDocumentsToOtherNodes()
    {
        OpenLibrary library;
        library.select(3);
        BoxAnswers boxes({QMessageBox::Yes});
        library.choose("MnuDeleteNode");
        library.press(3);
        QCOMPARE(library.documents().size(), 2); // those of "Bylaws"
        QCOMPARE(library.tree().SelectedItem()->Text(), u"Main Library"_s);
        QCOMPARE(m_folder->row("SELECT count(*) FROM ObjectTbl"), u"4"_s); // until it is saved
    }

    void deletingAsksTwiceWhereThereIsMoreUnderIt_data()
    {
        using Plan = QList<QMessageBox::StandardButton>;
        QTest::addColumn<int>("node");
        QTest::addColumn<Plan>("plan");
        QTest::addColumn<int>("left");
        QTest::newRow("a leaf") << 3 << Plan{QMessageBox::Yes} << 3;
        QTest::newRow("not the leaf") << 3 << Plan{QMessageBox::No} << 4;
        QTest::newRow("children too") << 2 << Plan{QMessageBox::Yes, QMessageBox::Yes} << 2;
        QTest::newRow("not the children") << 2 << Plan{QMessageBox::Yes, QMessageBox::No} << 4;
        QTest::newRow("cancelled") << 2 << Plan{QMessageBox::Cancel} << 4;
    }
    void deletingAsksTwiceWhereThereIsMoreUnderIt()
    {
        QFETCH(int, node);
        QFETCH(QList<QMessageBox::StandardButton>, plan);
        QFETCH(int, left);
        OpenLibrary library;
        library.select(node);
        BoxAnswers boxes(plan);
        library.choose("mnuRemoveCat");
        QCOMPARE(library.tree().Nodes.Count(), left);
        const QStringList questions{
            node == 2 ? u"You are about to delete the Library Office"_s
                      : u"You are about to delete the Catagory Bylaws"_s,
            u"Warning deleting this Library will delete all object listed under it"_s,
        };
        QCOMPARE(boxes.seen.size(), plan.size());
        for (qsizetype at = 0; at < plan.size(); ++at) {
            QCOMPARE(boxes.seen[at].text, questions[at] + u"\nDo you wish to continue"_s);
            QCOMPARE(boxes.seen[at].title, u"Tolmark Lite"_s);
            QCOMPARE(boxes.seen[at].icon, QMessageBox::NoIcon);
            QCOMPARE(boxes.seen[at].buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        }
    }

    void labels_data()
    {
        QTest::addColumn<int>("node");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("label");
        QTest::newRow("another") << 2 << u"Archive"_s << u"Archive"_s;
        QTest::newRow("blanks") << 2 << u" "_s << u" "_s;
        QTest::newRow("the root keeps its own") << 1 << u"Archive"_s << u"Main Library"_s;
        QTest::newRow("and so does its namesake") << 4 << u"Archive"_s << u"Main Library"_s;
    }
    void labels()
    {
        QFETCH(int, node);
        QFETCH(QString, typed);
        QFETCH(QString, label);
        OpenLibrary library;
        library.select(node);
        library.rename(typed);
        QTRY_VERIFY(!library.editor());
        QCOMPARE(library.tree().Nodes(node).Text(), label);
    }

    void anEmptyLabelIsEditedAgain()
    {
        OpenLibrary library;
        library.select(2);
        BoxAnswers boxes({QMessageBox::Ok});
        library.rename({});
        QTRY_COMPARE(boxes.seen.size(), 1);
        QCOMPARE(boxes.seen[0].text, u"Invalid Name"_s);
        QCOMPARE(boxes.seen[0].icon, QMessageBox::NoIcon);
        QTRY_VERIFY(library.editor() && library.editor()->text() == u"Office");
        QTest::keyClicks(library.editor(), u"Desk"_s); // over the old label, which is selected
        QTest::keyClick(library.editor(), Qt::Key_Return);
        QTRY_COMPARE(library.tree().Nodes(2).Text(), u"Desk"_s);
    }

    // Esc brings back the label remembered last, also on a node that nobody edited.
    void escapeRestoresTheLabelRememberedLast()
    {
        OpenLibrary library;
        library.select(2);
        library.rename(u"Desk"_s);
        QTRY_COMPARE(library.tree().Nodes(2).Text(), u"Desk"_s);
        QTest::keyClick(&library.tree(), Qt::Key_Escape);
        QCOMPARE(library.tree().Nodes(2).Text(), u"Office"_s);
        library.select(3);
        QTest::keyClick(&library.tree(), Qt::Key_F2);
        library.editor()->setText(u"typed"_s);
        QTest::keyPress(library.editor(), Qt::Key_Escape); // the editor is gone by the release
        QTest::keyRelease(&library.tree(), Qt::Key_Escape);
        QTRY_VERIFY(!library.editor());
        QCOMPARE(library.tree().Nodes(3).Text(), u"Bylaws"_s);
        library.select(2);
        QTest::keyClick(&library.tree(), Qt::Key_Escape);
        QCOMPARE(library.tree().Nodes(2).Text(), u"Bylaws"_s);
        QTest::keyRelease(&library.tree(), Qt::Key_F2); // pressed somewhere else, as in a message box
        QVERIFY(!library.editor());
    }

    void onlyTheManagerEditsByAClickOnTheSelectedNode()
    {
        OpenLibrary browser(Mode::Browser);
        OpenLibrary manager;
        for (OpenLibrary *library : {&browser, &manager}) {
            library->tree().setFocus();
            library->press(2);
            library->press(2);
        }
        QTRY_VERIFY(manager.editor());
        QVERIFY(!browser.editor());
        manager.editor()->setText(u"left"_s);
        QTest::mouseClick(manager.list().viewport(), Qt::LeftButton); // leaving the editor ends the edit
        QTRY_COMPARE(manager.tree().Nodes(2).Text(), u"left"_s);
    }

    void menusFollowTheSelectedNode()
    {
        struct Enabled
        {
            bool library, catagory, changes;
        };
        OpenLibrary window;
        auto *popup = child<QMenu>(window.window(), "MnuLibraryOption.menu");
        // The last node bears the root's label. Each has another kind before it, so that the menus have to change.
        for (const auto &[node, expected] : {std::pair(3, Enabled{false, true, true}),
                                             {1, {true, true, false}},
                                             {2, {true, false, true}},
                                             {3, {false, true, true}},
                                             {4, {true, true, false}}}) {
            window.press(node);
            QCOMPARE(window.isEnabled("MnuLibrary"), expected.library);
            QCOMPARE(window.isEnabled("mnuCat"), expected.catagory);
            Q_EMIT child<QMenu>(window.window(), "mnuCat.menu")->aboutToShow();
            for (const char *name : {"mnuRemoveLib", "mnuRenameLib", "mnuRemoveCat", "mnuRenameCat"})
                QCOMPARE(window.isEnabled(name), expected.changes);
            window.press(node, Qt::RightButton);
            QTRY_VERIFY(popup->isVisible());
            for (const char *name : {"MnuDeleteNode", "MnuRenameNode"})
                QCOMPARE(window.isEnabled(name), expected.changes);
            popup->hide();
        }
    }

    // The right button selects nothing: the menu is for the node that was selected before.
    void thePopUpIsForTheNodeSelectedBefore()
    {
        OpenLibrary manager;
        manager.press(3);
        manager.press(1, Qt::RightButton);
        QVERIFY(manager.isEnabled("MnuDeleteNode"));
        QCOMPARE(manager.tree().SelectedItem()->Index(), 3);
        auto *popup = child<QMenu>(manager.window(), "MnuLibraryOption.menu");
        popup->hide();
        QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QCoreApplication::sendEvent(manager.tree().viewport(), &menuKey);
        QVERIFY(popup->isVisible());
        popup->hide();
        manager.item("MnuRenameNode").trigger();
        QVERIFY(manager.editor());
        OpenLibrary browser(Mode::Browser);
        browser.press(2, Qt::RightButton);
        QVERIFY(!child<QMenu>(browser.window(), "MnuLibraryOption.menu")->isVisible());
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

    void panesAndHeadlinesFollowTheWindow()
    {
        OpenLibrary library;
        Q_EMIT child<desktop::PictureBox>(library.window(), "Picture1")->MouseMove(1, 525, 0);
        library.window().resize(900, 600);
        QTRY_COMPARE(library.tree().Height(), library.window().Height() - 1720);
        QCOMPARE(library.list().Width(), library.window().Width() - 3300);
        QCOMPARE(child<desktop::Label>(library.window(), "LblStudentInformation")->Width(), library.list().Width());
        QCOMPARE(child<desktop::Label>(library.window(), "LblClassAndSection")->Width(), 3000.0);
    }

    void colouredMenusCanBeReadInADarkPalette()
    {
        const QPalette before = QApplication::palette();
        QApplication::setPalette(QPalette(QColor(40, 40, 40), QColor(30, 30, 30)));
        OpenLibrary library;
        library.window().SetMenuColours();
        for (const char *name : {"MenuBar", "MnuFile.menu"}) {
            const QPalette colours = child(library.window(), name)->palette();
            QCOMPARE(colours.color(QPalette::Window), QColor(214, 211, 241));
            QVERIFY(colours.color(QPalette::WindowText).lightness() < 60);
            QVERIFY(colours.color(QPalette::ButtonText).lightness() < 60);
        }
        QApplication::setPalette(before);
    }

private:
    std::optional<DataStoreFolder> m_folder;
    std::optional<CaughtErrors> m_errors;

    void f10GoesToTheMenuBarBesideTheKeyboardAndAltToNone()
    {
        QWidget window;
        QWidget left(&window);
        QWidget right(&window);
        desktop::TextBox leftBox(&left, u"left");
        desktop::TextBox rightBox(&right, u"right");
        MenuBar leftBar(&left, u"leftBar");
        MenuBar rightBar(&right, u"rightBar");
        leftBar.add(u"one"_s, u"One"_s);
        rightBar.add(u"two"_s, u"Two"_s);
        window.show();
        window.activateWindow();
        for (const auto &[box, bar] : {std::pair(&leftBox, &leftBar), std::pair(&rightBox, &rightBar)}) {
            box->setFocus();
            QTRY_VERIFY(box->hasFocus());
            QTest::keyClick(box, Qt::Key_Alt, Qt::AltModifier);
            QVERIFY(box->hasFocus());
            QTest::keyClick(box, Qt::Key_F10);
            QMenu *menu = bar->findChild<QMenu *>();
            QTRY_VERIFY(menu->isVisible());
            QTest::keyClick(menu, Qt::Key_Escape);
            QTRY_VERIFY(bar->hasFocus());
            QTest::keyClick(bar, Qt::Key_Escape);
            QTRY_VERIFY(box->hasFocus());
        }
    }
};

QTEST_MAIN(tst_LibraryTree)
#include "tst_librarytree.moc"
