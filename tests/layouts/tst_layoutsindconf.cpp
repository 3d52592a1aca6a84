#include "DconfUserDefaults.h"
#include "FakePlatform.h"
#include "LayoutStore.h"
#include "PrivateSession.h"
#include "Sample.h"
#include "TestProgram.h"

#include <QProcess>

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
    QVERIFY(writer.finishWrites(std::chrono::seconds(5)));
    auto reader = suite();
    QCOMPARE(LayoutStore::load(reader), layouts);
}

// It reads, adds and writes as often as it can. CORVANE_ADDITIONS makes it a measurement.
void LayoutsInDconfTest::anAgentThatAddsAllTheTimeNeverLeavesAnInvalidList()
{
    auto store = suite();
    store.setValue(Sample::key, LayoutStore::encode({Sample::layout()}).value());
    QVERIFY(store.finishWrites(std::chrono::seconds(5)));
    const int additions = qMax(20, qEnvironmentVariableIntValue("CORVANE_ADDITIONS"));
    QProcess agent;
    agent.start(QStringLiteral("sh"),
                {QStringLiteral("-c"), QStringLiteral(R"(
for i in $(seq "$1"); do
    list=$(dconf read "$0")
    dconf write "$0" "${list%]?},{\"name\":\"added $i\",\"windows\":[]}]'"
done)"),
                 QStringLiteral("/com/vexmoor/corvane/layouts.saved"), QString::number(additions)});
    QVERIFY(agent.waitForStarted());
    int renames = 0;
    while (agent.state() != QProcess::NotRunning) {
        QVERIFY(!LayoutStore::rename(Sample::id, QString::number(++renames), store).isEmpty());
        store.finishWrites(std::chrono::seconds(1));
        agent.waitForFinished(10);
    }
    QCOMPARE(agent.exitCode(), 0);
    qInfo("%d of %d additions lost to %d renames", additions + 1 - int(LayoutStore::peek(store).size()), additions,
          renames);

    const auto last = LayoutStore::rename(Sample::id, QStringLiteral("last"), store);
    QVERIFY(store.finishWrites(std::chrono::seconds(5)));
    auto reader = suite();
    QCOMPARE(LayoutStore::load(reader), last);
    QCOMPARE(reader.value(Sample::key).toString(), LayoutStore::encode(last).value());
}

CORVANE_TEST(LayoutsInDconfTest, runInPrivateSession)
#include "tst_layoutsindconf.moc"
