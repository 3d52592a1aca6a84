#include "SessionBus.h"

#include <QFileInfo>

#include <dbus/dbus.h>

#include <algorithm>
#include <thread>
#include <utility>

using namespace std::chrono_literals;

namespace {

/// How long the session's bus may take to answer a start.
constexpr std::chrono::milliseconds patience = 500ms;

const char *const variable = "DBUS_SESSION_BUS_ADDRESS";

/// Where the bus of the session is, if there is one.
QByteArray busAddress()
{
    const QByteArray address = qgetenv(variable);
    return address.isEmpty() ? "unix:path=" + qgetenv("XDG_RUNTIME_DIR") + "/bus" : address;
}

/// Connects and says hello. That may take for ever.
SessionBus::OwnConnection connectApartTo(const QByteArray &address)
{
    SessionBus::OwnConnection bus(dbus_connection_open_private(address.constData(), nullptr));
    if (!bus)
        return nullptr;
    dbus_connection_set_exit_on_disconnect(bus.get(), FALSE);
    return dbus_bus_register(bus.get(), nullptr) ? std::move(bus) : nullptr;
}

/// The toolkit's own connection, or where that is lost, another one.
QDBusConnection connectTo(const QByteArray &address)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected())
        return bus;
    static int count = 0;
    return QDBusConnection::connectToBus(QString::fromLocal8Bit(address), QStringLiteral("session %1").arg(++count));
}

/// The file through which the bus is spoken to; empty where it is none.
QString socketFile()
{
    const QByteArray address = busAddress();
    const QByteArray prefix = "unix:path=";
    if (!address.startsWith(prefix))
        return {};
    const QByteArray path = address.mid(prefix.size());
    const auto end = std::find_if(path.begin(), path.end(), [](char c) { return c == ',' || c == ';'; });
    return QString::fromLocal8Bit(QByteArray::fromPercentEncoding(path.left(end - path.begin())));
}

}

SessionBus &SessionBus::instance()
{
    // Never destroyed: a thread that waits for a silent bus may outlive everything.
    static auto *const bus = new SessionBus;
    return *bus;
}

bool SessionBus::isPresent()
{
    const QByteArray address = qgetenv(variable);
    if (!address.isEmpty())
        return !address.contains("autolaunch:");
    const QString runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !runtimeFolder.isEmpty() && QFileInfo::exists(runtimeFolder + QStringLiteral("/bus"));
}

std::optional<QDBusConnection> SessionBus::connection()
{
    return connectionWithin(instance().left());
}

std::optional<QDBusConnection> SessionBus::connectionNow()
{
    return connectionWithin(0ms);
}

std::optional<QDBusConnection> SessionBus::connectionWithin(std::chrono::milliseconds limit)
{
    SessionBus &self = instance();
    if (!self.current()) {
        self.begin();
        if (self.m_attempt.valid())
            self.m_attempt.wait_for(limit);
        self.take();
        if (!self.current())
            self.watchSocket();
    }
    return self.current();
}

void SessionBus::Close::operator()(DBusConnection *bus) const
{
    dbus_connection_close(bus);
    dbus_connection_unref(bus);
}

SessionBus::OwnConnection SessionBus::connectApart()
{
    return connectApartTo(busAddress());
}

/// What is left of the patience that the first attempt is met with.
std::chrono::milliseconds SessionBus::left() const
{
    const auto now = std::chrono::steady_clock::now();
    const auto end = m_begun.value_or(now) + patience;
    return std::max(std::chrono::duration_cast<std::chrono::milliseconds>(end - now), 0ms);
}

QDBusMessage SessionBus::question()
{
    return QDBusMessage::createMethodCall(busName, busPath, busName, QStringLiteral("GetId"));
}

QDBusMessage SessionBus::answer(const QDBusConnection &bus, const QDBusMessage &call, std::chrono::milliseconds limit)
{
    const QDBusPendingCall pending = bus.asyncCall(call, int(limit.count()));
    waitFor(pending, limit);
    return pending.reply();
}

void SessionBus::waitFor(QDBusPendingCall call, std::chrono::milliseconds limit)
{
    if (call.isFinished())
        return;
    const auto ended = std::make_shared<std::promise<void>>();
    std::thread([call, ended]() mutable {
        call.waitForFinished();
        ended->set_value();
    }).detach();
    ended->get_future().wait_for(limit);
}

std::optional<QDBusConnection> SessionBus::current() const
{
    return m_bus && m_bus->isConnected() ? m_bus : std::nullopt;
}

void SessionBus::begin()
{
    if (current() || m_attempt.valid() || !isPresent())
        return;
    if (!m_begun)
        m_begun = std::chrono::steady_clock::now();
    m_address = busAddress();
    auto result = std::make_shared<std::promise<bool>>();
    m_attempt = result->get_future().share();
    std::thread([this, result, address = m_address] {
        result->set_value(connectApartTo(address) != nullptr);
        QMetaObject::invokeMethod(this, &SessionBus::take, Qt::QueuedConnection);
    }).detach();
}

void SessionBus::connectAhead()
{
    if (!m_attempt.valid())
        return;
    std::thread([attempt = m_attempt, limit = left()] {
        const bool answers = attempt.wait_for(limit) == std::future_status::ready && attempt.get();
        if (answers)
            QDBusConnection::sessionBus();
    }).detach();
}

/// Connects, once the attempt has ended with an answer.
void SessionBus::take()
{
    if (!m_attempt.valid() || m_attempt.wait_for(0ms) != std::future_status::ready)
        return;
    if (std::exchange(m_attempt, {}).get())
        m_bus = connectTo(m_address);
    if (!current()) {
        if (std::exchange(m_hasNews, false))
            begin();
        return;
    }
    m_socketFolder.reset();
    m_bus->connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                   QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                   SLOT(disconnected()));
    emit connected();
}

bool SessionBus::hasAnswered()
{
    SessionBus &self = instance();
    self.begin();
    return isPresent() && self.m_attempt.valid() && self.m_attempt.wait_for(self.left()) == std::future_status::ready
        && self.m_attempt.get();
}

void SessionBus::guardToolkit()
{
    if (connection())
        return;
    const QByteArray address = qgetenv(variable);
    qputenv(variable, "disabled:");
    [[maybe_unused]] const QDBusConnection none = QDBusConnection::sessionBus();
    if (address.isEmpty())
        qunsetenv(variable);
    else
        qputenv(variable, address);
}

void SessionBus::disconnected()
{
    if (m_bus)
        QDBusConnection::disconnectFromBus(m_bus->name());
    m_bus.reset();
    watchSocket();
    emit lost();
}

void SessionBus::watchSocket()
{
    const QString file = socketFile();
    if (file.isEmpty() || m_socketFolder)
        return;
    m_socketFolder = std::make_unique<QFileSystemWatcher>();
    m_socketFolder->addPath(QFileInfo(file).path());
    connect(m_socketFolder.get(), &QFileSystemWatcher::directoryChanged, this, &SessionBus::look);
    // It may have come since the attempt and before the watch.
    if (!m_attempt.valid() && QFileInfo::exists(file))
        begin();
}

void SessionBus::look()
{
    m_hasNews = m_attempt.valid();
    if (QFileInfo::exists(socketFile()))
        begin();
}
