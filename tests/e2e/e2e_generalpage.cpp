#include "EndToEndTest.h"
#include "Processes.h"
#include "Service.h"
#include "TestProgram.h"

#include <X11/keysym.h>

using namespace Qt::StringLiterals;

namespace {

const QString needsApproval = u"agent.launchAtLoginNeedsApproval"_s;
const QString iconHidden = u"menuBarIconHidden"_s;

}

/// The General page, in the running program: what it shows of the store, and what its controls tell the agent.
class TestGeneralPage : public EndToEndTest {
    Q_OBJECT

private:
    /// The ways in which a person reaches a control.
    enum class Way { Press, Toggle, Pointer, Space, Return };
    using Ways = std::initializer_list<std::pair<const char *, Way>>;

    static void addWays(Ways ways);
    bool use(const Accessible &control, Way way);

private slots:
    void showsWhatTheStoreHoldsWhenItOpens_data();
    void showsWhatTheStoreHoldsWhenItOpens();
    void followsTheStoreWhileItIsOpen();

    void flippingStartAtLoginStoresBothKeysAndThenTellsTheAgentOnce_data();
    void flippingStartAtLoginStoresBothKeysAndThenTellsTheAgentOnce();
    void flippingStartAtLoginOffWhileApprovalIsPendingClearsBothKeys();
    void flippingStartAtLoginBackAndForthTellsTheAgentEachTime();

    void flippingShowInTheMenuBarStoresTheInverseAndThenTellsTheAgentOnce_data();
    void flippingShowInTheMenuBarStoresTheInverseAndThenTellsTheAgentOnce();

    void theAgentIsNotToldBeforeTheStoreIsWritten_data();
    void theAgentIsNotToldBeforeTheStoreIsWritten();

    void aPendingApprovalShowsTheLoginItemsRow();
    void theLoginItemsButtonOpensTheFolderAndPostsNothing();

    void aGrantedPermissionReplacesTheButtonByTheStatus();
    void openSettingsAsksTheAgentForThePermission_data();
    void openSettingsAsksTheAgentForThePermission();

    void showGuideStartsTheGuideAnewAndEndsThisProcess();
};

void TestGeneralPage::addWays(Ways ways)
{
    QTest::addColumn<Way>("way");
    for (const auto &[name, way] : ways)
        QTest::newRow(name) << way;
}

bool TestGeneralPage::use(const Accessible &control, Way way)
{
    switch (way) {
    case Way::Press:
        return control.doAction(u"Press"_s);
    case Way::Toggle:
        return control.doAction(u"Toggle"_s);
    case Way::Pointer:
        pointer().click(control.extents().center());
        return true;
    case Way::Space:
    case Way::Return:
        if (!control.grabFocus() || !becomes(control, ATSPI_STATE_FOCUSED))
            return false;
        keyboard().press(way == Way::Space ? XK_space : XK_Return);
        return true;
    }
    return false;
}

void TestGeneralPage::showsWhatTheStoreHoldsWhenItOpens_data()
{
    QTest::addColumn<QVariantMap>("stored");
    QTest::addColumn<bool>("startsAtLogin");
    QTest::addColumn<bool>("showsIcon");
    QTest::newRow("nothing") << QVariantMap() << false << true;
    QTest::newRow("started at login") << QVariantMap{{AgentKey::launchAtLogin, true}} << true << true;
    QTest::newRow("waiting for approval")
        << QVariantMap{{AgentKey::launchAtLogin, false}, {needsApproval, true}} << true << true;
    QTest::newRow("registered and waiting")
        << QVariantMap{{AgentKey::launchAtLogin, true}, {needsApproval, true}} << true << true;
    QTest::newRow("icon hidden") << QVariantMap{{iconHidden, true}} << false << false;
    QTest::newRow("icon not hidden") << QVariantMap{{iconHidden, false}} << false << true;
}

