#include "FakePortal.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QMap>
#include <QMutex>

namespace {

const QString connectionName = QStringLiteral("fake portal");
const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");

using Groups = QMap<QString, QVariantMap>;

QVariant wrapped(const QVariant &value)
{
    return QVariant::fromValue(QDBusVariant(value));
}

}

/// Answers the calls. It lives on the portal's thread; the values are guarded, for the test changes them.
class PortalSettings : public QDBusVirtualObject {
public:
    PortalSettings(const QVariantMap &values, uint version) : m_values(values), m_version(version) { }

    void insert(const QVariantMap &values)
    {
        const QMutexLocker lock(&m_mutex);
        m_values.insert(values);
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        const QDBusMessage answer = reply(message);
        return answer.type() != QDBusMessage::InvalidMessage && connection.send(answer);
    }

private:
    QDBusMessage reply(const QDBusMessage &call) const
    {
        const QMutexLocker lock(&m_mutex);
        const QString member = call.member();
        if (member == QLatin1String("Get"))
            return call.createReply(wrapped(m_version));
        if (member == QLatin1String("ReadAll"))
            return call.createReply(QVariant::fromValue(Groups{{appearanceGroup, m_values}}));
        const bool one = member == QLatin1String("ReadOne") && m_version >= 2;
        if (!one && member != QLatin1String("Read"))
            return {};
        const QString key = call.arguments().value(1).toString();
        if (call.arguments().value(0) != appearanceGroup || !m_values.contains(key)) {
            return call.createErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"),
                                         QStringLiteral("Requested setting not found"));
        }
        // The older call wraps its answer twice.
        const QVariant value = wrapped(m_values[key]);
        return call.createReply(one ? value : wrapped(value));
    }

    mutable QMutex m_mutex;
    QVariantMap m_values;
    const uint m_version;
};

FakePortal::FakePortal(const QVariantMap &appearance, uint version)
    : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName)),
      m_settings(std::make_unique<PortalSettings>(appearance, version))
{
    qDBusRegisterMetaType<Groups>();
    m_settings->moveToThread(&m_thread);
    m_thread.start();
    m_bus.registerVirtualObject(path, m_settings.get());
    m_bus.registerService(service);
}

FakePortal::~FakePortal()
{
    m_bus.unregisterService(service);
    m_bus.unregisterObject(path);
    QDBusConnection::disconnectFromBus(connectionName);
    m_thread.quit();
    m_thread.wait();
}

QVariantMap FakePortal::colorScheme(ColorScheme scheme)
{
    return {{QStringLiteral("color-scheme"), uint(scheme)}};
}

QVariantMap FakePortal::contrast(bool high)
{
    return {{QStringLiteral("contrast"), uint(high)}};
}

QVariantMap FakePortal::reducedMotion(bool reduced)
{
    return {{QStringLiteral("reduced-motion"), uint(reduced)}};
}

void FakePortal::change(const QVariantMap &appearance)
{
    m_settings->insert(appearance);
    for (auto entry = appearance.cbegin(); entry != appearance.cend(); ++entry) {
        QDBusMessage signal = QDBusMessage::createSignal(path, interface, QStringLiteral("SettingChanged"));
        signal << appearanceGroup << entry.key() << wrapped(entry.value());
        m_bus.send(signal);
    }
}
