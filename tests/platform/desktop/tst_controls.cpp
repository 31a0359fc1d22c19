#include "platform/desktop/ControlArray.h"
#include "platform/desktop/Controls.h"
#include "platform/desktop/KeyboardState.h"
#include "platform/desktop/ListView.h"
#include "platform/desktop/PlainText.h"
#include "platform/desktop/StatusBar.h"
#include "platform/desktop/TabStrip.h"
#include "platform/desktop/Toolbar.h"
#include "platform/desktop/TreeView.h"
#include "platform/runtime/Conversion.h"
#include "support/Outcome.h"

#include <QClipboard>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

using runtime::Value;

class tst_Controls : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void placesKeepTheNumberThatWasSet()
    {
        QWidget window;
        desktop::TextBox box(&window, u"box");
        box.Move(4640, 10, 1001, 300);
        QCOMPARE(box.geometry(), QRect(309, 1, 67, 20));
        QCOMPARE(box.Width(), 1001.0);
        box.setLeft(4635);
        QCOMPARE(box.Left(), 4635.0); // drawn where it was before
        box.resize(200, 20);          // as a layout would
        QCOMPARE(box.Width(), 3000.0);
        QCOMPARE(box.Left(), 4635.0);
        desktop::StatusBar bar(&window, u"bar");
        QCOMPARE(errorNumberOf([&bar] { bar.Move(0, 0, 0, 0); }), 438);
        QCOMPARE(errorNumberOf([&bar] { bar.setFontSize(9); }), 438);
    }

    void nodesHaveUniqueKeysAndTakeTheirChildrenAlong()
    {
        desktop::TreeView tree(nullptr, u"tree");
        desktop::Node &a = tree.Nodes.Add(nullptr, u"Key A"_s, u"a"_s);
        desktop::Node &b = tree.Nodes.Add(nullptr, u"key a"_s, u"differs by case"_s);
        desktop::Node &underA = tree.Nodes.Add(&a, {}, u"no key"_s);
        tree.Nodes.Add(&underA, u"deep"_s, u"deep"_s);
        desktop::Node &c = tree.Nodes.Add(&b, {}, u"no key either"_s);
        const auto added = [&tree](const QString &key) {
            return errorNumberOf([&] { tree.Nodes.Add(nullptr, key, {}); });
        };
        QCOMPARE(added(u"Key A"_s), 35602);
        QCOMPARE(tree.topLevelItemCount(), 2);
        for (const int outside : {0, 6})
            QCOMPARE(errorNumberOf([&] { tree.Nodes(outside); }), 35600);
        tree.setCurrentItem(&underA);
        tree.Nodes.Remove(a.Index());
        QCOMPARE(tree.Nodes.Count(), 2);
        QVERIFY(b.Index() == 1 && c.Index() == 2);
        QVERIFY(c.Parent().get() == &b && !b.Parent());
        QCOMPARE(tree.SelectedItem().get(), &b); // there is always one
        QCOMPARE(added(u"deep"_s), 0);
        QCOMPARE(added(u"key a"_s), 35602);
        tree.Nodes.Clear();
        QCOMPARE(added(u"key a"_s), 0);
    }

    void aTreeIsAsWideAsTheLabelsThatShow()
    {
        desktop::TreeView tree(nullptr, u"tree");
        tree.resize(100, 200);
        tree.show();
        const auto width = [&tree] {
            tree.grab(); // nothing is left to be laid out
            return tree.columnWidth(0);
        };
        desktop::Node &root = tree.Nodes.Add(nullptr, {}, u"wider than the tree"_s);
        root.setExpanded(true);
        QTRY_VERIFY(width() > tree.viewport()->width());
        const int widthOfRoot = width();
        const QString longLabel(50, u'x');
        desktop::Node &child = tree.Nodes.Add(&root, {}, longLabel);
        QTRY_VERIFY(width() > widthOfRoot);
        child.setText(u"x"_s);
        QTRY_COMPARE(width(), widthOfRoot);
        child.setText(longLabel);
        for (const bool expanded : {false, true}) {
            root.setExpanded(expanded);
            QTRY_COMPARE(width() > widthOfRoot, expanded);
        }
        tree.Nodes.Remove(2);
        QTRY_COMPARE(width(), widthOfRoot);
    }

    void listItemsCountFromOne()
    {
        desktop::ListView list(nullptr, u"list");
        list.ColumnHeaders.Add(u"One"_s, u"tag"_s);
        list.ColumnHeaders.Add(u"Two"_s);
        QCOMPARE(errorNumberOf([&list] { list.ColumnHeaders(3); }), 35600);
        list.ListItems.Add(u"a"_s);
        {
            desktop::ListFilling filling(list);
            filling.Add().setSubItem(1, u"b2"_s);
            QCOMPARE(list.ListItems.Count(), 1);
        }
        QCOMPARE(list.ListItems.Count(), 2);
        QCOMPARE(list.ListItems(2).SubItems(1), u"b2"_s);
        list.ListItems(2).setSubItem(1, QString(10'000'000, u'x')); // is kept whole and takes no seconds to paint
        QCOMPARE(list.ListItems(2).SubItems(1).size(), 10'000'000);
        QVERIFY(list.ListItems(2).text(1).size() < 10'000);
        desktop::ListBox box(nullptr, u"box", {QString(100'000, u'x')});
        desktop::TreeView tree(nullptr, u"tree");
        tree.Nodes.Add(nullptr, u"key"_s, box.item(0)->text());
        for (const QAbstractItemView *view : QList<QAbstractItemView *>{&box, &tree})
            QVERIFY(view->sizeHintForColumn(0) < 100'000); // pixels
        desktop::TabStrip tabs(nullptr, u"tabs");
        tabs.add(u"key"_s, box.item(0)->text(), {});
        QVERIFY(tabs.tabText(0).size() < 10'000);
        desktop::setTitle(box, box.item(0)->text());
        QVERIFY(box.windowTitle().size() < 10'000);
        QCOMPARE(errorNumberOf([&list] { list.ListItems(2).setSubItem(0, Value()); }), 94);
        QCOMPARE(errorNumberOf([&list] { list.ListItems(2).setSubItem(0, Value(QByteArray())); }), 13);
        QCOMPARE(errorNumberOf([&list] { list.ListItems(0); }), 35600);
    }

    // Whoever acts on the selected line acts on what is highlighted.
    void onlyTheHighlightedLineIsSelected()
    {
        desktop::ListView list(nullptr, u"list");
        list.ColumnHeaders.Add(u"One"_s);
        list.setSelectionMode(QAbstractItemView::ExtendedSelection);
        QSignalSpy doubleClicks(&list, &desktop::ListView::DblClick);
        list.resize(200, 300);
        list.show();
        const QPoint below(20, 250);
        const auto selected = [&list] { return outcomeOf([&list] { return list.SelectedItem()->Text(); }); };
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, below);
        QCOMPARE(doubleClicks.count(), 1); // nobody can meet a line of an empty list
        for (const QString &text : {u"a"_s, u"b"_s, u"c"_s})
            list.ListItems.Add(text);
        const auto placeOf = [&list](int line) { return list.visualItemRect(&list.ListItems(line)).center(); };
        QVERIFY(QTest::qWaitForWindowActive(&list));
        list.setFocus(Qt::OtherFocusReason);
        QVERIFY(list.currentItem()); // Qt has one, which nobody sees
        QCOMPARE(selected(), u"error 91"_s);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, placeOf(3));
        QCOMPARE(selected(), u"c"_s);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, below);
        QCOMPARE(doubleClicks.count(), 1);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, placeOf(2));
        QCOMPARE(selected(), u"b"_s);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, placeOf(2));
        QCOMPARE(selected(), u"b"_s);
        QCOMPARE(doubleClicks.count(), 3);
        list.selectAll();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, placeOf(1));
        QCOMPARE(selected(), u"b"_s); // the topmost of what is left
    }

    void copiedLinesFitASpreadsheetAndHeadsAreClickedByKeys()
    {
        desktop::ListView list(nullptr, u"list");
        list.setSelectionMode(QAbstractItemView::ExtendedSelection);
        for (const QString &head : {u"One"_s, u"Two"_s})
            list.ColumnHeaders.Add(head);
        list.ListItems.Add(u"a\tb\r\nc"_s).setSubItem(1, u"\"Bud\" Smith"_s);
        list.ListItems.Add(u"not highlighted"_s);
        list.ListItems.Add(u"x"_s);
        for (const int line : {3, 1})
            list.ListItems(line).setSelected(true);
        for (int press = 0; press < 2; ++press) { // the second one finds nothing to copy
            QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
            QCOMPARE(QApplication::clipboard()->text(), u"a b c\t\"\"\"Bud\"\" Smith\"\nx\t"_s);
            list.clearSelection();
        }
        list.setCurrentItem(&list.ListItems(2), 0, QItemSelectionModel::NoUpdate);
        QTest::keyClick(&list, Qt::Key_F10, Qt::ShiftModifier);
        QCOMPARE(list.SelectedItem().get(), &list.ListItems(2)); // the menu is that of a line
        list.show();
        QVERIFY(QTest::qWaitForWindowActive(&list));
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Up, Qt::AltModifier);
        QVERIFY(list.hasFocus()); // nobody sorts it
        QSignalSpy clicks(&list, &desktop::ListView::ColumnClick);
        QTest::keyClick(&list, Qt::Key_Up, Qt::AltModifier);
        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Return, Qt::Key_Escape})
            QTest::keyClick(QApplication::focusWidget(), key);
        QCOMPARE(clicks.count(), 1);
        QCOMPARE(clicks[0][0].toInt(), 2);
        QVERIFY(list.hasFocus());
    }

    void theKeyboardFindsALineAndItsMenu()
    {
        QWidget window;
        desktop::TextBox box(&window, u"box");
        desktop::ListView list(&window, u"list");
        desktop::TreeView tree(&window, u"tree");
        QVBoxLayout layout(&window);
        for (QWidget *widget : std::initializer_list<QWidget *>{&box, &list, &tree})
            layout.addWidget(widget);
        list.ColumnHeaders.Add(u"One"_s);
        QSignalSpy listMenus(&list, &desktop::ListView::MouseUp);
        QSignalSpy treeMenus(&tree, &desktop::TreeView::MouseDown);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const auto asked = [](QWidget &view, QSignalSpy &menus) {
            QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
            QApplication::sendEvent(&view, &menuKey);
            QTest::keyClick(&view, Qt::Key_F10, Qt::ShiftModifier);
            const QPoint place = menus.constLast()[1].toPoint();
            return menus.count() == 2 && menus.takeFirst()[1].toPoint() == place &&
                   view.rect().contains(view.mapFromGlobal(place));
        };
        QVERIFY(asked(list, listMenus)); // nothing stands there yet
        QVERIFY(asked(tree, treeMenus));
        list.ListItems.Add(u"a"_s);
        list.ListItems.Add(u"b"_s);
        tree.Nodes.Add(nullptr, {}, u"root"_s);
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_Tab);
        QCOMPARE(list.SelectedItem()->Text(), u"a"_s);
        list.setCurrentItem(nullptr); // as after a list was filled anew
        QTest::keyClick(&list, Qt::Key_End);
        QCOMPARE(list.SelectedItem()->Text(), u"b"_s);
        list.clearSelection();
        list.setCurrentItem(&list.ListItems(2), 0, QItemSelectionModel::NoUpdate);
        QTest::keyClick(&list, Qt::Key_Tab);
        QCOMPARE(tree.SelectedItem()->Text(), u"root"_s);
        QTest::keyClick(&tree, Qt::Key_Backtab);
        QCOMPARE(list.SelectedItem()->Text(), u"b"_s);
    }

    // What a box loads and nobody touches goes back as it was, and so does what stands beside an edit.
    void textsComeBackAsTheyWere()
    {
        const QString text = u"one\r\ntwo\nthree\rfour\u2028five\u2029no\u00a0break\t\ufffc end \r\n"_s;
        const QString longText(40000, u'x');
        desktop::TextBox box(nullptr, u"box");
        desktop::MultilineTextBox lines(nullptr, u"lines");
        for (const QString &each : {text, longText, u"\r\n\r\n\n"_s, QString()}) {
            box.setText(each);
            lines.setText(each);
            QCOMPARE(box.text(), each);
            QCOMPARE(box.cursorPosition(), 0); // a long text shows its beginning
            QCOMPARE(lines.text(), each);
        }
        lines.setText(text);
        lines.moveCursor(QTextCursor::Start);
        lines.moveCursor(QTextCursor::EndOfBlock);
        QTest::keyClick(&lines, Qt::Key_Return);
        QTest::keyClick(&lines, Qt::Key_Return, Qt::ShiftModifier);
        QTest::keyClicks(&lines, u"x"_s);
        QCOMPARE(lines.text(), QString(text).insert(3, u"\r\n\r\nx"_s));
        lines.moveCursor(QTextCursor::End);
        QTest::keyClicks(&lines, u"y"_s); // between two edits the breaks are those of a typed text
        QCOMPARE(lines.text(), u"one\r\n\r\nx\r\ntwo\r\nthree\r\nfour\u2028five\r\nno\u00a0break\t\ufffc end \r\ny"_s);
        while (lines.document()->isUndoAvailable())
            lines.undo();
        QCOMPARE(lines.text(), text);
        lines.clear();
        QCOMPARE(lines.text(), QString());
        box.setText(u"it's"_s);
        box.setMasked();
        QCOMPARE(box.displayText(), u"****"_s);
    }

    // What Qt would read as HTML or as the mark of a key.
    void marksInATextAreShown()
    {
        const QString text = u"<b>R&D</b> [*]"_s;
        desktop::Label label(nullptr, u"label", text);
        QCOMPARE(label.textFormat(), Qt::PlainText);
        desktop::TabStrip tabs(nullptr, u"tabs");
        tabs.add({}, text, text);
        QCOMPARE(tabs.tabText(0), u"<b>R&&D</b> [*]"_s);
        QCOMPARE(tabs.Caption(1), text);
        QCOMPARE(tabs.ToolTipText(1), text);
        label.setToolTip(text);
        for (QWidget *widget : std::initializer_list<QWidget *>{&label, &tabs}) {
            widget->show();
            const QPoint place(5, 5);
            QHelpEvent event(QEvent::ToolTip, place, widget->mapToGlobal(place));
            QApplication::sendEvent(widget, &event);
            QVERIFY2(QToolTip::text().contains(u"&lt;b&gt;R&amp;D"), qPrintable(QToolTip::text()));
            QToolTip::hideText();
        }
    }

    void enterPressesTheFocusedButtonOnce()
    {
        desktop::CommandButton button(nullptr, u"button", u"Save"_s);
        QSignalSpy clicks(&button, &QPushButton::clicked);
        QTest::keyClick(&button, Qt::Key_Return);
        QTest::keyClick(&button, Qt::Key_Enter);
        QKeyEvent heldDown(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
        QApplication::sendEvent(&button, &heldDown);
        QCOMPARE(clicks.count(), 2);
    }

    void aListBoxIsDrivenByTextPlaceKeyboardAndMouse()
    {
        desktop::ListBox list(nullptr, u"list", {u"Arizona "_s, u"Ohio"_s, u"Texas"_s});
        QVERIFY(list.ListIndex() == -1 && list.Text().isEmpty());
        for (const auto &[text, selected] :
             {std::pair(u"oHIO"_s, 1), {u"Arizona"_s, -1}, {u"Arizona "_s, 0}, {QString(), -1}}) {
            list.setText(u"Texas"_s);
            list.setText(text);
            QCOMPARE(list.ListIndex(), selected);
        }
        for (const int outside : {-1, 3})
            QCOMPARE(errorNumberOf([&] { list.setSelected(outside); }), 380);
        list.setSelected(1);
        QCOMPARE(list.ListIndex(), 1);
        list.resize(200, 200);
        list.show();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.viewport()->rect().bottomLeft()); // beside the items
        QCOMPARE(list.ListIndex(), 1);
        list.setOneLine();
        list.show();
        QTest::keyClicks(&list, u"te"_s);
        QCOMPARE(list.Text(), u"Texas"_s);
        QTest::keyClick(&list, Qt::Key_Up);
        QCOMPARE(list.Text(), u"Ohio"_s);
        const QPoint place = list.visualItemRect(list.currentItem()).center();
        QVERIFY(list.viewport()->rect().contains(place));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, place);
        QCOMPARE(list.Text(), u"Ohio"_s); // a pick is not taken back
        int step = 0;
        const Qt::Key keys[] = {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_PageDown, Qt::Key_Home};
        for (const int chosen : {1, 1, 2, 2, 0}) {
            list.clearSelection(); // Qt's current line stays, which nobody has chosen
            QTest::keyClick(&list, keys[step++]);
            QCOMPARE(list.ListIndex(), chosen);
        }
        list.setSelected(0, false);
        QCOMPARE(list.ListIndex(), -1);
    }

    void aClickableLabelAnswersMouseAndKeyboard()
    {
        desktop::Label label(nullptr, u"label", u"Click"_s);
        QSignalSpy clicks(&label, &desktop::Label::Click);
        QTest::mouseClick(&label, Qt::LeftButton);
        QCOMPARE(clicks.count(), 0); // a plain label
        label.setClickable();
        label.show();
        QTest::mouseClick(&label, Qt::LeftButton);
        QTest::keyClick(&label, Qt::Key_Space);
        QTest::keyClick(&label, Qt::Key_Return);
        QTest::mousePress(&label, Qt::LeftButton);
        QTest::mouseRelease(&label, Qt::LeftButton, {}, QPoint(-5, -5)); // is no click
        QCOMPARE(clicks.count(), 3);
    }

    void aTextThatIsCutOffIsItsToolTip()
    {
        desktop::Label label(nullptr, u"label", u"Members - 32767 (Click to Refresh)"_s);
        label.setElides();
        label.resize(100, 25);
        QHelpEvent hover(QEvent::ToolTip, QPoint(5, 5), QPoint(5, 5));
        QApplication::sendEvent(&label, &hover);
        QCOMPARE(QToolTip::text(), label.text());
    }

    void aListOfOneLineTellsTheChoiceFromTheLineShown()
    {
        desktop::ListBox list(nullptr, u"list", {u"Alabama"_s, u"Alaska"_s});
        list.setOneLine();
        QList<QImage> looks{list.grab().toImage()};
        for (const int choice : {1, 0}) {
            list.setSelected(choice);
            list.scrollToTop(); // Alaska is told beside Alabama
            looks << list.grab().toImage();
        }
        QVERIFY(looks[1] != looks[0] && looks[2] != looks[1]);
        list.item(0)->setSelected(false);
        QCOMPARE(list.grab().toImage(), looks[0]); // again nobody has chosen Alabama
        QTest::keyClick(&list, Qt::Key_A);
        QCOMPARE(list.Text(), u"Alabama"_s); // and not the one behind it
    }

    void pagesTurnByTheKeyboardIntoTheirFirstBox()
    {
        desktop::TabbedDialog dialog(nullptr, u"SSTab1");
        QList<desktop::TextBox *> boxes;
        for (const QString &name : {u"first"_s, u"second"_s, u"third"_s}) {
            auto *content = new QWidget;
            auto *layout = new QVBoxLayout(content);
            layout->addWidget(new QLabel(name));
            boxes << new desktop::TextBox(content, name);
            layout->addWidget(boxes.constLast());
            dialog.addPage(content, name);
        }
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        boxes[0]->setFocus();
        for (const int next : {1, 2, 0}) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown, Qt::ControlModifier);
            QCOMPARE(dialog.currentIndex(), next);
            QCOMPARE(QApplication::focusWidget(), boxes[next]);
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(dialog.currentIndex(), 2);
    }

    void aTabIsClickedByWhateverSelectsIt()
    {
        desktop::TabStrip tabs(nullptr, u"tabs");
        QString clicked;
        connect(&tabs, &desktop::TabStrip::Click, this, [&] { clicked += QString::number(tabs.SelectedItem()); });
        tabs.add(u"First"_s, u"One"_s, u"tip"_s);
        tabs.add(u"Second"_s, u"Two"_s, {});
        tabs.show();
        QCOMPARE(tabs.SelectedItem(), 1);
        for (int click = 0; click < 2; ++click)
            QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
        for (int click = 0; click < 2; ++click)
            tabs.setSelectedItem(1);
        QTest::keyClick(&tabs, Qt::Key_Right);
        QCOMPARE(clicked, u"22112"_s);
        for (const int outside : {0, 3})
            QCOMPARE(errorNumberOf([&] { tabs.setSelectedItem(outside); }), 35600);
    }

    void panelsFollowTheKeyboard()
    {
        QWidget window;
        desktop::StatusBar bar(&window, u"StatusBar1");
        bar.addKeyboardAndClockPanels();
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const auto &panels = bar.Panels();
        const auto lit = [&panels] {
            QStringList texts;
            for (const int toggle : {0, 1, 2})
                texts << panels[size_t(toggle)]->text() + (panels[size_t(toggle)]->isEnabled() ? u" on"_s : u""_s);
            return texts.join(u' ');
        };
        QCOMPARE(lit(), u"CAPS NUM INS"_s);
        QTest::keyClick(window.windowHandle(), Qt::Key_CapsLock);
        QCOMPARE(lit(), u"CAPS on NUM INS"_s);
        QTest::keyClick(window.windowHandle(), Qt::Key_NumLock);
        QCOMPARE(lit(), u"CAPS on NUM on INS"_s);
        QTest::keyClick(window.windowHandle(), Qt::Key_CapsLock);
        QTest::keyClick(window.windowHandle(), Qt::Key_Insert);
        QCOMPARE(lit(), u"CAPS NUM on INS on"_s);
    }
};

QTEST_MAIN(tst_Controls)
#include "tst_controls.moc"
