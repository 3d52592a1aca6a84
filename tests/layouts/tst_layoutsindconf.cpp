#include "DconfUserDefaults.h"
#include "FakePlatform.h"
#include "LayoutStore.h"
#include "PrivateSession.h"
#include "Sample.h"
#include "TestProgram.h"

#include <QProcess>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

DconfUserDefaults suite()
{
    return DconfUserDefaults(QStringLiteral("com.vexmoor.corvane"));
}

}

/// The list in the real store, with an agent in another process.
class LayoutsInDconfTest : public QObject {
    Q_OBJECT
public:
    explicit LayoutsInDconfTest(PrivateSession &) { }

private slots:
    void initTestCase() { FakePlatform::install(); }
    void whatOneProcessStoresAnotherLoads_data();
    void whatOneProcessStoresAnotherLoads();
    void anAgentThatAddsAllTheTimeNeverLeavesAnInvalidList();
};

void LayoutsInDconfTest::whatOneProcessStoresAnotherLoads_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("name");
    QTest::newRow("odd name") << 3 << QStringLiteral("\ufeff\" \\ / \n é e\u0301 🦊 \u2028 '") + QChar(u'\0');
    QTest::newRow("10,000 layouts") << 10'000 << QStringLiteral("Work");
    QTest::newRow("a megabyte of name") << 1 << QString(1'000'000, u'é');
}

void LayoutsInDconfTest::whatOneProcessStoresAnotherLoads()
{
    QFETCH(int, count);
    QFETCH(QString, name);
    QList<SavedLayout> layouts(count, Sample::layout());
    layouts.last().id = Sample::otherId;
    auto writer = suite();
    writer.setValue(Sample::key, LayoutStore::encode(layouts).value());
    layouts.last().name = name;
    QCOMPARE(LayoutStore::rename(Sample::otherId, name, writer), layouts);
    QVERIFY(writer.finishWrites(5s));
    auto reader = suite();
    QCOMPARE(LayoutStore::load(reader), layouts);
}

// It adds one every ten milliseconds. CORVANE_ADDITIONS and CORVANE_PAUSE, the time between two renamings in
// milliseconds, make it a measurement.
void LayoutsInDconfTest::anAgentThatAddsAllTheTimeNeverLeavesAnInvalidList()
{
    auto store = suite();
    store.setValue(Sample::key, LayoutStore::encode({Sample::layout()}).value());
    QVERIFY(store.finishWrites(5s));
    const int additions = qMax(50, qEnvironmentVariableIntValue("CORVANE_ADDITIONS"));
    const int pause = qMax(1, qEnvironmentVariableIntValue("CORVANE_PAUSE"));
    QProcess agent;
    agent.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("tst_layoutsindconf"), QStringLiteral("--agent"), QString::number(additions)});
    QVERIFY(agent.waitForStarted());
    int renames = 0;
    while (agent.state() != QProcess::NotRunning) {
        QVERIFY(!LayoutStore::rename(Sample::id, QString::number(++renames), store).isEmpty());
        store.finishWrites(1s);
        agent.waitForFinished(pause);
    }
    QCOMPARE(agent.exitCode(), 0);
    qInfo("%d of %d additions lost to %d renames", additions + 1 - int(LayoutStore::peek(store).size()), additions,
          renames);

    const auto last = LayoutStore::rename(Sample::id, QStringLiteral("last"), store);
    QVERIFY(store.finishWrites(5s));
    auto reader = suite();
    QCOMPARE(LayoutStore::load(reader), last);
    QCOMPARE(reader.value(Sample::key).toString(), LayoutStore::encode(last).value());
}

namespace {

int addLayouts(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    auto store = suite();
    QTimer timer;
    int left = QString::fromLocal8Bit(argv[2]).toInt();
    QObject::connect(&timer, &QTimer::timeout, [&] {
        const QString layout = QStringLiteral(R"(,{"name":"added %1","windows":[]}])").arg(left);
        store.setValue(Sample::key, QString(store.value(Sample::key).toString().chopped(1) + layout));
        // False where somebody else has written at once.
        store.finishWrites(5s);
        if (--left == 0)
            QCoreApplication::quit();
        timer.start(10ms);
    });
    timer.setSingleShot(true);
    timer.start(10ms);
    return QCoreApplication::exec();
}

int run(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--agent") == 0)
        return addLayouts(argc, argv);
    return runInPrivateSession<LayoutsInDconfTest>(argc, argv);
}

}

CORVANE_TEST_MAIN(run)
#include "tst_layoutsindconf.moc"
