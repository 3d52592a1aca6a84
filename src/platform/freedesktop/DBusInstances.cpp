#include "DBusInstances.h"

#include "SessionBus.h"
#include "X11Connection.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

namespace {

constexpr int startLimit = 5000; // milliseconds

const QString interface = QStringLiteral("org.freedesktop.Application");

QString path(const QString &name)
{
    return u'/' + QString(name).replace(u'.', u'/');
}

Instances::Start outcomeOf(const QDBusMessage &answer)
{
    if (answer.type() == QDBusMessage::ReplyMessage)
        return Instances::Start::running;
    const bool isUnknown = QDBusError(answer).type() == QDBusError::ServiceUnknown;
    return isUnknown ? Instances::Start::notInstalled : Instances::Start::failed;
}

}

bool DBusInstances::claim(const QString &name)
{
    auto bus = SessionBus::connection();
    if (!bus)
        return true;
    m_name = name;
    // What this start was given is used up, or kept here: a program that is started from here must not have it. On
    // Wayland the first window still takes it.
    if (X11::connection())
        ActivationToken::clearEnvironment();
    // Requests come as soon as the bus knows the name.
    bus->registerObject(path(name), this, QDBusConnection::ExportAllSlots);
    return bus->registerService(name);
}

bool DBusInstances::ask(const QString &name, const Request &request)
{
    const auto bus = SessionBus::connection();
    if (!bus)
        return false;
    const bool isPlain = request.action.isEmpty();
    QDBusMessage call = QDBusMessage::createMethodCall(
        name, path(name), interface, isPlain ? QStringLiteral("Activate") : QStringLiteral("ActivateAction"));
    if (!isPlain)
        call << request.action << (request.argument.isEmpty() ? QVariantList() : QVariantList{request.argument});
    call << m_given.platformData();
    call.setAutoStartService(false);
    return bus->call(call).type() == QDBusMessage::ReplyMessage;
}

void DBusInstances::start(const QString &name, const Started &started)
{
    const auto bus = SessionBus::connection();
    if (!bus) {
        if (started)
            started(Start::notInstalled);
        return;
    }
    QDBusMessage call =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                                       QStringLiteral("org.freedesktop.DBus"), QStringLiteral("StartServiceByName"));
    constexpr uint noFlags = 0;
    call << name << noFlags;
    if (!started) {
        bus->send(call);
        return;
    }
    auto *answer = new QDBusPendingCallWatcher(bus->asyncCall(call, startLimit), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [answer, started] {
        answer->deleteLater();
        started(outcomeOf(answer->reply()));
    });
}

void DBusInstances::ActivateAction(const QString &action, const QVariantList &parameters,
                                   const QVariantMap &platformData)
{
    perform({action, parameters.value(0).toString()}, platformData);
}

void DBusInstances::perform(const Request &request, const QVariantMap &platformData)
{
    ActivationToken::in(platformData).putIntoEnvironment();
    if (!m_handler || m_handler(request))
        return;
    // Before the answer: whoever asked claims the name as soon as it comes.
    connection().unregisterService(m_name);
    sendErrorReply(QDBusError::Failed, QStringLiteral("The application is about to end."));
}
