#include "DBusNotificationCenter.h"

#include "DBusSignalReceiver.h"
#include "SessionBus.h"

#include <QDBusMessage>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

/// Long enough for any bus that works, short enough for a person not to notice one that does not.
constexpr std::chrono::milliseconds flushLimit = 250ms;

/// A busy machine may keep its bus from answering for a while.
constexpr std::chrono::seconds slowestSession{5};

constexpr int longestName = 255;

struct Signal {
    QString path;
    QString interface;
    QString member;
};

bool isElement(QStringView text)
{
    const auto isLetter = [](QChar character) {
        return character == u'_' || (character >= u'a' && character <= u'z')
            || (character >= u'A' && character <= u'Z');
    };
    return !text.isEmpty() && isLetter(text.front()) && std::all_of(text.begin(), text.end(), [&](QChar character) {
        return isLetter(character) || (character >= u'0' && character <= u'9');
    });
}

std::optional<Signal> signalNamed(const QString &name)
{
    const QList<QStringView> elements = QStringView(name).split(u'.');
    if (elements.size() < 3 || name.size() > longestName || !std::all_of(elements.begin(), elements.end(), isElement))
        return std::nullopt;
    const QString interface = name.chopped(elements.last().size() + 1);
    return Signal{u'/' + QString(interface).replace(u'.', u'/'), interface, elements.last().toString()};
}

// Sending only hands the message to another thread. Once the bus has answered something sent later, it has
// the message, and this process may end without losing it.
void flush(const QDBusConnection &bus)
{
    SessionBus::answer(bus, SessionBus::question(), flushLimit);
}

}

void DBusNotificationCenter::post(const QString &name, const QVariantMap &userInfo)
{
    const auto signal = signalNamed(name);
    const auto bus = SessionBus::connection();
    if (!signal || !bus)
        return;
    QDBusMessage message = QDBusMessage::createSignal(signal->path, signal->interface, signal->member);
    message << userInfo;
    if (bus->send(message))
        flush(*bus);
}

bool DBusNotificationCenter::isAvailable() const
{
    return SessionBus::connectionWithin(slowestSession).has_value();
}

void DBusNotificationCenter::whenLost(QObject *context, std::function<void()> lost)
{
    QObject::connect(&SessionBus::instance(), &SessionBus::lost, context, std::move(lost));
}

void DBusNotificationCenter::observe(const QString &name, QObject *context, Observer observer)
{
    const auto signal = signalNamed(name);
    if (!signal)
        return;
    auto *receiver = new DBusSignalReceiver(std::move(observer), context);
    const auto listen = [signal = *signal, receiver](std::optional<QDBusConnection> bus) {
        if (bus)
            bus->connect(QString(), signal.path, signal.interface, signal.member, receiver, SLOT(receive(QVariantMap)));
    };
    listen(SessionBus::connection());
    // Another bus knows nothing of it.
    QObject::connect(&SessionBus::instance(), &SessionBus::connected, receiver,
                     [listen] { listen(SessionBus::connectionNow()); });
}
