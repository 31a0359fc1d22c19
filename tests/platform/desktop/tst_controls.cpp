#include "platform/desktop/ControlArray.h"
#include "platform/desktop/Controls.h"
#include "platform/desktop/KeyboardState.h"
#include "platform/desktop/ListView.h"
#include "platform/desktop/StatusBar.h"
#include "platform/desktop/TabStrip.h"
#include "platform/desktop/Toolbar.h"
#include "platform/desktop/TreeView.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/Conversion.h"
#include "support/Outcome.h"

#include <QSignalSpy>
#include <QTest>
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
        QCOMPARE(box.Left(), 4640.0);
        QCOMPARE(box.Width(), 1001.0);
        box.setLeft(4635);
        QCOMPARE(box.Left(), 4635.0);
        QCOMPARE(box.x(), 309);
        box.resize(200, 20); // as a layout would
        QCOMPARE(box.Width(), 3000.0);
        QCOMPARE(box.Left(), 4635.0);
        desktop::StatusBar bar(&window, u"bar");
        QCOMPARE(errorNumberOf([&bar] { bar.Move(0, 0, 0, 0); }), 438);
        QCOMPARE(errorNumberOf([&bar] { bar.setFontSize(9); }), 438);
    }

    void nodesHaveUniqueKeys()
    {
        desktop::TreeView tree(nullptr, u"tree");
        desktop::Node &first = tree.Nodes.Add(nullptr, u"Key A"_s, u"A"_s);
        tree.Nodes.Add(&first, u"key a"_s, u"differs by case"_s);
        tree.Nodes.Add(nullptr, {}, u"no key"_s);
        tree.Nodes.Add(nullptr, {}, u"no key either"_s);
        QCOMPARE(errorNumberOf([&tree] { tree.Nodes.Add(nullptr, u"Key A"_s, u"again"_s); }), 35602);
        QCOMPARE(tree.Nodes.Count(), 4);
        QCOMPARE(tree.topLevelItemCount(), 3);
        QCOMPARE(tree.Nodes(2).Text(), u"differs by case"_s);
        QCOMPARE(errorNumberOf([&tree] { tree.Nodes(0); }), 35600);
        QCOMPARE(errorNumberOf([&tree] { tree.Nodes(5); }), 35600);
        QCOMPARE(errorNumberOf([&tree] { tree.SelectedItem()->Text(); }), 91);
        tree.Nodes.Clear();
        QCOMPARE(errorNumberOf([&tree] { tree.Nodes.Add(nullptr, u"Key A"_s, u"A"_s); }), 0);
    }

    void aRemovedNodeTakesItsChildrenAndFreesTheirKeys()
    {
        desktop::TreeView tree(nullptr, u"tree");
        desktop::Node &a = tree.Nodes.Add(nullptr, u"a"_s, u"a"_s);
        desktop::Node &b = tree.Nodes.Add(nullptr, u"b"_s, u"b"_s);
        desktop::Node &underA = tree.Nodes.Add(&a, u"underA"_s, u"underA"_s);
        tree.Nodes.Add(&underA, u"deep"_s, u"deep"_s);
        desktop::Node &c = tree.Nodes.Add(&b, {}, u"c"_s);
        tree.setCurrentItem(&underA);
        tree.Nodes.Remove(a.Index());
        QCOMPARE(tree.Nodes.Count(), 2);
        QCOMPARE(b.Index(), 1);
        QCOMPARE(c.Index(), 2);
        QCOMPARE(c.Parent().get(), &b);
        QCOMPARE(b.Parent().get(), nullptr);
        QCOMPARE(tree.SelectedItem().get(), &b); // there is always one
        QCOMPARE(errorNumberOf([&tree] { tree.Nodes.Add(nullptr, u"deep"_s, {}); }), 0);
        QCOMPARE(errorNumberOf([&tree] { tree.Nodes.Add(nullptr, u"b"_s, {}); }), 35602);
        QCOMPARE(errorNumberOf([&tree] { tree.Nodes.Remove(4); }), 35600);
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
        QTRY_VERIFY(width() > widthOfRoot);
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
        QCOMPARE(list.ColumnHeaders(1).Tag, u"tag"_s);
        QCOMPARE(errorNumberOf([&list] { list.ColumnHeaders(3); }), 35600);
        list.ListItems.Add(u"a"_s);
        {
            desktop::ListFilling filling(list);
            filling.Add().setSubItem(1, u"b2"_s);
            QCOMPARE(list.ListItems.Count(), 1);
        }
        QCOMPARE(list.ListItems.Count(), 2);
        QCOMPARE(list.ListItems(2).SubItems(1), u"b2"_s);
        QCOMPARE(list.ListItems(2).SubItems(9), QString());
        QCOMPARE(errorNumberOf([&list] { list.ListItems(2).setSubItem(0, Value()); }), 94);
        QCOMPARE(errorNumberOf([&list] { list.ListItems(2).setSubItem(0, Value(QByteArray())); }), 13);
        QCOMPARE(errorNumberOf([&list] { list.ListItems(0); }), 35600);
        list.ColumnHeaders.Clear();
        QCOMPARE(list.columnCount(), 0);
    }

    void aListBoxTakesATextItKnows_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("selected");
        QTest::newRow("an item") << u"Ohio"_s << u"Ohio"_s;
        QTest::newRow("another case") << u"oHIO"_s << u"Ohio"_s;
        QTest::newRow("the trailing blank counts") << u"Arizona"_s << QString();
        QTest::newRow("with its blank") << u"Arizona "_s << u"Arizona "_s;
        QTest::newRow("unknown") << u"Ontario"_s << QString();
        QTest::newRow("empty") << QString() << QString();
    }
    void aListBoxTakesATextItKnows()
    {
        QFETCH(QString, text);
        QFETCH(QString, selected);
        desktop::ListBox list(nullptr, u"list", {u"Arizona "_s, u"Ohio"_s, u"Texas"_s});
        QCOMPARE(list.Text(), QString());
        list.setText(u"Texas"_s);
        list.setText(text);
        QCOMPARE(list.Text(), selected);
    }

    void aListBoxOfOneLineIsDrivenByTheKeyboard()
    {
        desktop::ListBox list(nullptr, u"list", {u"Arizona "_s, u"Ohio"_s, u"Texas"_s});
        list.setOneLine();
        list.show();
        QCOMPARE(list.Text(), QString());
        QTest::keyClicks(&list, u"te"_s);
        QCOMPARE(list.Text(), u"Texas"_s);
        QTest::keyClick(&list, Qt::Key_Up);
        QCOMPARE(list.Text(), u"Ohio"_s);
        QVERIFY(list.viewport()->rect().contains(list.visualItemRect(list.currentItem()).center()));
    }

    void aPlaceInAListBoxIsSelected()
    {
        desktop::ListBox list(nullptr, u"list", {u"one"_s, u"two"_s});
        QCOMPARE(list.ListIndex(), -1);
        for (const int outside : {-1, 2})
            QCOMPARE(errorNumberOf([&] { list.setSelected(outside); }), 380);
        list.setSelected(1);
        QCOMPARE(list.ListIndex(), 1);
        list.show();
        const QPoint place = list.visualItemRect(list.item(1)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, place);
        QCOMPARE(list.Text(), u"two"_s); // a pick is not taken back
        list.setSelected(1, false);
        QCOMPARE(list.ListIndex(), -1);
    }

    void arrayElementsAreNamedByTheirIndex()
    {
        QWidget window;
        desktop::ControlArray<desktop::Label> labels(u"lblLabels"_s);
        desktop::Label *second = labels.add(1, &window);
        QCOMPARE(second->objectName(), u"lblLabels(1)"_s);
        QCOMPARE(labels(1), second);
        QCOMPARE(errorNumberOf([&labels] { labels(0); }), 340);
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
        QCOMPARE(clicks.count(), 3);
        QTest::mousePress(&label, Qt::LeftButton);
        QTest::mouseRelease(&label, Qt::LeftButton, {}, QPoint(-5, -5));
        QCOMPARE(clicks.count(), 3);
    }

    void aHeadlineIsNeverCutOff()
    {
        desktop::Label label(nullptr, u"label", u"Members - 32767 (Click to Refresh)"_s);
        label.setShrinksToFit();
        label.resize(165, 25);
        label.show();
        QVERIFY(QTest::qWaitForWindowExposed(&label));
        QTRY_VERIFY(label.fontMetrics().horizontalAdvance(label.text()) <= 165);
        const double small = label.FontSize();
        label.resize(600, 25);
        QTRY_VERIFY(label.FontSize() > small);
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
        QSignalSpy clicks(&tabs, &desktop::TabStrip::Click);
        tabs.add(u"First"_s, u"One"_s, u"tip"_s);
        tabs.add(u"Second"_s, u"Two"_s, {});
        tabs.show();
        QCOMPARE(clicks.count(), 0);
        QCOMPARE(tabs.SelectedItem(), 1);
        const auto clickOn = [&tabs](int tab) {
            QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab - 1).center());
        };
        const QList<std::pair<std::function<void()>, int>> steps{
            {[&] { clickOn(2); }, 2},
            {[&] { clickOn(2); }, 2},
            {[&] { tabs.setSelectedItem(1); }, 1},
            {[&] { tabs.setSelectedItem(1); }, 1},
            {[&] { QTest::keyClick(&tabs, Qt::Key_Right); }, 2},
        };
        for (qsizetype step = 0; step < steps.size(); ++step) {
            steps[step].first();
            QCOMPARE(clicks.count(), step + 1);
            QCOMPARE(tabs.SelectedItem(), steps[step].second);
        }
        QCOMPARE(tabs.Key(2), u"Second"_s);
        QCOMPARE(errorNumberOf([&] { tabs.setSelectedItem(3); }), 35600);
        QCOMPARE(errorNumberOf([&] { tabs.setSelectedItem(0); }), 35600);
    }

    void panelsFollowKeyboardAndClock()
    {
        QDateTime now(QDate(2026, 3, 4), QTime(9, 5));
        runtime::setClock([&now] { return now; });
        QWidget window;
        desktop::StatusBar bar(&window, u"StatusBar1");
        bar.addKeyboardAndClockPanels();
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const auto &panels = bar.Panels();
        QCOMPARE(panels[2]->text(), u"INS"_s);
        const bool before = panels[2]->isEnabled();
        QTest::keyClick(window.windowHandle(), Qt::Key_Insert);
        QCOMPARE(panels[2]->isEnabled(), !before);
        QTest::keyClick(window.windowHandle(), Qt::Key_Insert);
        QCOMPARE(panels[2]->isEnabled(), before);
        QCOMPARE(panels[3]->text(), u"9:05 AM"_s);
        QCOMPARE(panels[4]->text(), u"3/4/2026"_s);
        now = QDateTime(QDate(2026, 3, 5), QTime(17, 30));
        QTRY_COMPARE(panels[3]->text(), u"5:30 PM"_s);
        QTRY_COMPARE(panels[4]->text(), u"3/5/2026"_s);
        runtime::setClock({});
    }

    void aToolbarButtonIsAnAction()
    {
        desktop::Toolbar bar(nullptr, u"Toolbar1");
        const QAction *phone = bar.addButton(u"Phone"_s, {}, u"Telephone Conference"_s, {});
        const QAction *remove = bar.addButton({}, u"Delete Member"_s, u"Delete Member"_s, {});
        QCOMPARE(phone->text(), u"Telephone Conference"_s);
        QCOMPARE(phone->objectName(), u"Phone"_s);
        QCOMPARE(remove->text(), u"Delete Member"_s);
        QSignalSpy clicks(&bar, &desktop::Toolbar::ButtonClick);
        bar.show();
        QTest::keyClick(bar.widgetForAction(const_cast<QAction *>(remove)), Qt::Key_Space);
        QCOMPARE(clicks.count(), 1);
    }
};

QTEST_MAIN(tst_Controls)
#include "tst_controls.moc"
