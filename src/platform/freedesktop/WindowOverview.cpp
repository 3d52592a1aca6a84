#include "WindowOverview.h"

#include "SessionBus.h"

#include <QDBusMessage>
#include <QDBusVariant>

namespace {

/// A desktop that shows its overview while a property is true; the property's interface is the service's name.
struct Switch {
    const char *service;
    const char *path;
};

constexpr Switch switches[] = {
    {"org.gnome.Shell", "/org/gnome/Shell"},
    {"org.Cinnamon", "/org/Cinnamon"},
};

QDBusMessage switchedOn(const Switch &overview)
{
    const QString service = QString::fromLatin1(overview.service);
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, QString::fromLatin1(overview.path),
                                       QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Set"));
    call << service << QStringLiteral("OverviewActive") << QVariant::fromValue(QDBusVariant(true));
    return call;
}

/// The window manager opens it when its shortcut is invoked.
QDBusMessage shortcutInvoked()
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.kde.kglobalaccel"), QStringLiteral("/component/kwin"),
        QStringLiteral("org.kde.kglobalaccel.Component"), QStringLiteral("invokeShortcut"));
    call << QStringLiteral("Overview");
    return call;
}

}

void WindowOverview::open()
{
    const auto bus = SessionBus::connection();
    if (!bus)
        return;
    QList<QDBusMessage> calls = {shortcutInvoked()};
    for (const Switch &overview : switches)
        calls.append(switchedOn(overview));
    // Only the desktop that is running receives its call.
    for (QDBusMessage &call : calls) {
        call.setAutoStartService(false);
        bus->send(call);
    }
}
