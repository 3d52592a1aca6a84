#include "FreedesktopPlatform.h"
#include "PrivateSession.h"
#include "TestProgram.h"
#include "Tool.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QWindow>

class FreedesktopPlatformTest : public QObject {
    Q_OBJECT
public:
    explicit FreedesktopPlatformTest(PrivateSession &session) : m_session(session) { }

private slots:
    void initTestCase() { Platform::install(makeFreedesktopPlatform()); }
    void cleanupTestCase();
    void aSuiteThatCannotBeOpenedIsNull();
    void aProgramOutsideABundleHasStandardDefaultsUnderItsName();
    void theMainBundleIsTheFolderOfTheExecutable();
    void aBundleIsNullWhereThereIsNoFolder();
    void stateIsKeptInTheStateFolder();
    void anInstalledProgramThatDoesNotStartHasFailed();
    void everyServiceIsThereAndStaysTheSame();
    void withoutAnXServerNobodyTellsOfWindows();

private:
    PrivateSession &m_session;
};

// No question may be left unanswered: the bus library keeps what belongs to it.
void FreedesktopPlatformTest::cleanupTestCase()
{
    Platform::current().appearance().settle();
    Platform::install(nullptr);
}

void FreedesktopPlatformTest::aSuiteThatCannotBeOpenedIsNull()
{
    QVERIFY(!Platform::current().userDefaults(QString()));
    QVERIFY(!Platform::current().userDefaults(QStringLiteral("com..corvane")));
}

void FreedesktopPlatformTest::aProgramOutsideABundleHasStandardDefaultsUnderItsName()
{
    UserDefaults &standard = Platform::current().standardUserDefaults();
    standard.setValue(QStringLiteral("key"), true);
    QVERIFY(standard.finishWrites(std::chrono::seconds(5)));
    QCOMPARE(dconf({QStringLiteral("read"), QStringLiteral("/platform_tests/key")}), QStringLiteral("true"));
}

void FreedesktopPlatformTest::theMainBundleIsTheFolderOfTheExecutable()
{
    const Bundle &bundle = Platform::current().mainBundle();
    QCOMPARE(bundle.bundleURL(), QUrl::fromLocalFile(QCoreApplication::applicationDirPath()));
    QVERIFY(!bundle.hasInfoDictionary());
}

void FreedesktopPlatformTest::aBundleIsNullWhereThereIsNoFolder()
{
    Platform &platform = Platform::current();
    const auto bundle = platform.bundle(QUrl::fromLocalFile(m_session.dataFolder()));
    QVERIFY(bundle);
    QCOMPARE(bundle->bundleURL(), QUrl::fromLocalFile(m_session.dataFolder()));
    QVERIFY(!platform.bundle(QUrl::fromLocalFile(m_session.dataFolder() + QStringLiteral("/absent"))));
    QVERIFY(!platform.bundle(QUrl::fromLocalFile(QCoreApplication::applicationFilePath())));
    QVERIFY(!platform.bundle(QUrl(QStringLiteral("https://example.com/"))));
    QVERIFY(!platform.bundle(QUrl()));
}

void FreedesktopPlatformTest::stateIsKeptInTheStateFolder()
{
    const Platform &platform = Platform::current();
    const QByteArray home = qgetenv("HOME");
    const auto restored = qScopeGuard([&] {
        qputenv("HOME", home);
        qputenv("XDG_STATE_HOME", m_session.stateFolder().toLocal8Bit());
    });
    QCOMPARE(platform.stateFolder(), m_session.stateFolder() + QStringLiteral("/corvane-settings"));
    qputenv("HOME", "/home/somebody");
    for (const char *none : {"", "relative"}) {
        qputenv("XDG_STATE_HOME", none);
        QCOMPARE(platform.stateFolder(), QStringLiteral("/home/somebody/.local/state/corvane-settings"));
    }
    qunsetenv("HOME");
    QCOMPARE(platform.stateFolder(), QString());
}

void FreedesktopPlatformTest::anInstalledProgramThatDoesNotStartHasFailed()
{
    const QString services = m_session.dataFolder() + QStringLiteral("/dbus-1/services/");
    QVERIFY(QDir().mkpath(services));
    QFile file(services + QStringLiteral("org.example.broken.service"));
    QVERIFY(file.open(QFile::WriteOnly));
    file.write("[D-BUS Service]\nName=org.example.broken\nExec=/bin/false\n");
    file.close();
    QDBusConnection::sessionBus().call(
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                                       QStringLiteral("org.freedesktop.DBus"), QStringLiteral("ReloadConfig")));
    QHash<QString, Instances::Start> outcomes;
    for (const char *name : {"org.example.broken", "org.example.nowhere", "ca.desrt.dconf"}) {
        Platform::current().instances().start(QString::fromLatin1(name), [&outcomes, name](Instances::Start outcome) {
            outcomes.insert(QString::fromLatin1(name), outcome);
        });
    }
    QTRY_COMPARE(outcomes.size(), 3);
    QCOMPARE(outcomes.value(QStringLiteral("org.example.broken")), Instances::Start::failed);
    QCOMPARE(outcomes.value(QStringLiteral("org.example.nowhere")), Instances::Start::notInstalled);
    QCOMPARE(outcomes.value(QStringLiteral("ca.desrt.dconf")), Instances::Start::running);
}

void FreedesktopPlatformTest::everyServiceIsThereAndStaysTheSame()
{
    Platform &platform = Platform::current();
    QCOMPARE(&platform.standardUserDefaults(), &platform.standardUserDefaults());
    QCOMPARE(&platform.distributedNotificationCenter(), &platform.distributedNotificationCenter());
    QCOMPARE(&platform.workspace(), &platform.workspace());
    QCOMPARE(&platform.appearance(), &platform.appearance());
    QCOMPARE(&platform.mainBundle(), &platform.mainBundle());
    QCOMPARE(&platform.windowList(), &platform.windowList());
    QCOMPARE(&platform.mainQueue(), &platform.mainQueue());
}

void FreedesktopPlatformTest::withoutAnXServerNobodyTellsOfWindows()
{
    QWindow window;
    window.show();
    QVERIFY(!Platform::current().windowList().isAvailable());
    QVERIFY(Platform::current().windowList().onScreenWindows().isEmpty());
    // A panel is shown there as it is.
    Platform::current().workspace().floatOnAllSpaces(window);
    QVERIFY(Platform::current().workspace().blendsWindows());
}

CORVANE_TEST(FreedesktopPlatformTest, runInPrivateSession)

#include "tst_freedesktopplatform.moc"
