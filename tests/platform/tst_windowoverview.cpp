#include "PrivateSession.h"
#include "TestProgram.h"
#include "WindowOverview.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QDir>
#include <QFile>

namespace {

/// A desktop's service on a connection of its own, which writes down what it is asked for.
class Shell : public QDBusVirtualObject {
public:
    /// `desktop` is a further name by which the desktop is known to run; empty for none.
    Shell(const QString &service, const QString &path, const QString &desktop)
        : m_service(service), m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, service))
    {
        m_bus.registerVirtualObject(path, this);
        m_isThere = m_bus.registerService(service) && (desktop.isEmpty() || m_bus.registerService(desktop));
    }
    ~Shell() override { QDBusConnection::disconnectFromBus(m_service); }

    bool isThere() const { return m_isThere; }
    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        QVariantList arguments = message.arguments();
        for (QVariant &argument : arguments) {
            if (argument.typeId() == qMetaTypeId<QDBusVariant>())
                argument = argument.value<QDBusVariant>().variant();
        }
        calls.append(message.interface() + u'.' + message.member());
        lastArguments = arguments;
        bus.send(message.createReply());
        return true;
    }

    QStringList calls;
    QVariantList lastArguments;

private:
    QString m_service;
    QDBusConnection m_bus;
    bool m_isThere = false;
};

}

/// Mission Control on the desktops that have something like it.
class WindowOverviewTest : public QObject {
    Q_OBJECT
public:
    explicit WindowOverviewTest(PrivateSession &session) : m_session(session) { }

private slots:
    void theDesktopThatRunsShowsItsOverview_data();
    void theDesktopThatRunsShowsItsOverview();
    void shortcutsWithoutTheirWindowManagerAreNoOverview();
    void aServiceThatDoesNotRunIsNotStarted();
    void withoutABusNothingHappens();

private:
    PrivateSession &m_session;
};

void WindowOverviewTest::theDesktopThatRunsShowsItsOverview_data()
{
    QTest::addColumn<QString>("service");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("desktop");
    QTest::addColumn<QString>("call");
    QTest::addColumn<QVariantList>("arguments");
    const QString set = "org.freedesktop.DBus.Properties.Set";
    QTest::newRow("GNOME") << "org.gnome.Shell"
                           << "/org/gnome/Shell"
                           << "" << set << QVariantList{"org.gnome.Shell", "OverviewActive", true};
    QTest::newRow("Cinnamon") << "org.Cinnamon"
                              << "/org/Cinnamon"
                              << "" << set << QVariantList{"org.Cinnamon", "OverviewActive", true};
    QTest::newRow("KDE") << "org.kde.kglobalaccel"
                         << "/component/kwin"
                         << "org.kde.KWin"
                         << "org.kde.kglobalaccel.Component.invokeShortcut" << QVariantList{"Overview"};
}

void WindowOverviewTest::theDesktopThatRunsShowsItsOverview()
{
    QFETCH(QString, service);
    QFETCH(QString, path);
    QFETCH(QString, desktop);
    QFETCH(QString, call);
    QFETCH(QVariantList, arguments);
    Shell shell(service, path, desktop);
    QVERIFY(shell.isThere());
    QVERIFY(WindowOverview::open());
    // It was not waited for.
    QCOMPARE(shell.calls, QStringList());
    QTRY_COMPARE(shell.calls, QStringList{call});
    QCOMPARE(shell.lastArguments, arguments);
}

void WindowOverviewTest::shortcutsWithoutTheirWindowManagerAreNoOverview()
{
    const Shell shell("org.kde.kglobalaccel", "/component/kwin", {});
    QVERIFY(shell.isThere());
    QVERIFY(!WindowOverview::open());
}

void WindowOverviewTest::aServiceThatDoesNotRunIsNotStarted()
{
    // The bus of this session could start it.
    const QString started = m_session.dataFolder() + "/started";
    QVERIFY(QFile::exists(m_session.dataFolder() + "/dbus-1/services/org.gnome.Shell.service"));
    QVERIFY(!WindowOverview::open());
    // An answer from the bus comes after it has dealt with what was sent before.
    auto ask = QDBusMessage::createMethodCall("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "ListNames");
    QVERIFY(QDBusConnection::sessionBus().call(ask).type() == QDBusMessage::ReplyMessage);
    QVERIFY(!QFile::exists(started));
    // Whoever does ask for it starts it.
    ask = QDBusMessage::createMethodCall("org.gnome.Shell", "/", "org.freedesktop.DBus.Peer", "Ping");
    QDBusConnection::sessionBus().send(ask);
    QTRY_VERIFY(QFile::exists(started));
}

void WindowOverviewTest::withoutABusNothingHappens()
{
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    QVERIFY(!WindowOverview::open());
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
}

static int runWindowOverview(int argc, char **argv)
{
    PrivateSession session;
    const QString services = session.dataFolder() + "/dbus-1/services";
    QDir().mkpath(services);
    QFile service(services + "/org.gnome.Shell.service");
    if (!service.open(QFile::WriteOnly))
        return 1;
    service.write("[D-BUS Service]\nName=org.gnome.Shell\nExec=/usr/bin/touch " + session.dataFolder().toUtf8()
                  + "/started\n");
    service.close();
    if (!session.start({"org.gnome.Shell"}))
        return 1;
    const QGuiApplication application(argc, argv);
    return runTest<WindowOverviewTest>(argc, argv, session);
}

CORVANE_TEST_MAIN(runWindowOverview)

#include "tst_windowoverview.moc"
