#pragma once

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QObject>
#include <QStringList>

/// Hears of every write to the shared store, in the order in which they were made: on the bus, from the service that
/// makes them.
class StoreWrites : public QObject {
    Q_OBJECT
public:
    StoreWrites()
    {
        m_bus.connect(QString(), QStringLiteral("/ca/desrt/dconf/Writer/user"), QStringLiteral("ca.desrt.dconf.Writer"),
                      QStringLiteral("Notify"), this, SLOT(receive(QString, QStringList, QString)));
        // The bus takes the messages of a connection in order: with this answer it knows of the subscription.
        m_bus.interface()->isServiceRegistered(m_bus.baseService());
    }

    /// The keys that were written, each as often as it was.
    QStringList keys;

private slots:
    void receive(const QString &path, const QStringList &names, const QString &)
    {
        const QString folder = QStringLiteral("/com/vexmoor/corvane/");
        for (const QString &name : names) {
            const QString written = path + name;
            if (written.startsWith(folder))
                keys.append(written.mid(folder.size()));
        }
    }

private:
    QDBusConnection m_bus = QDBusConnection::sessionBus();
};
