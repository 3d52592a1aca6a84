#include "CommandListener.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QTest>

namespace {
const QString connectionName = QStringLiteral("command listener");
}

CommandListener::CommandListener(const Store &store)
    : m_store(store), m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName))
{
    m_bus.connect(QString(), QStringLiteral("/com/vexmoor/corvane"), QStringLiteral("com.vexmoor.corvane"),
                  QStringLiteral("command"), QStringLiteral("a{sv}"), this, SLOT(receive(QVariantMap)));
}

CommandListener::~CommandListener()
{
    QDBusConnection::disconnectFromBus(connectionName);
}

bool CommandListener::waitForCount(qsizetype count, int milliseconds)
{
    return QTest::qWaitFor([this, count] { return m_heard.size() >= count; }, milliseconds);
}

void CommandListener::settleStore()
{
    // It does nothing, in its turn. A ping is no sign: another thread of the service answers it while a value is
    // written.
    const QDBusMessage question =
        QDBusMessage::createMethodCall(QStringLiteral("ca.desrt.dconf"), QStringLiteral("/ca/desrt/dconf/Writer/user"),
                                       QStringLiteral("ca.desrt.dconf.Writer"), QStringLiteral("Init"));
    constexpr int patience = 1000; // milliseconds
    m_bus.call(question, QDBus::Block, patience);
}

void CommandListener::settle(qint64 processId)
{
    // The bus delivers in order, so an answer from a connection comes after all it has sent before.
    const QStringList names = m_bus.interface()->registeredServiceNames();
    for (const QString &name : names) {
        if (name.startsWith(u':') && m_bus.interface()->servicePid(name) == processId) {
            m_bus.call(QDBusMessage::createMethodCall(
                name, QStringLiteral("/"), QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping")));
        }
    }
    QCoreApplication::processEvents();
}

void CommandListener::receive(const QVariantMap &userInfo)
{
    HeardCommand heard;
    heard.extras = userInfo;
    heard.command = heard.extras.take(QStringLiteral("command")).toString();
    if (heard.extras.contains(QStringLiteral("value")))
        heard.value = heard.extras.take(QStringLiteral("value"));
    heard.stored = m_store.readAll();
    m_heard.append(heard);
}
