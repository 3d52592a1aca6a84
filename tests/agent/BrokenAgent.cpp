#include "DconfUserDefaults.h"
#include "SessionBus.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

/// An agent that keeps to the contract but for the one rule that its argument names, and the part of it after a dash.
class BrokenAgent : public QObject {
    Q_OBJECT
public:
    explicit BrokenAgent(const QString &rule) : m_rule(rule)
    {
        m_isSecond = !claim();
        if (m_isSecond)
            return;
        listen();
        report("agent.launchAtLogin", false);
        if (breaks("bus"))
            return;
        connect(&SessionBus::instance(), &SessionBus::connected, this, [this] {
            claim();
            if (!breaks("bus-deaf"))
                listen();
        });
    }

    /// Whether it has nothing to do, as another one runs.
    bool ends() const { return m_isSecond && !breaks("one"); }

private slots:
    void hear(const QDBusMessage &message)
    {
        const QVariantList arguments = message.arguments();
        const bool isCommand = arguments.size() == 1 && message.signature() == "a{sv}";
        if (!isCommand) {
            if (breaks("strangers"))
                QCoreApplication::exit(1);
            return;
        }
        perform(qdbus_cast<QVariantMap>(arguments.constFirst()));
    }

private:
    bool claim() const
    {
        const auto bus = SessionBus::connectionWithin(std::chrono::seconds(20));
        return breaks("name") || (bus && bus->interface()->registerService("com.vexmoor.corvane").value());
    }
    void listen()
    {
        SessionBus::connectionNow()->connect(QString(), "/com/vexmoor/corvane", "com.vexmoor.corvane", "command", this,
                                             SLOT(hear(QDBusMessage)));
    }
    bool breaks(const char *rule) const { return m_rule == QLatin1String(rule); }
    void report(const QString &key, const QVariant &value) { m_store.setValue(key, value); }

    void perform(const QVariantMap &userInfo)
    {
        const QVariant command = userInfo.value("command");
        const QVariant value = userInfo.value("value");
        if (command == QVariant("setLaunchAtLogin")) {
            const bool isRepeated = breaks("login-twice") && m_store.value("agent.launchAtLogin") == value;
            if (value.typeId() == QMetaType::Bool || breaks("value"))
                report("agent.launchAtLogin", value.toBool() && !breaks("login") && !isRepeated);
        } else if (command == QVariant("requestAccessibility")) {
            report("agent.accessibilityTrusted", breaks("types") ? QVariant("yes") : QVariant(true));
        } else if (command == QVariant("applySettings")) {
            if (breaks("settings") && m_store.value("buttonTheme") != QVariant("classic"))
                m_store.setValue("buttonTheme", "classic");
            if (breaks("settings-unknown"))
                m_store.setValue("note", QVariant());
            const QString layouts = m_store.value("layouts.saved").toString();
            if (breaks("layouts") && !layouts.isEmpty())
                m_store.setValue("layouts.saved", QString(layouts).remove("\"colour\":\"blue\","));
        }
    }

    const QString m_rule;
    bool m_isSecond = false;
    DconfUserDefaults m_store{"com.vexmoor.corvane"};
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const BrokenAgent agent(QCoreApplication::arguments().value(1));
    return agent.ends() ? 0 : QCoreApplication::exec();
}

#include "BrokenAgent.moc"
