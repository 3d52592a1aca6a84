#include "FakePlatform.h"
#include "Shared.h"
#include "StoreCopy.h"
#include "StoreKeeper.h"
#include "TestProgram.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <atomic>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

using namespace std::chrono_literals;
using Trouble = UserDefaults::Trouble;

namespace {

std::atomic<bool> diskHangs = false;

/// Takes the place of the system's function in this program. A disk that hangs does so for ten seconds at most.
int synchronize(int file)
{
    for (int i = 0; diskHangs && i < 1000; ++i)
        std::this_thread::sleep_for(10ms);
    return int(syscall(SYS_fdatasync, file));
}

}

extern "C" Q_DECL_EXPORT int fdatasync(int file)
{
    return synchronize(file);
}

extern "C" Q_DECL_EXPORT int fsync(int file)
{
    return synchronize(file);
}

class TestStoreKeeper : public QObject {
    Q_OBJECT

private slots:
    void init();

    void theCopyFollowsEveryChangeAndIsForThePersonAlone();
    void theCopyIsWrittenAWhileAfterTheChangeAndOnce();
    void whatIsCopiedAlreadyIsNotWrittenAgain();
    void whereNothingWasStoredNoCopyIsBegun();
    void whatTheAgentReportsIsNotCopied();
    void whileChangesCannotBeStoredTheCopyStays();
    void aStoreThatIsEmptyAlthoughThereIsACopyIsLost();
    void aStoreWithAnythingOfOursIsNotLost();
    void aStoreThatWasEmptiedWhileSomebodyCopiedIsNotLost();
    void aDamagedCopyCountsAsNone();
    void withoutAStateFolderNothingIsKept();
    void lostSettingsStayLostUntilThePersonDecides();
    void restoringStoresEveryValueAndTellsTheAgentOnce();
    void layoutsThatTheRestoredReplaceAreKept();
    void settingsThatCannotBeRestoredStayLost();
    void startingFreshForgetsTheLost();
    void anotherProcessMayHaveDecided();
    void aDiskThatHangsHoldsUpNobody();

private:
    FakeUserDefaults &store() { return m_platform->suite("com.vexmoor.corvane"); }
    QString file(const QString &name) const { return m_platform->state + '/' + name; }
    QByteArray bytes(const QString &name) const;
    std::optional<QVariantMap> copy() const { return StoreCopy::decode(bytes("settings.copy")); }
    static bool startsWithLost();
    void lose(const QVariantMap &values);

    const QTemporaryDir m_folder;
    FakePlatform *m_platform = nullptr;
};

void TestStoreKeeper::init()
{
    m_platform = &FakePlatform::install();
    m_platform->state = m_folder.filePath(QString("state/of ") + QTest::currentTestFunction());
}

QByteArray TestStoreKeeper::bytes(const QString &name) const
{
    QFile content(file(name));
    return content.open(QFile::ReadOnly) ? content.readAll() : QByteArray();
}

/// Starts and ends again; whether there were lost settings.
bool TestStoreKeeper::startsWithLost()
{
    StoreKeeper keeper;
    keeper.finish(5s);
    return keeper.hasLost();
}

/// Leaves a copy of these values and a store without any.
void TestStoreKeeper::lose(const QVariantMap &values)
{
    store().values = values;
    startsWithLost();
    store().values.clear();
}

void TestStoreKeeper::theCopyFollowsEveryChangeAndIsForThePersonAlone()
{
    const QVariantMap before = {{"buttonTheme", "soft"}};
    store().values = before;
    {
        StoreKeeper keeper;
        QTRY_COMPARE(copy(), before);
        store().setValue("layouts.gap", 6.0);
        // The end comes before the time to write.
        keeper.finish(5s);
    }
    const QVariantMap after = {{"buttonTheme", "soft"}, {"layouts.gap", 6.0}};
    QCOMPARE(copy(), after);
    const auto owners = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QCOMPARE(QFile::permissions(file("settings.copy")), owners);
    QCOMPARE(QDir(m_platform->state).entryList(QDir::Files), QStringList{"settings.copy"});
}

