// Walks through every window by the Tab key, as somebody does who uses no mouse, and asks what a screen reader is told.
#include "dossier/DisplayMembers.h"
#include "dynamicforms/DisplayInformation.h"
#include "platform/desktop/Style.h"
#include "shell/frame/MDIBaseForm.h"
#include "shell/frame/frmLogin.h"
#include "support/DataStoreFolder.h"
#include "support/Dialogs.h"
#include "support/Stations.h"

#include <QAccessible>
#include <QGroupBox>
#include <QMdiSubWindow>
#include <QMenuBar>

using namespace Qt::Literals::StringLiterals;

namespace {

QString nameOf(QWidget *widget)
{
    QAccessibleInterface *access = QAccessible::queryAccessibleInterface(widget);
    return access ? access->text(QAccessible::Name) : QString();
}

QString described(const QWidget *widget)
{
    return u"%1 \"%2\""_s.arg(QLatin1String(widget->metaObject()->className()), widget->objectName());
}

// The part of the window in which the widget stands and the other one does not.
const QWidget *branch(const QWidget *widget, const QWidget *other)
{
    while (widget->parentWidget() && !widget->parentWidget()->isAncestorOf(other))
        widget = widget->parentWidget();
    return widget;
}

// Left to right, top to bottom: the parts that hold the two are compared, so that a frame is read to its end. Of two
// that stand beside each other at different heights, either may come first.
bool isReadBefore(const QWidget *first, const QWidget *second)
{
    if (first->isAncestorOf(second) || second->isAncestorOf(first))
        return true;
    const QWidget *a = branch(first, second);
    const QWidget *b = branch(second, first);
    const QRect one(a->mapToGlobal(QPoint()), a->size());
    const QRect two(b->mapToGlobal(QPoint()), b->size());
    constexpr int aboutLevel = 8;
    if (qAbs(one.top() - two.top()) <= aboutLevel)
        return one.left() <= two.left();
    const bool besideEachOther = one.top() <= two.bottom() && two.top() <= one.bottom();
    return one.top() < two.top() || (besideEachOther && one.left() < two.left());
}

// The stops of the Tab key from one that is given, until it comes again.
QList<QWidget *> walk(QWidget *from, Qt::Key key)
{
    constexpr int tooMany = 120;
    from->setFocus(Qt::TabFocusReason);
    QList<QWidget *> stops;
    for (QWidget *at = QApplication::focusWidget(); at && !stops.contains(at) && stops.size() < tooMany;
         at = QApplication::focusWidget()) {
        stops << at;
        QTest::keyClick(at, key);
    }
    return stops;
}

// What Tab should stop at.
QList<QWidget *> takingFocus(const QWidget &window)
{
    QList<QWidget *> widgets;
    for (QWidget *each : window.findChildren<QWidget *>()) {
        if ((each->focusPolicy() & Qt::TabFocus) && each->isEnabled() && each->isVisible() && !each->focusProxy())
            widgets << each;
    }
    return widgets;
}

QStringList faultsOfStop(QWidget *stop)
{
    QStringList faults;
    if (nameOf(stop).isEmpty())
        faults << described(stop) + u" has no name"_s;
    const auto *scrolling = qobject_cast<QAbstractScrollArea *>(stop); // its content covers it
    if (stop->visibleRegion().isEmpty() && !(scrolling && !scrolling->viewport()->visibleRegion().isEmpty()))
        faults << described(stop) + u" takes the focus out of sight"_s;
    return faults;
}

// Where a field stands on a page is the designer's choice, and its order is the form's.
bool areFieldsOfAForm(const QWidget *a, const QWidget *b)
{
    return a->objectName().startsWith(u"Text1(") && b->objectName().startsWith(u"Text1(");
}

// The way round goes back once, from the last stop to the first; more often is against the eye's order.
QStringList turnsBack(const QList<QWidget *> &round)
{
    QStringList turns;
    for (qsizetype at = 0; at < round.size(); ++at) {
        const QWidget *next = round[(at + 1) % round.size()];
        if (!isReadBefore(round[at], next) && !areFieldsOfAForm(round[at], next))
            turns << described(next) + u" comes after "_s + described(round[at]);
    }
    return turns.size() > 1 ? turns : QStringList();
}

QStringList faultsOfWalk(const QWidget &window)
{
    const QList<QWidget *> expected = takingFocus(window);
    if (expected.isEmpty())
        return {u"nothing takes the focus"_s};
    const QList<QWidget *> forth = walk(expected.constFirst(), Qt::Key_Tab);
    QList<QWidget *> back = walk(expected.constFirst(), Qt::Key_Backtab);
    QStringList faults;
    for (QWidget *stop : forth)
        faults << faultsOfStop(stop);
    for (const QWidget *missed : expected) {
        if (!forth.contains(missed))
            faults << described(missed) + u" is not reached"_s;
    }
    if (QSet<QWidget *>(forth.begin(), forth.end()) != QSet<QWidget *>(back.begin(), back.end()))
        faults << u"Shift+Tab stops elsewhere than Tab"_s;
    return faults + turnsBack(forth);
}

// Work begins in a box, list or tree: not on a bar, and not on what only shows something.
QStringList faultsOfBeginning(const QWidget *focus)
{
    if (focus && !focus->inherits("QTabBar") && !focus->inherits("QLabel") && !focus->inherits("QToolButton"))
        return {};
    return {u"the focus begins at "_s + (focus ? described(focus) : u"nothing"_s)};
}

// What a screen reader meets when it goes through the window part by part; the cells of a list are its data's. A box
// that drops down is told by its value and labelled by another part, as assistive tools expect it here.
QStringList faultsOfReading(QAccessibleInterface *part)
{
    QStringList faults;
    const bool labelled = !part->text(QAccessible::Name).isEmpty() || !part->relations(QAccessible::Label).isEmpty();
    if (part->state().focusable && !part->state().invisible && !labelled)
        faults << u"%1 %2 is read aloud without a name"_s.arg(part->role()).arg(part->object()->objectName());
    if (part->tableInterface() || part->role() == QAccessible::ComboBox)
        return faults;
    QSet<QString> frames;
    for (int each = 0; each < part->childCount(); ++each) {
        QAccessibleInterface *inner = part->child(each);
        const QString name = inner->text(QAccessible::Name);
        if (inner->role() == QAccessible::Grouping && frames.contains(name))
            faults << u"two frames beside each other are called "_s + name;
        frames << name;
        faults << faultsOfReading(inner);
    }
    return faults;
}

// Who can be reached by Alt and a letter: the caption, and the key that it has.
using Keyed = std::pair<QString, QKeySequence>;

void addMenus(QList<Keyed> &keyed, const QMenuBar &bar)
{
    for (const QAction *menu : bar.actions()) {
        if (menu->isVisible())
            keyed << Keyed(menu->text(), QKeySequence::mnemonic(menu->text()));
    }
}

QList<Keyed> keyedParts(const QWidget &window)
{
    QList<Keyed> keyed;
    for (const auto *button : window.findChildren<QAbstractButton *>()) {
        if (button->isVisible() && !button->text().isEmpty() && !button->inherits("QToolButton"))
            keyed << Keyed(button->text(), button->shortcut());
    }
    for (const auto *label : window.findChildren<QLabel *>()) {
        if (label->isVisible() && label->buddy())
            keyed << Keyed(label->text(), QKeySequence::mnemonic(label->text()));
    }
    for (const auto *group : window.findChildren<QGroupBox *>()) {
        if (group->isVisible() && group->focusProxy())
            keyed << Keyed(group->title(), QKeySequence::mnemonic(group->title()));
    }
    for (const auto *bar : window.findChildren<QTabBar *>()) {
        for (int tab = 0; bar->isVisible() && tab < bar->count(); ++tab)
            keyed << Keyed(bar->tabText(tab), QKeySequence::mnemonic(bar->tabText(tab)));
    }
    for (const auto *bar : window.findChildren<QMenuBar *>())
        addMenus(keyed, *bar);
    return keyed;
}

// Alt with one letter means one thing in a window and the menus above it, and who has no letter found all of its own
// taken.
QStringList faultsOfLetters(const QWidget &window)
{
    QList<Keyed> keyed = keyedParts(window);
    if (!window.isWindow())
        addMenus(keyed, *MDIBaseForm::frame().menuBar());
    QHash<QString, QStringList> users;
    for (const auto &[text, key] : keyed)
        users[key.toString()] << text;
    QStringList faults;
    const QStringList without = users.take(QString());
    for (auto user = users.cbegin(); user != users.cend(); ++user) {
        if (user->size() > 1)
            faults << user.key() + u" stands for "_s + user->join(u" and "_s);
    }
    for (const QString &text : without) {
        for (const QChar letter : text) {
            if (letter.isLetterOrNumber() && !users.contains(u"Alt+"_s + letter.toUpper()))
                faults << text + u" has no letter, though free is "_s + letter;
        }
    }
    return faults;
}

} // namespace

