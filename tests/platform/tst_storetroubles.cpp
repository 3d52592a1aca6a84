#include "DconfService.h"
#include "DconfUserDefaults.h"
#include "OutsideStore.h"
#include "PrivateSession.h"
#include "TestProgram.h"

#include <QDir>
#include <QSignalSpy>

#include <csignal>

using namespace std::chrono_literals;
using Trouble = UserDefaults::Trouble;

namespace {

}

/// What keeps the real service from storing, and what gives reason to hope.
class StoreTroublesTest : public QObject {
    Q_OBJECT
public:
    explicit StoreTroublesTest(PrivateSession &session)
        : m_folder(session.configFolder() + QStringLiteral("/dconf")) { }

private slots:
    void init();
    void cleanup();

    void aFileInTheFoldersPlaceLeavesNoRoom();
    void aChangeByAnotherProcessGivesAnotherTry();
    void aServiceThatIsKilledWhileItHangsIsStartedAgain();
    void whatAHungServiceStoresTooLateCountsAfterAll();
    void aProfileWithoutAWritableDatabaseKeepsValuesInMemory();
    void aDatabaseThatIsCutShortIsOpenedAnew();
    void aDatabaseThatIsReplacedIsReadAnew();

private:
    QString m_folder;
    const QString m_key = QStringLiteral("key");
    std::optional<DconfUserDefaults> m_defaults;
};

void StoreTroublesTest::init()
{
    writeFromOutside(QStringLiteral("other"), QStringLiteral("1.0"));
    m_defaults.emplace(suiteName);
    // Time alone is no help here.
    m_defaults->setRetryInterval(1h);
}

void StoreTroublesTest::cleanup()
{
    m_defaults.reset();
    dconf({QStringLiteral("reset"), QStringLiteral("-f"), QStringLiteral("/")});
}

void StoreTroublesTest::aFileInTheFoldersPlaceLeavesNoRoom()
{
    const QString aside = m_folder + QStringLiteral(".aside");
    QVERIFY(QDir().rename(m_folder, aside));
    QVERIFY(QFile(m_folder).open(QFile::WriteOnly));
    m_defaults->setValue(m_key, true);
    QVERIFY(!m_defaults->finishWrites(5s));
    QCOMPARE(m_defaults->trouble(), Trouble::noRoom);
    QVERIFY(QFile::remove(m_folder) && QDir().rename(aside, m_folder));
    QVERIFY(m_defaults->finishWrites(5s));
    QCOMPARE(readFromOutside(m_key), "true");
}

void StoreTroublesTest::aChangeByAnotherProcessGivesAnotherTry()
{
    DconfService::setHasRoom(false);
    m_defaults->setValue(m_key, true);
    QVERIFY(!m_defaults->finishWrites(5s));
    DconfService::setHasRoom(true);
    writeFromOutside(QStringLiteral("other"), QStringLiteral("2.0"));
    QTRY_COMPARE(m_defaults->trouble(), Trouble::none);
    QCOMPARE(readFromOutside(m_key), "true");
}

void StoreTroublesTest::aServiceThatIsKilledWhileItHangsIsStartedAgain()
{
    const pid_t process = DconfService::process();
    DconfService::setHangs(true);
    m_defaults->setValue(m_key, true);
    QVERIFY(!m_defaults->finishWrites(50ms));
    QCOMPARE(kill(process, SIGKILL), 0);
    QTRY_COMPARE(readFromOutside(m_key), "true");
    QTRY_COMPARE(m_defaults->trouble(), Trouble::none);
    QVERIFY(DconfService::process() != process);
}

// The only one that lets the time run out in which the service has to answer.
void StoreTroublesTest::whatAHungServiceStoresTooLateCountsAfterAll()
{
    bool isAnnounced = false;
    DconfService::setHangs(true);
    m_defaults->setValue(m_key, true);
    m_defaults->afterWrites(QStringLiteral("command"), [&] { isAnnounced = true; });
    QVERIFY(m_defaults->value(m_key).toBool());
    QTRY_COMPARE(m_defaults->trouble(), Trouble::noAnswer);
    QVERIFY(!m_defaults->value(m_key).isValid());
    QVERIFY(!isAnnounced);
    DconfService::setHangs(false);
    QTRY_COMPARE(m_defaults->value(m_key), QVariant(true));
    QTRY_COMPARE(m_defaults->trouble(), Trouble::none);
    QVERIFY(isAnnounced);
}

void StoreTroublesTest::aProfileWithoutAWritableDatabaseKeepsValuesInMemory()
{
    QFile profile(m_folder + QStringLiteral("/profile"));
    QVERIFY(profile.open(QFile::WriteOnly));
    profile.write("# nothing of the person's own\nsystem-db:local\n");
    profile.close();
    qputenv("DCONF_PROFILE", QFile::encodeName(profile.fileName()));
    const auto reset = qScopeGuard([] { qunsetenv("DCONF_PROFILE"); });
    DconfUserDefaults defaults(suiteName);
    defaults.setValue(m_key, true);
    QVERIFY(!defaults.finishWrites(5s));
    QCOMPARE(defaults.trouble(), Trouble::noStore);
    QCOMPARE(defaults.value(m_key), QVariant(true));
}

// Reading beyond the end of a mapped file ends the process.
void StoreTroublesTest::aDatabaseThatIsCutShortIsOpenedAnew()
{
    const QString database = m_folder + QStringLiteral("/user");
    writeFromOutside(m_key, QStringLiteral("'small'"));
    QFile small(database);
    QVERIFY(small.open(QFile::ReadOnly));
    const QByteArray content = small.readAll();
    for (char c = 'a'; c <= 'h'; ++c)
        writeFromOutside(QString(QLatin1Char(c)), u'\'' + QString(20000, QLatin1Char(c)) + u'\'');
    for (char c = 'a'; c <= 'h'; ++c)
        QCOMPARE(m_defaults->value(QString(QLatin1Char(c))).toString().size(), 20000);
    QFile cut(database);
    QVERIFY(cut.open(QFile::WriteOnly | QFile::Truncate));
    cut.write(content);
    cut.close();
    for (char c = 'a'; c <= 'h'; ++c)
        QVERIFY(!m_defaults->value(QString(QLatin1Char(c))).isValid());
    QCOMPARE(m_defaults->value(m_key), QVariant("small"));
}

void StoreTroublesTest::aDatabaseThatIsReplacedIsReadAnew()
{
    const QString database = m_folder + QStringLiteral("/user");
    const QString backup = m_folder + QStringLiteral("/backup");
    writeFromOutside(m_key, QStringLiteral("'before'"));
    QVERIFY(QFile::copy(database, backup));
    writeFromOutside(m_key, QStringLiteral("'after'"));
    QCOMPARE(m_defaults->value(m_key), QVariant("after"));
    QVERIFY(QFile::remove(database) && QFile::rename(backup, database));
    QCOMPARE(m_defaults->value(m_key), QVariant("before"));
}

CORVANE_TEST(StoreTroublesTest, runInPrivateSession)

#include "tst_storetroubles.moc"
