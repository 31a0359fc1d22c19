// The toggles of the keyboard: Caps Lock, Num Lock and Insert.
//
// The locks are asked of the display where it can tell, and else counted from the keys that are pressed in this
// program. Insert is off at start and changes with each press of its key in this program. One object lives as long as
// the application.
#pragma once

#include <QObject>

namespace desktop {

class KeyboardState : public QObject
{
    Q_OBJECT
public:
    static KeyboardState &instance();

    bool capsLock() const { return m_capsLock; }
    bool numLock() const { return m_numLock; }
    bool insert() const { return m_insert; }

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit KeyboardState(QObject *parent);
    void ask();
    void take(bool capsLock, bool numLock, bool insert);

    bool m_capsLock = false;
    bool m_numLock = false;
    bool m_insert = false;
};

} // namespace desktop
