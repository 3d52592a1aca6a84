#include "FakePlatform.h"
#include "Shared.h"
#include "TestProgram.h"

class TestShared : public QObject {
    Q_OBJECT

private slots:
    void init();

    void theStoreIsTheSuiteOpenedByName();
    void insideTheAgentTheStoreIsTheStandardUserDefaults();
    void aSuiteThatCannotBeOpenedFallsBackToTheStandardUserDefaults();
    void theStoreIsTakenOnce();
    void aBundleWithoutAnIdentifierUsesTheSuite();

    void aValueOfAnotherTypeReadsAsTheDefault();

    void aCommandAloneMakesExactlyOneEntry();
    void aFalseValueIsPresentAndFalse();
    void aTrueValueIsABoolean();
    void extrasAreAddedAsStrings();
    void anExtraNamedCommandOrValueReplacesTheEntry();
    void everyCommandGoesOutUnderTheOneName();
    void aStoredValueIsThereWhenTheCommandArrives();
    void onlyACommandThatAnnouncesSettingsWaitsForThem();

private:
    QVariantMap onlyUserInfo() const
    {
        const auto &posts = m_platform->notifications.posts;
        return posts.size() == 1 ? posts.constFirst().userInfo : QVariantMap();
    }

    FakePlatform *m_platform = nullptr;
};

namespace {
const QString suite = QStringLiteral("com.vexmoor.corvane");
const QString identifier = QStringLiteral("CFBundleIdentifier");
}

void TestShared::init()
{
    m_platform = &FakePlatform::install();
    m_platform->main.info = QVariantMap{{identifier, QStringLiteral("com.vexmoor.corvane.settings")}};
}

void TestShared::theStoreIsTheSuiteOpenedByName()
{
    QCOMPARE(&Shared::store(), &m_platform->suite(suite));
}

void TestShared::insideTheAgentTheStoreIsTheStandardUserDefaults()
{
    m_platform->main.info = QVariantMap{{identifier, suite}};
    QCOMPARE(&Shared::store(), &m_platform->standard);
}

void TestShared::aSuiteThatCannotBeOpenedFallsBackToTheStandardUserDefaults()
{
    m_platform->suitesCanBeOpened = false;
    QCOMPARE(&Shared::store(), &m_platform->standard);
}

void TestShared::theStoreIsTakenOnce()
{
    UserDefaults *first = &Shared::store();
    m_platform->suitesCanBeOpened = false;
    QCOMPARE(&Shared::store(), first);
    // A new platform has a store of its own.
    FakePlatform &next = FakePlatform::install();
    QCOMPARE(&Shared::store(), &next.suite(suite));
}

void TestShared::aBundleWithoutAnIdentifierUsesTheSuite()
{
    m_platform->main.info.reset();
    QCOMPARE(&Shared::store(), &m_platform->suite(suite));
}

void TestShared::aValueOfAnotherTypeReadsAsTheDefault()
{
    FakeUserDefaults &stored = m_platform->suite(suite);
    QCOMPARE(Shared::value("layouts.enabled"), QVariant(true));
    stored.setValue("layouts.enabled", 0.0);
    QCOMPARE(Shared::value("layouts.enabled").typeId(), int(QMetaType::Bool));
    QVERIFY(Shared::value("layouts.enabled").toBool());
    stored.setValue("layouts.enabled", false);
    QVERIFY(!Shared::value("layouts.enabled").toBool());
    QVERIFY(!Shared::value("no such key").isValid());
}

void TestShared::aCommandAloneMakesExactlyOneEntry()
{
    Shared::send(QStringLiteral("applySettings"));
    QCOMPARE(onlyUserInfo(), (QVariantMap{{QStringLiteral("command"), QStringLiteral("applySettings")}}));
}

void TestShared::aFalseValueIsPresentAndFalse()
{
    Shared::send(QStringLiteral("setLaunchAtLogin"), false);
    const QVariant value = onlyUserInfo().value(QStringLiteral("value"));
    QCOMPARE(value.typeId(), int(QMetaType::Bool));
    QCOMPARE(value.toBool(), false);
}

void TestShared::aTrueValueIsABoolean()
{
    Shared::send(QStringLiteral("setLaunchAtLogin"), true);
    QCOMPARE(onlyUserInfo(),
             (QVariantMap{{QStringLiteral("command"), QStringLiteral("setLaunchAtLogin")},
                          {QStringLiteral("value"), true}}));
    QCOMPARE(onlyUserInfo().value(QStringLiteral("value")).typeId(), int(QMetaType::Bool));
}

void TestShared::extrasAreAddedAsStrings()
{
    Shared::send(QStringLiteral("requestAccessibility"), std::nullopt,
                 {{QStringLiteral("from"), QStringLiteral("general")}, {QString(), QString()}});
    const QVariantMap sent = onlyUserInfo();
    QCOMPARE(sent,
             (QVariantMap{{QStringLiteral("command"), QStringLiteral("requestAccessibility")},
                          {QStringLiteral("from"), QStringLiteral("general")},
                          {QString(), QString()}}));
    QCOMPARE(sent.value(QStringLiteral("from")).typeId(), int(QMetaType::QString));
}

void TestShared::anExtraNamedCommandOrValueReplacesTheEntry()
{
    Shared::send(
        QStringLiteral("applySettings"), true,
        {{QStringLiteral("command"), QStringLiteral("other")}, {QStringLiteral("value"), QStringLiteral("no")}});
    const QVariantMap sent = onlyUserInfo();
    QCOMPARE(sent,
             (QVariantMap{{QStringLiteral("command"), QStringLiteral("other")},
                          {QStringLiteral("value"), QStringLiteral("no")}}));
    QCOMPARE(sent.value(QStringLiteral("value")).typeId(), int(QMetaType::QString));
}

void TestShared::everyCommandGoesOutUnderTheOneName()
{
    Shared::send(Shared::Command::applySettings);
    Shared::send(Shared::Command::checkForUpdates);
    QCOMPARE(m_platform->notifications.posts.size(), 2);
    for (const auto &post : std::as_const(m_platform->notifications.posts))
        QCOMPARE(post.name, QStringLiteral("com.vexmoor.corvane.command"));
}

void TestShared::aStoredValueIsThereWhenTheCommandArrives()
{
    QObject agent;
    QVariant seen;
    m_platform->notifications.observe(Shared::Command::name, &agent, [&seen](const QVariantMap &) {
        seen = Shared::store().value(Shared::Key::buttonTheme);
    });
    Shared::store().setValue(Shared::Key::buttonTheme, QStringLiteral("soft"));
    Shared::send(Shared::Command::applySettings);
    QCOMPARE(seen, QVariant(QStringLiteral("soft")));
}

void TestShared::onlyACommandThatAnnouncesSettingsWaitsForThem()
{
    const auto names = [this] {
        QStringList sent;
        for (const auto &post : std::as_const(m_platform->notifications.posts))
            sent.append(post.userInfo.value("command").toString());
        return sent;
    };
    FakeUserDefaults &suite = m_platform->suite(::suite);
    suite.isHanging = true;
    suite.setValue(Shared::Key::buttonTheme, "soft");
    for (const Contract::CommandEntry &command : Contract::commands())
        Shared::send(command.name);
    QCOMPARE(names(), QStringList({"requestAccessibility", "checkForUpdates"}));
    suite.answer();
    QCOMPARE(names(), QStringList({"requestAccessibility", "checkForUpdates", "applySettings", "setLaunchAtLogin"}));
}

CORVANE_TEST(TestShared, runInCore)
#include "tst_shared.moc"
