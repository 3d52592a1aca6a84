#include "FakePlatform.h"
#include "RunningInstance.h"
#include "TestProgram.h"

namespace {

const QString name = QStringLiteral("com.vexmoor.corvane.settings");

}

/// What a start of the settings does beside another one.
class TestRunningInstance : public QObject {
    Q_OBJECT

private slots:
    void init() { m_platform = &FakePlatform::install(); }
    void cleanup() { qunsetenv("CV_TAB"); }
    void theFirstStartHoldsTheName();
    void theNextStartAsksTheFirst_data();
    void theNextStartAsksTheFirst();
    void whereTheFirstIsAboutToEndTheNextTakesItsPlace();

private:
    FakePlatform *m_platform = nullptr;
};

void TestRunningInstance::theFirstStartHoldsTheName()
{
    QVERIFY(!RunningInstance::takesOver());
    QCOMPARE(m_platform->programs.claimed, QStringList{name});
}

void TestRunningInstance::theNextStartAsksTheFirst_data()
{
    QTest::addColumn<QByteArray>("tab");
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("page");
    QTest::newRow("for its window") << QByteArray() << ""
                                    << "";
    QTest::newRow("for a page") << QByteArray("layouts") << "page"
                                << "layouts";
    QTest::newRow("a page without a name") << QByteArray("") << ""
                                           << "";
}

void TestRunningInstance::theNextStartAsksTheFirst()
{
    QFETCH(QByteArray, tab);
    QFETCH(QString, action);
    QFETCH(QString, page);
    if (!tab.isNull())
        qputenv("CV_TAB", tab);
    QList<Instances::Request> asked;
    m_platform->programs.others.insert(name, [&](const Instances::Request &request) {
        asked.append(request);
        return true;
    });
    QVERIFY(RunningInstance::takesOver());
    QCOMPARE(asked, (QList<Instances::Request>{{action, page}}));
    QCOMPARE(m_platform->programs.claimed, QStringList());
}

void TestRunningInstance::whereTheFirstIsAboutToEndTheNextTakesItsPlace()
{
    m_platform->programs.others.insert(name, [](const Instances::Request &) { return false; });
    QVERIFY(!RunningInstance::takesOver());
    QCOMPARE(m_platform->programs.claimed, QStringList{name});
}

CORVANE_TEST(TestRunningInstance, runBare)
#include "tst_runninginstance.moc"
