// Follows the desktop's wish for dark windows.
//
// The toolkit learns it by itself only where the desktop has a platform theme for it. All others tell it by their
// portal on the session bus, which is asked here: once, and again at each change. Without a bus or an answer nothing
// happens.
#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QPalette>

namespace desktop {

class DarkDesktop : public QObject
{
    Q_OBJECT
public:
    DarkDesktop();

private Q_SLOTS:
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void setDark(const QDBusVariant &scheme);

    bool m_dark = false;
    QPalette m_usual; // while the windows are dark
};

} // namespace desktop