void TestGeneralPage::showsWhatTheStoreHoldsWhenItOpens()
{
    QFETCH(QVariantMap, stored);
    QFETCH(bool, startsAtLogin);
    QFETCH(bool, showsIcon);
    for (auto entry = stored.cbegin(); entry != stored.cend(); ++entry)
        store().write(entry.key(), entry.value());
    QVERIFY(open());

    FIND(login, ATSPI_ROLE_CHECK_BOX, "Start at login");
    FIND(icon, ATSPI_ROLE_CHECK_BOX, "Show in the menu bar");
    QCOMPARE(login.has(ATSPI_STATE_CHECKED), startsAtLogin);
    QCOMPARE(icon.has(ATSPI_STATE_CHECKED), showsIcon);
    settle();
    QCOMPARE(store().readAll(), stored);
    QCOMPARE(commands().heard().size(), 0);
}

void TestGeneralPage::followsTheStoreWhileItIsOpen()
{
    QVERIFY(open());
    FIND(login, ATSPI_ROLE_CHECK_BOX, "Start at login");
    FIND(icon, ATSPI_ROLE_CHECK_BOX, "Show in the menu bar");

    store().write(AgentKey::launchAtLogin, true);
    QVERIFY(becomes(login, ATSPI_STATE_CHECKED));
    store().write(AgentKey::launchAtLogin, false);
    QVERIFY(becomes(login, ATSPI_STATE_CHECKED, false));
    store().write(needsApproval, true);
    QVERIFY(becomes(login, ATSPI_STATE_CHECKED));
    store().remove(needsApproval);
    QVERIFY(becomes(login, ATSPI_STATE_CHECKED, false));

    store().write(iconHidden, true);
    QVERIFY(becomes(icon, ATSPI_STATE_CHECKED, false));
    store().removeAll();
    QVERIFY(becomes(icon, ATSPI_STATE_CHECKED));
    settle();
    QCOMPARE(commands().heard().size(), 0);
    QCOMPARE(store().readAll(), QVariantMap());
}

void TestGeneralPage::flippingStartAtLoginStoresBothKeysAndThenTellsTheAgentOnce_data()
{
    addWays({{"press action", Way::Press},
             {"toggle action", Way::Toggle},
             {"pointer", Way::Pointer},
             {"space key", Way::Space}});
}

void TestGeneralPage::flippingStartAtLoginStoresBothKeysAndThenTellsTheAgentOnce()
{
    QFETCH(Way, way);
    QVERIFY(open());
    FIND(login, ATSPI_ROLE_CHECK_BOX, "Start at login");

    QVERIFY(use(login, way));
    QVERIFY(becomes(login, ATSPI_STATE_CHECKED));
    settle();
    QCOMPARE(commands().heard().size(), 1);
    const HeardCommand heard = commands().heard().constFirst();
    QCOMPARE(heard.command, u"setLaunchAtLogin"_s);
    QCOMPARE(heard.value, std::optional<QVariant>(true));
    QCOMPARE(heard.extras, QVariantMap());
    QCOMPARE(heard.stored, (QVariantMap{{AgentKey::launchAtLogin, true}, {needsApproval, false}}));
}

void TestGeneralPage::flippingStartAtLoginOffWhileApprovalIsPendingClearsBothKeys()
{
    store().write(needsApproval, true);
    QVERIFY(open());
    FIND(login, ATSPI_ROLE_CHECK_BOX, "Start at login");
    FIND(open, ATSPI_ROLE_PUSH_BUTTON, "Open");

    QVERIFY(login.doAction(u"Press"_s));
    QVERIFY(disappears(ATSPI_ROLE_PUSH_BUTTON, u"Open"_s));
    QVERIFY(becomes(login, ATSPI_STATE_CHECKED, false));
    settle();
    QCOMPARE(commands().heard().size(), 1);
    const HeardCommand heard = commands().heard().constFirst();
    QCOMPARE(heard.command, u"setLaunchAtLogin"_s);
    QCOMPARE(heard.value, std::optional<QVariant>(false));
    QCOMPARE(heard.stored, (QVariantMap{{AgentKey::launchAtLogin, false}, {needsApproval, false}}));
}

void TestGeneralPage::flippingStartAtLoginBackAndForthTellsTheAgentEachTime()
{
    QVERIFY(open());
    FIND(login, ATSPI_ROLE_CHECK_BOX, "Start at login");
    for (int flip = 0; flip < 4; ++flip)
        QVERIFY(login.doAction(u"Press"_s));
    settle();
    QCOMPARE(commands().heard().size(), 4);
    for (int flip = 0; flip < 4; ++flip)
        QCOMPARE(commands().heard().at(flip).value, std::optional<QVariant>(flip % 2 == 0));
    QCOMPARE(store().read(AgentKey::launchAtLogin), QVariant(false));
}

