#include "DconfUserDefaults.h"
#include "LayoutStore.h"
#include "PrivateSession.h"
#include "Sample.h"
#include "TestProgram.h"

#include <QProcess>

namespace {

const QString key = QStringLiteral("layouts.saved");

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
    void whatOneProcessStoresAnotherLoads_data();
    void whatOneProcessStoresAnotherLoads();
    void anAgentThatAddsMeanwhileNeverLeavesAnInvalidList();
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
    writer.setValue(key, LayoutStore::encode(layouts).value());
    layouts.last().name = name;
    QCOMPARE(LayoutStore::rename(Sample::otherId, name, writer), layouts);
    QVERIFY(writer.finishWrites(std::chrono::seconds(5)));
    auto reader = suite();
    QCOMPARE(LayoutStore::load(reader), layouts);
}

void LayoutsInDconfTest::anAgentThatAddsMeanwhileNeverLeavesAnInvalidList()
{
    SavedLayout added = Sample::layout();
    added.id = Sample::otherId;
    const QString agentsList = LayoutStore::encode({Sample::layout(), added}).value();
    auto store = suite();
    store.setValue(key, LayoutStore::encode({Sample::layout()}).value());

    // In the agent's value format a text stands between quotation marks, its backslashes doubled.
    const QString argument = u'\'' + QString(agentsList).replace(u'\\', QStringLiteral("\\\\")) + u'\'';
    QProcess agent;
    agent.start(QStringLiteral("sh"),
                {QStringLiteral("-c"),
                 QStringLiteral("for i in 1 2 3 4 5 6 7 8 9 10; do dconf write \"$0\" \"$1\"; done"),
                 QStringLiteral("/com/vexmoor/corvane/layouts.saved"), argument});
    QVERIFY(agent.waitForStarted());
    int renames = 0;
    while (agent.state() != QProcess::NotRunning) {
        const auto layouts = LayoutStore::rename(Sample::id, QString::number(++renames), store);
        QVERIFY(layouts.size() == 1 || layouts.size() == 2);
        store.finishWrites(std::chrono::seconds(1));
        agent.waitForFinished(1);
    }
    QCOMPARE(agent.exitCode(), 0);

    const auto last = LayoutStore::rename(Sample::id, QStringLiteral("last"), store);
    QVERIFY(!last.isEmpty());
    QVERIFY(store.finishWrites(std::chrono::seconds(5)));
    auto reader = suite();
    QCOMPARE(LayoutStore::load(reader), last);
    QCOMPARE(reader.value(key).toString(), LayoutStore::encode(last).value());
}

CORVANE_TEST(LayoutsInDconfTest, runInPrivateSession)
#include "tst_layoutsindconf.moc"
