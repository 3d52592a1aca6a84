#include "DconfUserDefaults.h"
#include "PrivateSession.h"
#include "TestProgram.h"
#include "Tool.h"

#include <QDir>
#include <QFile>

class DamagedStoreTest : public QObject {
    Q_OBJECT
public:
    explicit DamagedStoreTest(PrivateSession &session) : m_folder(session.configFolder() + QStringLiteral("/dconf")) { }

private slots:
    void initTestCase();
    void aDatabaseOfGarbageReadsAsEmptyAndTakesValues();

private:
    QString m_folder;
};

void DamagedStoreTest::initTestCase()
{
    QVERIFY(QDir().mkpath(m_folder));
    QFile file(m_folder + QStringLiteral("/user"));
    QVERIFY(file.open(QFile::WriteOnly));
    file.write(QByteArray("GVariant and then nothing of the kind ").repeated(100));
}

void DamagedStoreTest::aDatabaseOfGarbageReadsAsEmptyAndTakesValues()
{
    DconfUserDefaults defaults(QStringLiteral("com.vexmoor.corvane"));
    QVERIFY(!defaults.value(QStringLiteral("buttonTheme")).isValid());
    defaults.setValue(QStringLiteral("buttonTheme"), QStringLiteral("a"));
    QVERIFY(defaults.finishWrites(std::chrono::seconds(5)));
    QCOMPARE(defaults.value(QStringLiteral("buttonTheme")), QVariant(QStringLiteral("a")));
    QCOMPARE(dconf({QStringLiteral("read"), QStringLiteral("/com/vexmoor/corvane/buttonTheme")}),
             QStringLiteral("'a'"));
}

CORVANE_TEST(DamagedStoreTest, runInPrivateSession)

#include "tst_damagedstore.moc"