void TestGeneralPage::flippingShowInTheMenuBarStoresTheInverseAndThenTellsTheAgentOnce_data()
{
    addWays({{"press action", Way::Press},
             {"toggle action", Way::Toggle},
             {"pointer", Way::Pointer},
             {"space key", Way::Space}});
}

void TestGeneralPage::flippingShowInTheMenuBarStoresTheInverseAndThenTellsTheAgentOnce()
{
    QFETCH(Way, way);
    QVERIFY(open());
    FIND(icon, ATSPI_ROLE_CHECK_BOX, "Show in the menu bar");

    for (const bool hidden : {true, false}) {
        commands().clear();
        QVERIFY(use(icon, way));
        QVERIFY(becomes(icon, ATSPI_STATE_CHECKED, !hidden));
        settle();
        QCOMPARE(commands().heard().size(), 1);
        const HeardCommand heard = commands().heard().constFirst();
        QCOMPARE(heard.command, u"applySettings"_s);
        QVERIFY(!heard.value.has_value());
        QCOMPARE(heard.extras, QVariantMap());
        QCOMPARE(heard.stored, (QVariantMap{{iconHidden, hidden}}));
    }
}

void TestGeneralPage::theAgentIsNotToldBeforeTheStoreIsWritten_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariantMap>("stored");
    QTest::newRow("start at login") << u"Start at login"_s
                                    << QVariantMap{{AgentKey::launchAtLogin, true}, {needsApproval, false}};
    QTest::newRow("menu bar") << u"Show in the menu bar"_s << QVariantMap{{iconHidden, true}};
}

void TestGeneralPage::theAgentIsNotToldBeforeTheStoreIsWritten()
{
    constexpr int longEnough = 500; // milliseconds; a command that is posted too early arrives within a few
    QFETCH(QString, name);
    QFETCH(QVariantMap, stored);
    QVERIFY(open());
    const Accessible control = find(ATSPI_ROLE_CHECK_BOX, name);
    QVERIFY(control);
    settle();

    Service settings(u"ca.desrt.dconf"_s);
    QVERIFY(settings.hold());
    pointer().click(control.extents().center());
    QVERIFY(!commands().waitForCount(1, longEnough));
    QVERIFY(settings.release());
    QVERIFY(commands().waitForCount(1));
    QCOMPARE(commands().heard().constFirst().stored, stored);
}

void TestGeneralPage::aPendingApprovalShowsTheLoginItemsRow()
{
    const QString usual = u"So the buttons are there whenever you open Mission Control."_s;
    const QString waiting = u"Waiting for your OK in System Settings › General › Login Items."_s;
    const QString hint = u"Allow Corvane there to finish."_s;
    QVERIFY(open());
    QVERIFY(shows(usual));
    QVERIFY(doesNotShow(waiting));
    QVERIFY(doesNotShow(u"Login Items"_s));
    const int height = window()->geometry().height();

    store().write(needsApproval, true);
    FIND(open, ATSPI_ROLE_PUSH_BUTTON, "Open");
    QVERIFY(shows(waiting));
    QVERIFY(shows(u"Login Items"_s));
    QVERIFY(shows(hint));
    QVERIFY(doesNotShow(usual));
    // A rule and a row of their own, of 40 points at least.
    QTRY_VERIFY(window()->geometry().height() >= height + 41);

    store().write(needsApproval, false);
    QVERIFY(disappears(ATSPI_ROLE_PUSH_BUTTON, u"Open"_s));
    QVERIFY(doesNotShow(hint));
    QVERIFY(shows(usual));
    QTRY_COMPARE(window()->geometry().height(), height);
}

