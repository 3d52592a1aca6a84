#include "WindowOverview.h"

#include "SessionBus.h"

#include <QDBusMessage>
#include <QDBusVariant>

using namespace std::chrono_literals;

namespace {

/// How long the bus may take to say who is there. It needs none of the desktops for that.
constexpr std::chrono::seconds patience = 1s;

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

/// The shortcuts of KWin belong to a service that other desktops may run, too.
constexpr const char *kwin = "org.kde.KWin";

QDBusMessage shortcutInvoked()
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.kde.kglobalaccel"), QStringLiteral("/component/kwin"),
        QStringLiteral("org.kde.kglobalaccel.Component"), QStringLiteral("invokeShortcut"));
    call << QStringLiteral("Overview");
    return call;
}

QStringList runningServices(QDBusConnection &bus)
{
    const QDBusMessage question =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                                       QStringLiteral("org.freedesktop.DBus"), QStringLiteral("ListNames"));
    return SessionBus::answer(bus, question, patience).arguments().value(0).toStringList();
}

}

bool WindowOverview::open()
{
    auto bus = SessionBus::connection();
    if (!bus)
        return false;
    const QStringList running = runningServices(*bus);
    QList<QDBusMessage> calls;
    for (const Switch &overview : switches) {
        if (running.contains(QLatin1String(overview.service)))
            calls.append(switchedOn(overview));
    }
    if (running.contains(QLatin1String(kwin)))
        calls.append(shortcutInvoked());
    for (QDBusMessage &call : calls) {
        call.setAutoStartService(false);
        bus->send(call);
    }
    return !calls.isEmpty();
}
