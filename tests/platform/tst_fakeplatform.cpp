#include "FakePlatform.h"
#include "TestProgram.h"

#include <QSignalSpy>

class FakePlatformTest : public QObject {
    Q_OBJECT
private slots:
    void init();

    void aSuiteKeepsValuesAndAnnouncesChanges();
    void suitesThatCannotBeOpenedAreNull();
    void postsAreRecordedAndHeardWhileTheContextLives();
    void bundlesAreFoundByTheirURL();
    void theWorkspaceRecordsAndCompletesLater();
    void theAppearanceIsWhatItIsSetTo();
    void theWindowsAreThoseItIsGiven();
    void keysReachTheMonitorsThatAreHeld();

private:
    FakePlatform *m_fake = nullptr;
};

void FakePlatformTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    m_fake = &FakePlatform::install();
    QCOMPARE(&Platform::current(), m_fake);
}

void FakePlatformTest::aSuiteKeepsValuesAndAnnouncesChanges()
{
    const QString name = QStringLiteral("com.vexmoor.corvane");
    UserDefaults *suite = Platform::current().userDefaults(name);
    QCOMPARE(suite, &m_fake->suite(name));
    QSignalSpy spy(suite, &UserDefaults::changed);
    suite->setValue(QStringLiteral("key"), true);
    suite->setValue(QStringLiteral("key"), true);
    QCOMPARE(suite->value(QStringLiteral("key")), QVariant(true));
    QCOMPARE(spy.size(), 1);
    suite->setValue(QStringLiteral("key"), QVariant());
    QVERIFY(!suite->value(QStringLiteral("key")).isValid());
    QCOMPARE(spy.size(), 2);
}

void FakePlatformTest::suitesThatCannotBeOpenedAreNull()
{
    m_fake->suitesCanBeOpened = false;
    QVERIFY(!Platform::current().userDefaults(QStringLiteral("com.vexmoor.corvane")));
}

void FakePlatformTest::postsAreRecordedAndHeardWhileTheContextLives()
{
    DistributedNotificationCenter &center = Platform::current().distributedNotificationCenter();
    auto context = std::make_unique<QObject>();
    QList<QVariantMap> heard;
    center.observe(QStringLiteral("a"), context.get(), [&](const QVariantMap &userInfo) { heard.append(userInfo); });
    center.post(QStringLiteral("a"), {{QStringLiteral("command"), QStringLiteral("x")}});
    center.post(QStringLiteral("b"), {});
    context.reset();
    center.post(QStringLiteral("a"), {});
    QCOMPARE(heard, QList<QVariantMap>({{{QStringLiteral("command"), QStringLiteral("x")}}}));
    QCOMPARE(m_fake->notifications.posts.size(), 3);
    QCOMPARE(m_fake->notifications.posts.at(1).name, QStringLiteral("b"));
}

void FakePlatformTest::bundlesAreFoundByTheirURL()
{
    FakeBundle agent;
    agent.url = QUrl::fromLocalFile(QStringLiteral("/Corvane.app"));
    agent.info = {{QStringLiteral("CFBundleIdentifier"), QStringLiteral("com.vexmoor.corvane")}};
    agent.resources = {{QStringLiteral("a.ttf"), QUrl::fromLocalFile(QStringLiteral("/a.ttf"))}};
    m_fake->bundles = {agent};
    const auto bundle = Platform::current().bundle(agent.url);
    QVERIFY(bundle && bundle->hasInfoDictionary());
    QCOMPARE(bundle->bundleIdentifier(), QStringLiteral("com.vexmoor.corvane"));
    QCOMPARE(bundle->urlForResource(QStringLiteral("a"), QStringLiteral("ttf")).fileName(), QStringLiteral("a.ttf"));
    QVERIFY(!Platform::current().bundle(QUrl::fromLocalFile(QStringLiteral("/other"))));
    QVERIFY(!Platform::current().mainBundle().hasInfoDictionary());
}

void FakePlatformTest::theWorkspaceRecordsAndCompletesLater()
{
    bool isComplete = false;
    Workspace &workspace = Platform::current().workspace();
    workspace.openApplication(QUrl::fromLocalFile(QStringLiteral("/a.app")), {QStringLiteral("--about")},
                              [&] { isComplete = true; });
    QVERIFY(!isComplete);
    QTRY_VERIFY(isComplete);
    QCOMPARE(m_fake->space.openedApplications.constFirst().arguments, QStringList(QStringLiteral("--about")));
    workspace.open(QUrl(QStringLiteral("https://example.com")));
    workspace.openLoginItemsSettings();
    QCOMPARE(m_fake->space.openedURLs.size(), 1);
    QCOMPARE(m_fake->space.loginItemsSettingsOpened, 1);
    workspace.openMissionControl();
    QCOMPARE(m_fake->space.missionControlOpened, 1);
}

void FakePlatformTest::theAppearanceIsWhatItIsSetTo()
{
    Appearance &appearance = Platform::current().appearance();
    QCOMPARE(appearance.bestMatch(), AppearanceName::Aqua);
    QSignalSpy spy(&appearance, &Appearance::changed);
    m_fake->look.setName(std::nullopt);
    m_fake->look.setName(std::nullopt);
    m_fake->look.setReduceMotion(true);
    QVERIFY(!appearance.bestMatch());
    QVERIFY(appearance.shouldReduceMotion());
    QCOMPARE(spy.size(), 2);
}

void FakePlatformTest::theWindowsAreThoseItIsGiven()
{
    QVERIFY(Platform::current().windowList().onScreenWindows().isEmpty());
    m_fake->windows.windows = {{0, true, QRectF(1, 2, 3, 4)}, {}};
    const QList<OnScreenWindow> windows = Platform::current().windowList().onScreenWindows();
    QCOMPARE(windows.size(), 2);
    QCOMPARE(windows.constFirst().bounds, std::optional(QRectF(1, 2, 3, 4)));
    QVERIFY(!windows.constLast().layer && !windows.constLast().ownerIsSystemSettings && !windows.constLast().bounds);
}

void FakePlatformTest::keysReachTheMonitorsThatAreHeld()
{
    constexpr std::int64_t wCode = 13;
    QVERIFY(!m_fake->pressKey({wCode, KeyFlags::commandFlag, false}));
    QList<KeyDown> heard;
    auto monitor = Platform::current().monitorKeyDown([&](const KeyDown &key) {
        heard.append(key);
        return key.flags == KeyFlags::commandFlag;
    });
    QCOMPARE(m_fake->keyMonitorCount(), 1);
    QVERIFY(m_fake->pressKey({wCode, KeyFlags::commandFlag, true}));
    QVERIFY(!m_fake->pressKey({wCode, 0, false}));
    QCOMPARE(heard.size(), 2);
    QCOMPARE(heard.constFirst().keyCode, wCode);
    QVERIFY(heard.constFirst().isARepeat);
    monitor.reset();
    QCOMPARE(m_fake->keyMonitorCount(), 0);
    QVERIFY(!m_fake->pressKey({wCode, KeyFlags::commandFlag, false}));
    QCOMPARE(heard.size(), 2);
}

CORVANE_TEST(FakePlatformTest, runInCore)

#include "tst_fakeplatform.moc"
