#include "platform/desktop/DarkDesktop.h"

#include "platform/desktop/Style.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace desktop {

namespace {

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString objectPath = u"/org/freedesktop/portal/desktop"_s;
const QString interface = u"org.freedesktop.portal.Settings"_s;
const QString appearance = u"org.freedesktop.appearance"_s;
const QString colorScheme = u"color-scheme"_s;
constexpr uint preferDark = 1;

} // namespace

DarkDesktop::DarkDesktop()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    qRegisterMetaType<QDBusVariant>(); // or else the slot's type is unknown when the signal is connected
    bus.connect(service, objectPath, interface, u"SettingChanged"_s, this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage read = QDBusMessage::createMethodCall(service, objectPath, interface, u"Read"_s);
    read << appearance << colorScheme;
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid()) // it holds the value in a variant of its own
            setDark(reply.value().variant().value<QDBusVariant>());
    });
}

void DarkDesktop::settingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    if (group == appearance && key == colorScheme)
        setDark(value);
}

void DarkDesktop::setDark(const QDBusVariant &scheme)
{
    const bool dark = scheme.variant().toUInt() == preferDark;
    if (std::exchange(m_dark, dark) == dark)
        return;
    if (dark)
        m_usual = QApplication::palette();
    QApplication::setPalette(dark ? darkPalette() : m_usual);
}

} // namespace desktop
