#pragma once

#include "UserDefaults.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QObject>
#include <QStringList>
#include <QTest>

/// Hears of every write to the shared store, in the order in which they were made: on the bus, from the service that
/// makes them.
class StoreWrites : public QObject {
    Q_OBJECT
public:
    /// Begins with what is written from now on; `store` is the shared one.
    explicit StoreWrites(UserDefaults &store)
    {
        m_bus.connect(QString(), QStringLiteral("/ca/desrt/dconf/Writer/user"), QStringLiteral("ca.desrt.dconf.Writer"),
                      QStringLiteral("Notify"), this, SLOT(receive(QString, QStringList, QString)));
        // The bus takes the messages of a connection in order: with this answer it knows of the subscription.
        m_bus.interface()->isServiceRegistered(m_bus.baseService());
        // The service may still have to announce a write that is in the store already; it does so in order.
        static int fences = 0;
        const QString fence = QStringLiteral("fence%1").arg(++fences);
        store.setValue(fence, true);
        if (!QTest::qWaitFor([&] { return keys.contains(fence); }))
            QTest::qFail("a write to the store is not heard", __FILE__, __LINE__);
        keys.clear();
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
