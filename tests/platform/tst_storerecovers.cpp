#include "DconfUserDefaults.h"
#include "PrivateSession.h"
#include "TestProgram.h"
#include "Tool.h"

#include <QDir>
#include <QSignalSpy>

namespace {
const QString suiteName = QStringLiteral("com.vexmoor.corvane");
}

/// The folder of the database starts out as a file, so nothing can be stored until a test removes it.
class StoreRecoversTest : public QObject {
    Q_OBJECT
public:
    explicit StoreRecoversTest(PrivateSession &session) : m_obstacle(session.configFolder() + QStringLiteral("/dconf"))
    {
    }

private slots:
    void init();
    void cleanup() { m_defaults.reset(); }

    void aValueThatCannotBeStoredIsKeptInMemory();
    void writingItAgainStoresIt();
    void aChangeByAnotherProcessReplacesIt();
    void aRemovalByAnotherProcessReplacesIt();
    void aKeyThatIsNoPathOutlivesAChangeOfEverything();

private:
    void removeObstacle();
    QString path() const { return QStringLiteral("/com/vexmoor/corvane/") + m_key; }

    QString m_obstacle;
    // The service remembers what it stored in an earlier test.
    QString m_key;
    std::optional<DconfUserDefaults> m_defaults;
};

void StoreRecoversTest::init()
{
    QDir(m_obstacle).removeRecursively();
    QFile file(m_obstacle);
    QVERIFY(file.open(QFile::WriteOnly));
    m_key = QString::fromLatin1(QTest::currentTestFunction());
    m_defaults.emplace(suiteName);
    m_defaults->setValue(m_key, QStringLiteral("memory"));
}

void StoreRecoversTest::removeObstacle()
{
    REQUIRE(QFile::remove(m_obstacle));
}

void StoreRecoversTest::aValueThatCannotBeStoredIsKeptInMemory()
{
    QCOMPARE(m_defaults->value(m_key), QVariant(QStringLiteral("memory")));
    QVERIFY(!DconfUserDefaults(suiteName).value(m_key).isValid());
}

void StoreRecoversTest::writingItAgainStoresIt()
{
    removeObstacle();
    QSignalSpy spy(&*m_defaults, &UserDefaults::changed);
    m_defaults->setValue(m_key, QStringLiteral("memory"));
    QCOMPARE(spy.size(), 0);
    QCOMPARE(dconf({QStringLiteral("read"), path()}), QStringLiteral("'memory'"));
    dconf({QStringLiteral("write"), path(), QStringLiteral("'outside'")});
    QTRY_COMPARE(m_defaults->value(m_key), QVariant(QStringLiteral("outside")));
}

void StoreRecoversTest::aChangeByAnotherProcessReplacesIt()
{
    removeObstacle();
    dconf({QStringLiteral("write"), path(), QStringLiteral("'outside'")});
    QTRY_COMPARE(m_defaults->value(m_key), QVariant(QStringLiteral("outside")));
}

void StoreRecoversTest::aRemovalByAnotherProcessReplacesIt()
{
    removeObstacle();
    dconf({QStringLiteral("write"), QStringLiteral("/com/vexmoor/other"), QStringLiteral("true")});
    dconf({QStringLiteral("reset"), QStringLiteral("-f"), QStringLiteral("/com/vexmoor/")});
    QTRY_VERIFY(!m_defaults->value(m_key).isValid());
}

void StoreRecoversTest::aKeyThatIsNoPathOutlivesAChangeOfEverything()
{
    removeObstacle();
    m_defaults->setValue(QStringLiteral("a//b"), true);
    QSignalSpy spy(&*m_defaults, &UserDefaults::changed);
    dconf({QStringLiteral("write"), path(), QStringLiteral("'outside'")});
    dconf({QStringLiteral("reset"), QStringLiteral("-f"), QStringLiteral("/com/")});
    QTRY_VERIFY(!spy.isEmpty() && spy.last().first() == QString());
    QCOMPARE(m_defaults->value(QStringLiteral("a//b")), QVariant(true));
}

CORVANE_TEST(StoreRecoversTest, runInPrivateSession)

#include "tst_storerecovers.moc"