void TestStoreKeeper::theCopyIsWrittenAWhileAfterTheChangeAndOnce()
{
    const QVariantMap before = {{"buttonTheme", "classic"}};
    store().values = before;
    const StoreKeeper keeper;
    QTRY_COMPARE(copy(), before);
    for (const char *theme : {"soft", "mono", "outline"})
        store().setValue("buttonTheme", theme);
    m_platform->queue.advance(1.9);
    QCOMPARE(copy(), before);
    m_platform->queue.advance(0.1);
    QTRY_COMPARE(copy(), (QVariantMap{{"buttonTheme", "outline"}}));
    store().setValue("buttonTheme", "mono");
    m_platform->queue.advance(2);
    QTRY_COMPARE(copy(), (QVariantMap{{"buttonTheme", "mono"}}));
}

void TestStoreKeeper::whatIsCopiedAlreadyIsNotWrittenAgain()
{
    // A file that was replaced is another one.
    const auto number = [this] {
        struct stat status = {};
        return stat(QFile::encodeName(file("settings.copy")).constData(), &status) == 0 ? status.st_ino : 0;
    };
    store().values = {{"buttonTheme", "classic"}};
    startsWithLost();
    const auto before = number();
    QVERIFY(before != 0);
    startsWithLost();
    QCOMPARE(number(), before);
}

void TestStoreKeeper::whereNothingWasStoredNoCopyIsBegun()
{
    QVERIFY(!startsWithLost());
    QVERIFY(!QFile::exists(file("settings.copy")));
}

void TestStoreKeeper::whatTheAgentReportsIsNotCopied()
{
    store().values = {{"agent.accessibilityTrusted", true}, {"agent.launchAtLogin", true}, {"maximizeMode", "fill"}};
    startsWithLost();
    QCOMPARE(copy(), (QVariantMap{{"maximizeMode", "fill"}}));
}

void TestStoreKeeper::whileChangesCannotBeStoredTheCopyStays()
{
    const QVariantMap before = {{"buttonTheme", "soft"}};
    store().values = before;
    for (const Trouble trouble : {Trouble::noRoom, Trouble::noStore}) {
        StoreKeeper keeper;
        store().obstacle = trouble;
        store().setValue("buttonTheme", "mono");
        keeper.finish(5s);
    }
    QCOMPARE(copy(), before);
    const StoreKeeper keeper;
    store().obstacle = Trouble::none;
    store().retry();
    m_platform->queue.advance(2);
    QTRY_COMPARE(copy(), (QVariantMap{{"buttonTheme", "mono"}}));
}

void TestStoreKeeper::aStoreThatIsEmptyAlthoughThereIsACopyIsLost()
{
    QVERIFY(!startsWithLost());
    lose({{"buttonTheme", "soft"}});
    QVERIFY(startsWithLost());
    QVERIFY(store().values.isEmpty());
    QVERIFY(m_platform->notifications.posts.isEmpty());
}

void TestStoreKeeper::aStoreWithAnythingOfOursIsNotLost()
{
    lose({{"buttonTheme", "soft"}, {"layouts.gap", 6.0}});
    store().values = {{"layouts.gap", 6.0}};
    QVERIFY(!startsWithLost());
    QCOMPARE(copy(), store().values);
    // What the agent reports of itself is no setting.
    store().values = {{"agent.accessibilityTrusted", true}};
    QVERIFY(startsWithLost());
}

void TestStoreKeeper::aStoreThatWasEmptiedWhileSomebodyCopiedIsNotLost()
{
    store().values = {{"buttonTheme", "soft"}};
    {
        StoreKeeper keeper;
        QTRY_COMPARE(copy(), store().values);
        store().values.clear();
        store().storedChanged(QString());
        QVERIFY(!keeper.hasLost());
        keeper.finish(5s);
    }
    QVERIFY(!startsWithLost());
}

void TestStoreKeeper::aDamagedCopyCountsAsNone()
{
    for (const QString name : {"settings.copy", "settings.lost"}) {
        lose({{"buttonTheme", "soft"}});
        if (name == "settings.lost")
            startsWithLost();
        QVERIFY(QFile::resize(file(name), 90));
        QVERIFY(!startsWithLost());
    }
    // A damaged one that was put aside hides no whole one.
    lose({{"buttonTheme", "soft"}});
    QVERIFY(startsWithLost());
}

void TestStoreKeeper::withoutAStateFolderNothingIsKept()
{
    m_platform->state.clear();
    const QDir current;
    const QStringList before = current.entryList();
    lose({{"buttonTheme", "soft"}});
    StoreKeeper keeper;
    QVERIFY(!keeper.hasLost());
    keeper.restore();
    QVERIFY(store().values.isEmpty());
    QCOMPARE(QDir().entryList(), before);
}

