#include "platform/desktop/FrameKeys.h"

#include "platform/desktop/MdiForm.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QToolBar>

#include <algorithm>
#include <utility>

namespace desktop {

namespace {

bool isStop(const QWidget &widget)
{
    return (widget.focusPolicy() & Qt::TabFocus) && widget.isEnabled() && widget.isVisible();
}

// The part of the window in which the widget stands.
QWidget *holderOf(QWidget *widget, QWidget *window)
{
    QWidget *topmost = widget;
    for (QWidget *at = widget; at && at != window; at = at->parentWidget()) {
        if (qobject_cast<QToolBar *>(at))
            return at;
        topmost = at;
    }
    return topmost == widget && qobject_cast<QAbstractItemView *>(widget) ? widget : window;
}

// The widgets of the window at which Tab stops, in its order; a label that can be clicked is no place to work at.
QList<QWidget *> stopsIn(QWidget *window)
{
    QList<QWidget *> stops;
    for (QWidget *at = window->nextInFocusChain(); at != window; at = at->nextInFocusChain()) {
        if (window->isAncestorOf(at) && isStop(*at) && !qobject_cast<QLabel *>(at))
            stops << at;
    }
    return stops;
}

} // namespace

FrameKeys::FrameKeys(MdiForm &frame) : QObject(&frame), m_frame(frame)
{
    add(Qt::Key_F6, [this] { goOnFrom(QApplication::focusWidget(), 1); });
    add(Qt::SHIFT | Qt::Key_F6, [this] { goOnFrom(QApplication::focusWidget(), -1); });
    add(Qt::CTRL | Qt::Key_F6, [this] { goToChild(1); });
    add(Qt::CTRL | Qt::SHIFT | Qt::Key_F6, [this] { goToChild(-1); });
    add(Qt::ALT | Qt::Key_Minus, [this] {
        if (QMdiSubWindow *child = m_frame.area().activeSubWindow())
            child->showSystemMenu();
    });
    for (const auto key : {Qt::Key_F4, Qt::Key_W})
        add(Qt::CTRL | key, [this] { m_frame.area().closeActiveSubWindow(); });
}

template <class Action> void FrameKeys::add(const QKeySequence &keys, Action action)
{
    connect(new QShortcut(keys, &m_frame), &QShortcut::activated, this, action);
}

// In the order in which the window reads.
QList<FrameKeys::Part> FrameKeys::partsOf(QWidget *window)
{
    QList<Part> parts;
    for (QWidget *stop : stopsIn(window)) {
        QWidget *holder = holderOf(stop, window);
        if (std::ranges::find(parts, holder, &Part::holder) == parts.end())
            parts << Part{holder, stop};
    }
    std::ranges::stable_sort(parts, {}, [window](const Part &part) {
        const QPoint place = part.entry->mapTo(window, QPoint());
        return std::pair(place.y(), place.x());
    });
    return parts;
}

QList<FrameKeys::Part> FrameKeys::parts() const
{
    QList<Part> parts{{m_frame.menuBar(), m_frame.menuBar()}};
    for (QToolBar *bar : m_frame.findChildren<QToolBar *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (const QList<QWidget *> stops = stopsIn(bar); !stops.isEmpty())
            parts << Part{bar, stops.constFirst()};
    }
    const QMdiSubWindow *child = m_frame.area().activeSubWindow();
    if (child && child->isVisible() && !child->isMinimized())
        parts << partsOf(child->widget());
    return parts;
}

// The innermost holder counts, for a window holds its bars and lists too.
void FrameKeys::goOnFrom(const QWidget *focus, int step)
{
    const QList<Part> all = parts();
    qsizetype at = -1;
    for (qsizetype each = 0; each < all.size(); ++each) {
        const bool holds = focus && (all[each].holder == focus || all[each].holder->isAncestorOf(focus));
        if (holds && (at < 0 || all[at].holder->isAncestorOf(all[each].holder)))
            at = each;
    }
    const Part &next = all[at < 0 ? 0 : (at + step + all.size()) % all.size()];
    if (next.holder == m_frame.menuBar())
        openFirstMenu();
    else
        next.entry->setFocus(Qt::ShortcutFocusReason);
}

// A menu bar takes no focus by setFocus(): beside the Alt key this is the only way into it.
void FrameKeys::openFirstMenu()
{
    QMenuBar *bar = m_frame.menuBar();
    QAction *first = nullptr;
    for (QAction *menu : bar->actions()) {
        if (!menu->menu() || !menu->isVisible())
            continue;
        menu->menu()->installEventFilter(this);
        if (!first)
            first = menu;
    }
    bar->setActiveAction(first);
}

// While a menu is open, no shortcut of the frame is heard.
bool FrameKeys::eventFilter(QObject *watched, QEvent *event)
{
    const auto *key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(event) : nullptr;
    if (!key || key->key() != Qt::Key_F6)
        return QObject::eventFilter(watched, event);
    qobject_cast<QMenu *>(watched)->close();
    goOnFrom(m_frame.menuBar(), key->modifiers() == Qt::ShiftModifier ? -1 : 1);
    return true;
}

void FrameKeys::goToChild(int step)
{
    const QList<QMdiSubWindow *> children = m_frame.openChildren(QMdiArea::CreationOrder);
    if (children.isEmpty())
        return;
    const qsizetype at = children.indexOf(m_frame.area().activeSubWindow());
    m_frame.area().setActiveSubWindow(children[(at + step + children.size()) % children.size()]);
}

} // namespace desktop
