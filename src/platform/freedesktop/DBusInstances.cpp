#include "DBusInstances.h"

#include "SessionBus.h"
#include "X11Connection.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

using namespace std::chrono_literals;

namespace {

constexpr int startLimit = 5000; // milliseconds

/// How long the bus may take to give a name.
constexpr std::chrono::seconds claimLimit = 5s;
/// How long another instance may take to come to the front.
constexpr std::chrono::seconds askLimit = 25s;

const QString interface = QStringLiteral("org.freedesktop.Application");

QString path(const QString &name)
{
    return u'/' + QString(name).replace(u'.', u'/');
}

QDBusMessage busCall(const QString &method, const QVariantList &arguments)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(SessionBus::busName, SessionBus::busPath, SessionBus::busName, method);
    call.setArguments(arguments);
    return call;
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
    m_name = name;
    auto bus = SessionBus::connection();
    // What this start was given is used up, or kept here: a program that is started from here must not have it. On
    // Wayland the first window still takes it.
    if (bus && X11::connection())
        ActivationToken::clearEnvironment();
    if (bus) {
        constexpr uint isAnothers = 3;
        const QDBusMessage answer = SessionBus::answer(*bus, offerRequests(*bus), claimLimit);
        if (answer.arguments().value(0).toUInt() == isAnothers)
            return false;
    }
    connect(&SessionBus::instance(), &SessionBus::connected, this, &DBusInstances::claimAgain, Qt::UniqueConnection);
    return true;
}

QDBusMessage DBusInstances::offerRequests(QDBusConnection &bus)
{
    // Requests come as soon as the bus knows the name.
    bus.registerObject(path(m_name), this, QDBusConnection::ExportAllSlots);
    constexpr uint doNotQueue = 4;
    return busCall(QStringLiteral("RequestName"), {m_name, doNotQueue});
}

/// Another bus knows no names.
void DBusInstances::claimAgain()
{
    if (auto bus = SessionBus::connectionNow())
        bus->send(offerRequests(*bus));
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
    return SessionBus::answer(*bus, call, askLimit).type() == QDBusMessage::ReplyMessage;
}

void DBusInstances::start(const QString &name, const Started &started)
{
    const auto bus = SessionBus::connection();
    if (!bus) {
        if (started)
            started(Start::notInstalled);
        return;
    }
    constexpr uint noFlags = 0;
    const QDBusMessage call = busCall(QStringLiteral("StartServiceByName"), {name, noFlags});
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
    connection().send(busCall(QStringLiteral("ReleaseName"), {m_name}));
    sendErrorReply(QDBusError::Failed, QStringLiteral("The application is about to end."));
}