void TestGeneralPage::theLoginItemsButtonOpensTheFolderAndPostsNothing()
{
    // This desktop has no page for login items, so the folder is handed to whatever opens folders here.
    const QTemporaryDir programs;
    QFile opener(programs.filePath(u"xdg-open"_s));
    QVERIFY(opener.open(QFile::WriteOnly));
    opener.write("#!/bin/sh\necho \"$1\" > \"$(dirname \"$0\")/opened\"\n");
    opener.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    opener.close();
    store().write(needsApproval, true);
    QVERIFY(open({.environment = {{u"PATH"_s, programs.path() + u':' + qEnvironmentVariable("PATH")}}}));
    FIND(open, ATSPI_ROLE_PUSH_BUTTON, "Open");
    QVERIFY(open.doAction(u"Press"_s));
    const auto opened = [&] {
        QFile file(programs.filePath(u"opened"_s));
        return file.open(QFile::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    };
    QTRY_VERIFY(opened().endsWith("/autostart"));
    settle();
    QCOMPARE(commands().heard().size(), 0);
    QCOMPARE(store().readAll(), (QVariantMap{{needsApproval, true}}));
    QVERIFY(program().isRunning());
}

void TestGeneralPage::aGrantedPermissionReplacesTheButtonByTheStatus()
{
    QVERIFY(open());
    FIND(button, ATSPI_ROLE_PUSH_BUTTON, "Open Settings");
    QVERIFY(shows(u"Needed to see which window you point at in Mission Control."_s));
    QVERIFY(doesNotShow(u"Allowed"_s));

    store().write(AgentKey::trusted, true);
    QVERIFY(shows(u"Allowed"_s));
    QVERIFY(disappears(ATSPI_ROLE_PUSH_BUTTON, u"Open Settings"_s));
    QVERIFY(shows(u"Corvane can see which window you point at."_s));

    store().write(AgentKey::trusted, false);
    FIND(again, ATSPI_ROLE_PUSH_BUTTON, "Open Settings");
    QVERIFY(doesNotShow(u"Allowed"_s));
    settle();
    QCOMPARE(commands().heard().size(), 0);
}

void TestGeneralPage::openSettingsAsksTheAgentForThePermission_data()
{
    addWays({{"press action", Way::Press},
             {"pointer", Way::Pointer},
             {"space key", Way::Space},
             {"return key", Way::Return}});
}

void TestGeneralPage::openSettingsAsksTheAgentForThePermission()
{
    QFETCH(Way, way);
    QVERIFY(open());
    FIND(button, ATSPI_ROLE_PUSH_BUTTON, "Open Settings");
    QVERIFY(use(button, way));
    QVERIFY(commands().waitForCount(1));
    settle();
    QCOMPARE(commands().heard().size(), 1);
    const HeardCommand heard = commands().heard().constFirst();
    QCOMPARE(heard.command, u"requestAccessibility"_s);
    QVERIFY(!heard.value.has_value());
    QCOMPARE(heard.extras, QVariantMap());
    QCOMPARE(heard.stored, QVariantMap());
}

void TestGeneralPage::showGuideStartsTheGuideAnewAndEndsThisProcess()
{
    QVERIFY(open());
    FIND(button, ATSPI_ROLE_PUSH_BUTTON, "Show Guide");
    QVERIFY(button.doAction(u"Press"_s));

    std::optional<Processes::Process> second;
    const auto secondRuns = [&] {
        const auto running = Processes::instancesOf(program().path());
        for (const Processes::Process &process : running) {
            if (process.id != program().processId() && !process.arguments.isEmpty())
                second = process;
        }
        return second.has_value();
    };
    QVERIFY(QTest::qWaitFor(secondRuns, 20000));
    QCOMPARE(second->arguments, QStringList({u"--onboarding"_s, u"--replay"_s}));
    QVERIFY(program().waitForExit());
    QCOMPARE(program().exitCode(), 0);
    QCOMPARE(store().readAll(), QVariantMap());

    const auto guide = [&] { return TopLevel::ofProcess(desktop().x(), second->id); };
    QTRY_VERIFY_WITH_TIMEOUT(guide().size() == 1 && guide().constFirst().isViewable(), 20000);
    QCOMPARE(guide().constFirst().title(), u"Welcome to Corvane"_s);
    Accessible skip;
    QTRY_VERIFY_WITH_TIMEOUT(skip = Accessible::application(second->id).find(ATSPI_ROLE_PUSH_BUTTON, u"Skip setup"_s),
                             20000);
    QVERIFY(skip.doAction(u"Press"_s));
    QTRY_VERIFY(Processes::instancesOf(program().path()).isEmpty());
    QVERIFY(store().waitFor(u"onboardingCompleted"_s, true));
}

CORVANE_TEST(TestGeneralPage, runInCore)
#include "e2e_generalpage.moc"
