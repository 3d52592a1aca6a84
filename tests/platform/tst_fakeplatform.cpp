#include "FakePlatform.h"
#include "TestProgram.h"

#include <QSignalSpy>

/// What a test can do with the services in memory, and see of them, beyond what they promise.
class FakePlatformTest : public QObject {
    Q_OBJECT
private slots:
    void init();

    void suitesThatCannotBeOpenedAreNull();
    void postsAreRecordedAndHeardAtOnce();
    void theWorkspaceRecords();
    void anAppearanceMayMatchNone();
    void aWindowMayTellNothing();
    void heldMonitorsAreCounted();

    void standingTimeStandsStill();
    void passingTimeRunsWhatFallsDueAtItsMoment();
    void whatWaitsIsCounted();

private:
    FakePlatform *m_fake = nullptr;
};

void FakePlatformTest::init()
{
    m_fake = &FakePlatform::install();
    QCOMPARE(&Platform::current(), m_fake);
}

void FakePlatformTest::suitesThatCannotBeOpenedAreNull()
{
    m_fake->suitesCanBeOpened = false;
    QVERIFY(!Platform::current().userDefaults(QStringLiteral("com.vexmoor.corvane")));
}

void FakePlatformTest::postsAreRecordedAndHeardAtOnce()
{
    DistributedNotificationCenter &center = Platform::current().distributedNotificationCenter();
    int heard = 0;
    center.observe(QStringLiteral("a"), this, [&](const QVariantMap &) { ++heard; });
    center.post(QStringLiteral("a"), {{QStringLiteral("command"), QStringLiteral("x")}});
    QCOMPARE(heard, 1);
    center.post(QStringLiteral("b"), {});
    QCOMPARE(m_fake->notifications.posts.size(), 2);
    QCOMPARE(m_fake->notifications.posts.at(0).userInfo.value(QStringLiteral("command")), QVariant("x"));
    QCOMPARE(m_fake->notifications.posts.at(1).name, QStringLiteral("b"));
}

void FakePlatformTest::theWorkspaceRecords()
{
    Workspace &workspace = Platform::current().workspace();
    workspace.openApplication(QUrl::fromLocalFile(QStringLiteral("/a.app")), {QStringLiteral("--about")}, [] {});
    QCOMPARE(m_fake->space.openedApplications.constFirst().arguments, QStringList(QStringLiteral("--about")));
    workspace.open(QUrl(QStringLiteral("https://example.com")));
    workspace.openLoginItemsSettings();
    QCOMPARE(m_fake->space.openedURLs.size(), 1);
    QCOMPARE(m_fake->space.loginItemsSettingsOpened, 1);
    workspace.openMissionControl();
    QCOMPARE(m_fake->space.missionControlOpened, 1);
}

void FakePlatformTest::anAppearanceMayMatchNone()
{
    QSignalSpy spy(&Platform::current().appearance(), &Appearance::changed);
    m_fake->look.setName(std::nullopt);
    m_fake->look.setName(std::nullopt);
    QVERIFY(!Platform::current().appearance().bestMatch());
    QCOMPARE(spy.size(), 1);
}

void FakePlatformTest::aWindowMayTellNothing()
{
    m_fake->windows.windows = {{}};
    const OnScreenWindow window = Platform::current().windowList().onScreenWindows().constFirst();
    QVERIFY(!window.layer && !window.ownerIsSystemSettings && !window.bounds);
}

void FakePlatformTest::heldMonitorsAreCounted()
{
    auto monitor = Platform::current().monitorKeyDown([](const KeyDown &) { return true; });
    QCOMPARE(m_fake->keyMonitorCount(), 1);
    monitor.reset();
    QCOMPARE(m_fake->keyMonitorCount(), 0);
}

void FakePlatformTest::standingTimeStandsStill()
{
    FakeMainQueue queue;
    int runs = 0;
    queue.after(0, this, [&] { ++runs; });
    queue.after(0.45, this, [&] { ++runs; });
    QCoreApplication::processEvents();
    QCOMPARE(runs, 0);
    queue.advance(0);
    QCOMPARE(runs, 1);
    queue.advance(0.449);
    QCOMPARE(runs, 1);
    queue.advance(0.001);
    QCOMPARE(runs, 2);
}

void FakePlatformTest::passingTimeRunsWhatFallsDueAtItsMoment()
{
    FakeMainQueue queue;
    QString order;
    auto repetition = queue.every(0.25, this, [&] { order += 'r'; });
    queue.after(0.3, this, [&] {
        order += 'a';
        // 0.4 from the beginning, so before the repetition runs again.
        queue.after(0.1, this, [&] { order += 'b'; });
    });
    queue.after(0.6, this, [&] { repetition.reset(); });
    queue.advance(2);
    QCOMPARE(order, "rabr");
}

void FakePlatformTest::whatWaitsIsCounted()
{
    FakeMainQueue queue;
    auto context = std::make_unique<QObject>();
    queue.after(1, context.get(), [] {});
    auto repetition = queue.every(1, this, [] {});
    QCOMPARE(queue.waiting(), 2);
    context.reset();
    QCOMPARE(queue.waiting(), 1);
    queue.advance(5);
    QCOMPARE(queue.waiting(), 1);
    repetition.reset();
    QCOMPARE(queue.waiting(), 0);
}

CORVANE_TEST(FakePlatformTest, runInCore)

#include "tst_fakeplatform.moc"
