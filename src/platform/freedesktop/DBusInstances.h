#pragma once

#include "ActivationToken.h"
#include "Instances.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>

/// Names on the session bus. Who holds one answers there to org.freedesktop.Application, by which desktops open and
/// raise applications, under the path that the name makes with slashes instead of dots.
class DBusInstances : public QObject, public Instances, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    /// `given` is what this process was started with; it goes along when another one is asked.
    explicit DBusInstances(const ActivationToken &given) : m_given(given) { }

    bool claim(const QString &name) override;
    void setHandler(Handler handler) override { m_handler = std::move(handler); }
    bool ask(const QString &name, const Request &request) override;
    void start(const QString &name, const Started &started) override;

public slots:
    // The interface on the bus, with its names.
    void Activate(const QVariantMap &platformData) { perform({}, platformData); }
    void ActivateAction(const QString &action, const QVariantList &parameters, const QVariantMap &platformData);
    /// There are no documents here: the same as Activate.
    void Open(const QStringList &, const QVariantMap &platformData) { perform({}, platformData); }

private:
    /// Takes requests on that bus; the call that asks it for the name.
    QDBusMessage offerRequests(QDBusConnection &bus);
    void claimAgain();
    void perform(const Request &request, const QVariantMap &platformData);

    const ActivationToken m_given;
    Handler m_handler;
    QString m_name;
};
