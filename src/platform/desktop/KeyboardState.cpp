#include "platform/desktop/KeyboardState.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace desktop {

namespace {

constexpr int askingInterval = 500; // milliseconds: another program may have changed a lock

struct Release
{
    void operator()(void *reply) const noexcept { std::free(reply); }
};

// The modifier keys that the X server has as held down, locks included; negative on a display of another kind.
int serverModifiers()
{
    const auto *x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t *connection = x11 ? x11->connection() : nullptr;
    if (!connection)
        return -1;
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const std::unique_ptr<xcb_query_pointer_reply_t, Release> reply(
        xcb_query_pointer_reply(connection, xcb_query_pointer(connection, screen->root), nullptr));
    return reply ? reply->mask : -1;
}

} // namespace

KeyboardState &KeyboardState::instance()
{
    static auto *const state = new KeyboardState(qApp);
    return *state;
}

KeyboardState::KeyboardState(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &KeyboardState::ask);
    timer->start(askingInterval);
    ask();
}

void KeyboardState::ask()
{
    const int modifiers = serverModifiers();
    if (modifiers >= 0)
        take(modifiers & XCB_MOD_MASK_LOCK, modifiers & XCB_MOD_MASK_2, m_insert);
}

void KeyboardState::take(bool capsLock, bool numLock, bool insert)
{
    if (capsLock == m_capsLock && numLock == m_numLock && insert == m_insert)
        return;
    m_capsLock = capsLock;
    m_numLock = numLock;
    m_insert = insert;
    Q_EMIT changed();
}

bool KeyboardState::eventFilter(QObject *watched, QEvent *event)
{
    // A key event visits the window and then its widgets; it counts once, at the window.
    if (event->type() == QEvent::KeyPress && watched->isWindowType()) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->isAutoRepeat())
            return false;
        const bool server = serverModifiers() >= 0;
        if (key->key() == Qt::Key_Insert && key->modifiers() == Qt::NoModifier)
            take(m_capsLock, m_numLock, !m_insert);
        else if (key->key() == Qt::Key_CapsLock && !server)
            take(!m_capsLock, m_numLock, m_insert);
        else if (key->key() == Qt::Key_NumLock && !server)
            take(m_capsLock, !m_numLock, m_insert);
    }
    if (event->type() == QEvent::KeyRelease && watched->isWindowType())
        ask();
    return false;
}

} // namespace desktop
