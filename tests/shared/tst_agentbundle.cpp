#include "AgentBundle.h"
#include "FakePlatform.h"
#include "TestProgram.h"

class TestAgentBundle : public QObject {
    Q_OBJECT

private slots:
    void init();
    void theAgentIsTheApplicationAroundThisOne();
    void theAgentIsFoundInAnyFolder_data();
    void theAgentIsFoundInAnyFolder();
    void exactlyThreeFoldersAreStepped_data();
    void exactlyThreeFoldersAreStepped();
    void outsideOfAHelpersFolderThereIsNoAgent_data();
    void outsideOfAHelpersFolderThereIsNoAgent();
    void anAgentWithoutAFolderIsNone();
    void aKeyOf44CharactersOffersUpdates_data();
    void aKeyOf44CharactersOffersUpdates();
    void anAgentWithoutFactsOffersNoUpdates();

private:
    void putIn(const QString &folder) { m_platform->main.url = QUrl::fromLocalFile(folder); }

    FakePlatform *m_platform = nullptr;
};

void TestAgentBundle::init()
{
    m_platform = &FakePlatform::install();
    putIn("/apps/Corvane.app/Contents/Helpers/Corvane Settings.app/");
    FakeBundle agent;
    agent.url = QUrl::fromLocalFile("/apps/Corvane.app");
    agent.info = QVariantMap();
    m_platform->bundles = {agent};
}

void TestAgentBundle::theAgentIsTheApplicationAroundThisOne()
{
    const auto agent = AgentBundle::bundle();
    QVERIFY(agent);
    QCOMPARE(agent->bundleURL(), QUrl::fromLocalFile("/apps/Corvane.app"));
    putIn("/apps/Corvane.app/Contents/Helpers/Corvane Settings.app");
    QVERIFY(AgentBundle::bundle());
}

void TestAgentBundle::theAgentIsFoundInAnyFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("space") << "/my apps/Corvane.app";
    QTest::newRow("number sign") << "/apps #1/Corvane.app";
    QTest::newRow("question mark") << "/apps?/Corvane?.app";
    QTest::newRow("percent sign") << "/100%20/Corvane%.app";
    QTest::newRow("letters of other alphabets") << QStringLiteral("/Приложения/Corvane.app");
}

void TestAgentBundle::theAgentIsFoundInAnyFolder()
{
    QFETCH(QString, folder);
    m_platform->bundles[0].url = QUrl::fromLocalFile(folder);
    putIn(folder + "/Contents/Helpers/Corvane Settings.app");
    const auto agent = AgentBundle::bundle();
    QVERIFY(agent);
    QCOMPARE(agent->bundleURL().toLocalFile(), folder);
}

void TestAgentBundle::exactlyThreeFoldersAreStepped_data()
{
    QTest::addColumn<QString>("own");
    QTest::addColumn<QString>("agent");
    QTest::newRow("a folder deeper") << "/apps/Corvane.app/Contents/Helpers/Tools/Corvane Settings.app"
                                     << "/apps/Corvane.app/Contents";
    QTest::newRow("a helper of a helper")
        << "/apps/Corvane.app/Contents/Helpers/Tool.app/Contents/Helpers/Corvane Settings.app"
        << "/apps/Corvane.app/Contents/Helpers/Tool.app";
}

void TestAgentBundle::exactlyThreeFoldersAreStepped()
{
    QFETCH(QString, own);
    QFETCH(QString, agent);
    putIn(own);
    // The application at the very outside is not the one around this one.
    QVERIFY(!AgentBundle::bundle());
    m_platform->bundles[0].url = QUrl::fromLocalFile(agent);
    QVERIFY(AgentBundle::bundle());
}

void TestAgentBundle::outsideOfAHelpersFolderThereIsNoAgent_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("alone") << "/apps/Corvane Settings.app";
    QTest::newRow("another folder of a bundle") << "/apps/Corvane.app/Contents/MacOS/Corvane Settings.app";
    QTest::newRow("a folder of that name") << "/apps/Helpers/Corvane Settings.app";
    QTest::newRow("the root") << "/";
}

void TestAgentBundle::outsideOfAHelpersFolderThereIsNoAgent()
{
    QFETCH(QString, folder);
    putIn(folder);
    QVERIFY(!AgentBundle::bundle());
    QVERIFY(!AgentBundle::updatesAvailable());
}

void TestAgentBundle::anAgentWithoutAFolderIsNone()
{
    m_platform->bundles.clear();
    QVERIFY(!AgentBundle::bundle());
    QVERIFY(!AgentBundle::updatesAvailable());
}

void TestAgentBundle::aKeyOf44CharactersOffersUpdates_data()
{
    QTest::addColumn<QVariant>("key");
    QTest::addColumn<bool>("available");
    QTest::newRow("44") << QVariant(QString(44, 'k')) << true;
    QTest::newRow("43") << QVariant(QString(43, 'k')) << false;
    QTest::newRow("45") << QVariant(QString(45, 'k')) << false;
    QTest::newRow("empty") << QVariant(QString()) << false;
    QTest::newRow("absent") << QVariant() << false;
    QTest::newRow("no text") << QVariant(true) << false;
}

void TestAgentBundle::aKeyOf44CharactersOffersUpdates()
{
    QFETCH(QVariant, key);
    m_platform->bundles[0].info = QVariantMap{{"SUPublicEDKey", key}};
    QTEST(AgentBundle::updatesAvailable(), "available");
}

void TestAgentBundle::anAgentWithoutFactsOffersNoUpdates()
{
    m_platform->bundles[0].info.reset();
    QVERIFY(!AgentBundle::updatesAvailable());
}

CORVANE_TEST(TestAgentBundle, runInCore)
#include "tst_agentbundle.moc"
