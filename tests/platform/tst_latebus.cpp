#include "DBusNotificationCenter.h"
#include "DconfUserDefaults.h"
#include "OutsideStore.h"
#include "PortalAppearance.h"
#include "PrivateSession.h"
#include "SessionBus.h"
#include "TestProgram.h"

#include <QElapsedTimer>
#include <QFile>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace std::chrono_literals;
using Trouble = UserDefaults::Trouble;

namespace {

/// Accepts connections and says nothing.
class SilentBus {
public:
    explicit SilentBus(const QString &file) : m_file(file.toStdString())
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        m_file.copy(address.sun_path, sizeof address.sun_path - 1);
        REQUIRE(bind(m_socket, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0);
        REQUIRE(listen(m_socket, 10) == 0);
    }
    ~SilentBus()
    {
        close(m_socket);
        unlink(m_file.c_str());
    }
    Q_DISABLE_COPY_MOVE(SilentBus)

private:
    std::string m_file;
    int m_socket = socket(AF_UNIX, SOCK_STREAM, 0);
};

}

/// A bus that is not there, or says nothing, when the services are made, and is there later.
class LateBusTest : public QObject {
    Q_OBJECT
public:
    explicit LateBusTest(PrivateSession &session) : m_session(session) { }

private slots:
    void aBusThatComesIsUsed();

private:
    PrivateSession &m_session;
};

void LateBusTest::aBusThatComesIsUsed()
{
    std::optional<SilentBus> silent;
    if (qgetenv("CORVANE_BUS") == "silent")
        silent.emplace(m_session.busSocket());

    // Whoever needs the bus first waits a moment, and the others do not.
    QElapsedTimer timer;
    timer.start();
    DconfUserDefaults defaults(suiteName);
    // Time alone is no help here.
    defaults.setRetryInterval(1h);
    PortalAppearance appearance;
    appearance.settle();
    QVERIFY(timer.elapsed() < 200);
    defaults.setValue(QStringLiteral("key"), true);
    DBusNotificationCenter().post(QStringLiteral("com.vexmoor.corvane.command"), {});
    QVERIFY(timer.elapsed() < 750);
    QCOMPARE(defaults.trouble(), Trouble::noStore);
    QCOMPARE(defaults.value(QStringLiteral("key")), QVariant(true));

    silent.reset();
    QVERIFY(m_session.start());
    QTRY_COMPARE(defaults.trouble(), Trouble::none);
    QCOMPARE(readFromOutside(QStringLiteral("key")), "true");
    writeFromOutside(QStringLiteral("key"), QStringLiteral("false"));
    QTRY_COMPARE(defaults.value(QStringLiteral("key")), QVariant(false));
    QVERIFY(SessionBus::connectionNow());
}

static int runLateBus(int argc, char **argv)
{
    PrivateSession session;
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + QFile::encodeName(session.busSocket()));
    const QGuiApplication application(argc, argv);
    return runTest<LateBusTest>(argc, argv, session);
}

CORVANE_TEST_MAIN(runLateBus)

#include "tst_latebus.moc"
