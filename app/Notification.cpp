#include "app/Notification.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QGuiApplication>
#include <QVariantMap>

namespace dravolin {

void sendNotification(const QString &summary, const QString &body)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    const uint replacesNone = 0;
    const int usualTime = -1;
    const QVariantMap hints = {{QStringLiteral("desktop-entry"), QGuiApplication::desktopFileName()}};
    call.setArguments({QGuiApplication::applicationDisplayName(), replacesNone, QStringLiteral("dravolin"),
                       summary, body.toHtmlEscaped(), QStringList(), hints, usualTime});
    (void)bus.asyncCall(call);
}

} // namespace dravolin