class tst_Walk : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { desktop::Style::install(); }
    void cleanup() { closeStations(); }

    void everyStopHasANameAndAPlaceInTheOrder_data()
    {
        QTest::addColumn<const Station *>("station");
        for (const Station &station : stations())
            QTest::newRow(station.name) << &station;
    }
    void everyStopHasANameAndAPlaceInTheOrder()
    {
        QFETCH(const Station *, station);
        DataStoreFolder folder;
        CaughtErrors errors;
        MDIBaseForm &frame = MDIBaseForm::frame();
        frame.resize(1600, 1200);
        frame.show();
        QWidget *window = station->open();
        window->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window->window()));
        QStringList faults;
        if (!window->inherits("DisplayInformation")) // whose pages the station has turned
            faults << faultsOfBeginning(QApplication::focusWidget());
        faults << faultsOfReading(QAccessible::queryAccessibleInterface(window));
        faults << faultsOfWalk(*window);
        faults << faultsOfLetters(*window);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    // Menus, bars, panes and windows, without a mouse; an open menu keeps the keys of its window to itself.
    void keysLeadThroughTheFrame()
    {
        DataStoreFolder folder;
        CaughtErrors errors;
        MDIBaseForm &frame = MDIBaseForm::frame();
        frame.Show();
        QVERIFY(QTest::qWaitForWindowActive(&frame));
        const auto focused = [] {
            QWidget *menu = QApplication::activePopupWidget();
            return menu ? menu : QApplication::focusWidget();
        };
        const auto round = [&focused](Qt::KeyboardModifiers held) {
            QStringList stops;
            for (int press = 0; press < 5; ++press) {
                QTest::keyClick(focused(), Qt::Key_F6, held);
                stops << nameOf(focused());
            }
            return stops.join(u", "_s);
        };
        QCOMPARE(round({}), u"Member Information, File, Telephone Conference, Delete Member, Groups"_s);
        QCOMPARE(round(Qt::ShiftModifier), u"Delete Member, Telephone Conference, File, Member Information, Groups"_s);
        for (int press = 0; press < 3; ++press)
            QTest::keyClick(focused(), Qt::Key_F6);
        QTest::keyClick(focused(), Qt::Key_Right);
        QTest::keyClick(focused(), Qt::Key_Return); // Find
        QTest::keyClick(focused(), Qt::Key_T, Qt::ControlModifier);
        const auto active = [&frame] { return frame.area().activeSubWindow()->widget()->objectName(); };
        QStringList walked{active()};
        for (const char *keys : {"Ctrl+F6", "Ctrl+F6", "Ctrl+Shift+F6", "Ctrl+W", "Ctrl+F4"}) {
            const QKeyCombination pressed = QKeySequence(QLatin1StringView(keys))[0];
            QTest::keyClick(focused(), pressed.key(), pressed.keyboardModifiers());
            walked << active();
        }
        QCOMPARE(walked.join(u' '),
                 u"frmMeeting FrmDataBaseExplorer frmFindInfo FrmDataBaseExplorer frmFindInfo frmMeeting"_s);
        QCOMPARE(frame.area().subWindowList().size(), 1);
        desktop::showNew<DisplayMembers>([](DisplayMembers &dossier) { dossier.MemberId = 1; });
        QTest::keyClick(focused(), Qt::Key_PageUp, Qt::ControlModifier);
        const QWidget *notes = focused();
        QTest::keyClick(focused(), Qt::Key_Return); // opens the first one
        QCOMPARE(active(), u"frmMeeting"_s);
        QTest::keyClick(focused(), Qt::Key_Escape);
        QTRY_COMPARE(focused(), notes); // and not a stop further on
    }

    // What has a letter keeps it while pages are turned, tabs come and go and buttons change their captions.
    void lettersStayWhileAWindowIsOpen()
    {
        DataStoreFolder folder;
        CaughtErrors errors;
        MDIBaseForm::frame().show();
        auto *record = desktop::showNew<DisplayInformation>([](DisplayInformation &window) { window.RecordId = 2; });
        QHash<QString, QKeySequence> letters;
        for (const char step : QByteArray("123451e12s12341es")) { // a page, Edit, or Save
            if (step == 'e' || step == 's')
                (step == 'e' ? record->cmdEdit : record->cmdDelete)->click();
            else
                record->TabStrip1->setSelectedItem(step - '0');
            QCoreApplication::sendPostedEvents();
            for (const auto &[text, key] : keyedParts(*record)) {
                QKeySequence &letter = letters[desktop::captionOf(text)];
                QVERIFY2(letter.isEmpty() || letter == key, qPrintable(text));
                letter = key;
            }
        }
    }
};

QTEST_MAIN(tst_Walk)
#include "tst_walk.moc"
