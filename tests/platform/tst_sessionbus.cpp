#include "PrivateSession.h"
#include "SessionBus.h"
#include "TestProgram.h"

#include <QDeadlineTimer>

#include <thread>

using namespace std::chrono_literals;

/// The connection to a bus that is there from the start.
class SessionBusTest : public QObject {
    Q_OBJECT
public:
    explicit SessionBusTest(PrivateSession &) { }

private slots:
    void itIsMadeAhead();
};

void SessionBusTest::itIsMadeAhead()
{
    const auto isMade = [] { return QDBusConnection(QStringLiteral("qt_default_session_bus")).isConnected(); };
    SessionBus &bus = SessionBus::instance();
    bus.connectAhead();
    bus.begin();
    QVERIFY(!isMade());
    bus.connectAhead();
    // Handling events would make it too.
    const QDeadlineTimer deadline(5s);
    while (!isMade() && !deadline.hasExpired())
        std::this_thread::yield();
    QVERIFY(isMade());
    const auto connection = SessionBus::connectionNow();
    QVERIFY(connection);
    QCOMPARE(connection->name(), QStringLiteral("qt_default_session_bus"));
}

CORVANE_TEST(SessionBusTest, runInPrivateSession)
#include "tst_sessionbus.moc"