void TestStoreKeeper::lostSettingsStayLostUntilThePersonDecides()
{
    lose({{"buttonTheme", "soft"}});
    {
        StoreKeeper keeper;
        store().setValue("layouts.gap", 6.0);
        keeper.finish(5s);
    }
    StoreKeeper keeper;
    QVERIFY(keeper.hasLost());
    QCOMPARE(copy(), (QVariantMap{{"layouts.gap", 6.0}}));
    keeper.restore();
    QCOMPARE(store().values, (QVariantMap{{"buttonTheme", "soft"}, {"layouts.gap", 6.0}}));
    QVERIFY(!startsWithLost());
}

void TestStoreKeeper::restoringStoresEveryValueAndTellsTheAgentOnce()
{
    const QVariantMap values = {{"buttonTheme", "soft"}, {"layouts.gap", 6.0}, {"onboardingCompleted", true}};
    lose(values);
    StoreKeeper keeper;
    QSignalSpy spy(&keeper, &StoreKeeper::lostChanged);
    store().isHanging = true;
    keeper.restore();
    QVERIFY(keeper.hasLost());
    QVERIFY(m_platform->notifications.posts.isEmpty());
    store().isHanging = false;
    store().answer();
    QCOMPARE(store().values, values);
    QCOMPARE(m_platform->notifications.posts.size(), 1);
    QCOMPARE(m_platform->notifications.posts.constFirst().userInfo, (QVariantMap{{"command", "applySettings"}}));
    QVERIFY(!keeper.hasLost());
    QCOMPARE(spy.size(), 1);
    QVERIFY(!QFile::exists(file("settings.lost")));
}

void TestStoreKeeper::layoutsThatTheRestoredReplaceAreKept()
{
    lose({{"layouts.saved", "[]"}});
    const QString newer = "[{\"windows\":[]}]";
    store().values = {{"agent.launchAtLogin", true}};
    StoreKeeper keeper;
    store().values.insert("layouts.saved", newer);
    keeper.restore();
    QCOMPARE(store().values.value("layouts.saved"), QVariant("[]"));
    const QStringList kept = QDir(file("layouts")).entryList({"*.json"});
    QCOMPARE(kept.size(), 1);
    QCOMPARE(bytes("layouts/" + kept.constFirst()), newer.toUtf8());
}

void TestStoreKeeper::settingsThatCannotBeRestoredStayLost()
{
    lose({{"buttonTheme", "soft"}});
    {
        StoreKeeper keeper;
        store().obstacle = Trouble::noRoom;
        keeper.restore();
        QVERIFY(keeper.hasLost());
    }
    QVERIFY(m_platform->notifications.posts.isEmpty());
    QVERIFY(startsWithLost());
    store().obstacle = Trouble::none;
    store().retry();
    QCOMPARE(store().values, (QVariantMap{{"buttonTheme", "soft"}}));
}

void TestStoreKeeper::startingFreshForgetsTheLost()
{
    lose({{"buttonTheme", "soft"}});
    StoreKeeper keeper;
    QSignalSpy spy(&keeper, &StoreKeeper::lostChanged);
    keeper.startFresh();
    QCOMPARE(spy.size(), 1);
    QVERIFY(!keeper.hasLost());
    QVERIFY(!startsWithLost());
    QVERIFY(store().values.isEmpty());
}

void TestStoreKeeper::anotherProcessMayHaveDecided()
{
    lose({{"buttonTheme", "soft"}});
    StoreKeeper keeper;
    StoreKeeper other;
    other.startFresh();
    keeper.restore();
    QVERIFY(!keeper.hasLost());
    QVERIFY(store().values.isEmpty());
}

// The service that stores the settings may be well while the disk of the state folder is not.
void TestStoreKeeper::aDiskThatHangsHoldsUpNobody()
{
    store().values = {{"buttonTheme", "classic"}};
    diskHangs = true;
    QElapsedTimer time;
    time.start();
    {
        StoreKeeper keeper;
        for (const char *theme : {"soft", "mono", "outline"}) {
            store().setValue("buttonTheme", theme);
            m_platform->queue.advance(2);
        }
        keeper.finish(100ms);
    }
    QVERIFY(time.elapsed() >= 100);
    QVERIFY(time.elapsed() < 2000);
    QCOMPARE(copy(), std::nullopt);
    diskHangs = false;
    QTRY_COMPARE(copy(), (QVariantMap{{"buttonTheme", "outline"}}));
}

CORVANE_TEST(TestStoreKeeper, runInCore)
#include "tst_storekeeper.moc"
