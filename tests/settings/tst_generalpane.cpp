#include "GeneralActions.h"
#include "PaneWindow.h"
#include "TestProgram.h"

#include <memory>

class TestGeneralPane : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void itsTextsStandInTheirOrder();
    void theLoginSwitchShowsLaunchOrApproval_data();
    void theLoginSwitchShowsLaunchOrApproval();
    void whileApprovalIsPendingItsRowIsShown();
    void flippingTheLoginSwitchStoresBothKeysThenTellsTheAgent();
    void flippingItOffWhileApprovalIsPendingEndsTheWait();
    void openOpensTheLoginItems();
    void theMenuBarSwitchShowsAndStoresTheInverse();
    void thePermissionShowsAsAButtonOrAStatus();
    void openSettingsAsksForThePermission();
    void showGuideAsksTheApplication();
    void aValueOfAnotherTypeShowsItsDefaultAndStays();

private:
    std::unique_ptr<PaneWindow> m_pane;
};

void TestGeneralPane::init()
{
    m_pane = std::make_unique<PaneWindow>("qrc:/Corvane/Settings/General/GeneralPane.qml");
}

void TestGeneralPane::cleanup()
{
    m_pane.reset();
    GeneralActions::setGuideOpener({});
}

void TestGeneralPane::itsTextsStandInTheirOrder()
{
    QStringList texts = {"Start at login | So the buttons are there whenever you open Mission Control.",
                         "Show in the menu bar | Open Corvane from Applications to come back here.",
                         "Accessibility | Needed to see which window you point at in Mission Control.",
                         "Welcome guide | Try it again in a pretend Mission Control."};
    QCOMPARE(m_pane->texts(), texts);
    m_pane->store.setValue("agent.launchAtLoginNeedsApproval", true);
    m_pane->store.setValue("agent.accessibilityTrusted", true);
    texts[0] = "Start at login | Waiting for your OK in System Settings › General › Login Items.";
    texts[2] = "Accessibility | Corvane can see which window you point at. | Allowed";
    texts.insert(1, "Login Items | Allow Corvane there to finish.");
    QTRY_COMPARE(m_pane->texts(), texts);
}

void TestGeneralPane::theLoginSwitchShowsLaunchOrApproval_data()
{
    QTest::addColumn<bool>("launch");
    QTest::addColumn<bool>("approval");
    QTest::addColumn<bool>("on");
    QTest::newRow("neither") << false << false << false;
    QTest::newRow("registered") << true << false << true;
    QTest::newRow("waiting") << false << true << true;
    QTest::newRow("both") << true << true << true;
}

void TestGeneralPane::theLoginSwitchShowsLaunchOrApproval()
{
    QFETCH(bool, launch);
    QFETCH(bool, approval);
    m_pane->store.setValue("agent.launchAtLogin", launch);
    m_pane->store.setValue("agent.launchAtLoginNeedsApproval", approval);
    QTEST(m_pane->isChecked("Start at login"), "on");
}

void TestGeneralPane::whileApprovalIsPendingItsRowIsShown()
{
    const QString waiting = "Waiting for your OK in System Settings › General › Login Items.";
    const QString usual = "So the buttons are there whenever you open Mission Control.";
    QVERIFY(m_pane->isShown(usual));
    QVERIFY(!m_pane->isShown("Login Items"));
    m_pane->store.setValue("agent.launchAtLoginNeedsApproval", true);
    QVERIFY(m_pane->isShown(waiting));
    QVERIFY(!m_pane->isShown(usual));
    QVERIFY(m_pane->isShown("Login Items"));
    QVERIFY(m_pane->isShown("Allow Corvane there to finish."));
    QVERIFY(m_pane->item("Open", QAccessible::Button));
    m_pane->store.setValue("agent.launchAtLoginNeedsApproval", false);
    QVERIFY(!m_pane->isShown("Login Items"));
}

void TestGeneralPane::flippingTheLoginSwitchStoresBothKeysThenTellsTheAgent()
{
    bool storedFirst = false;
    m_pane->platform.notifications.observe("com.vexmoor.corvane.command", this, [&](const QVariantMap &) {
        storedFirst = m_pane->store.value("agent.launchAtLogin") == QVariant(true)
            && m_pane->store.value("agent.launchAtLoginNeedsApproval") == QVariant(false);
    });
    m_pane->click(m_pane->item("Start at login", QAccessible::CheckBox));
    QVERIFY(storedFirst);
    QVERIFY(m_pane->isChecked("Start at login"));
    QCOMPARE(m_pane->posts().size(), 1);
    const QVariantMap expected = {{"command", "setLaunchAtLogin"}, {"value", true}};
    QCOMPARE(m_pane->posts().constFirst().userInfo, expected);
}

void TestGeneralPane::flippingItOffWhileApprovalIsPendingEndsTheWait()
{
    m_pane->store.setValue("agent.launchAtLoginNeedsApproval", true);
    m_pane->click(m_pane->item("Start at login", QAccessible::CheckBox));
    QCOMPARE(m_pane->store.value("agent.launchAtLogin"), QVariant(false));
    QCOMPARE(m_pane->store.value("agent.launchAtLoginNeedsApproval"), QVariant(false));
    QVERIFY(!m_pane->isShown("Login Items"));
    QVERIFY(!m_pane->isChecked("Start at login"));
    const QVariantMap expected = {{"command", "setLaunchAtLogin"}, {"value", false}};
    QCOMPARE(m_pane->posts().size(), 1);
    QCOMPARE(m_pane->posts().constFirst().userInfo, expected);
}

void TestGeneralPane::openOpensTheLoginItems()
{
    m_pane->store.setValue("agent.launchAtLoginNeedsApproval", true);
    m_pane->click(m_pane->item("Open", QAccessible::Button));
    QCOMPARE(m_pane->platform.space.loginItemsSettingsOpened, 1);
    QVERIFY(m_pane->posts().isEmpty());
}

void TestGeneralPane::theMenuBarSwitchShowsAndStoresTheInverse()
{
    QVERIFY(m_pane->isChecked("Show in the menu bar"));
    m_pane->store.setValue("menuBarIconHidden", true);
    QVERIFY(!m_pane->isChecked("Show in the menu bar"));
    m_pane->click(m_pane->item("Show in the menu bar", QAccessible::CheckBox));
    QCOMPARE(m_pane->store.value("menuBarIconHidden"), QVariant(false));
    QCOMPARE(m_pane->posts().size(), 1);
    const QVariantMap expected = {{"command", "applySettings"}};
    QCOMPARE(m_pane->posts().constFirst().userInfo, expected);
}

void TestGeneralPane::thePermissionShowsAsAButtonOrAStatus()
{
    QVERIFY(m_pane->isShown("Needed to see which window you point at in Mission Control."));
    QVERIFY(m_pane->item("Open Settings", QAccessible::Button));
    QVERIFY(!m_pane->isShown("Allowed"));
    m_pane->store.setValue("agent.accessibilityTrusted", true);
    QVERIFY(m_pane->isShown("Corvane can see which window you point at."));
    QVERIFY(!m_pane->item("Open Settings", QAccessible::Button));
    QVERIFY(m_pane->isShown("Allowed"));
}

void TestGeneralPane::openSettingsAsksForThePermission()
{
    m_pane->click(m_pane->item("Open Settings", QAccessible::Button));
    QCOMPARE(m_pane->posts().size(), 1);
    const QVariantMap expected = {{"command", "requestAccessibility"}};
    QCOMPARE(m_pane->posts().constFirst().userInfo, expected);
}

void TestGeneralPane::showGuideAsksTheApplication()
{
    int asked = 0;
    GeneralActions::setGuideOpener([&] { ++asked; });
    m_pane->click(m_pane->item("Show Guide", QAccessible::Button));
    QCOMPARE(asked, 1);
    QVERIFY(m_pane->posts().isEmpty());
}

void TestGeneralPane::aValueOfAnotherTypeShowsItsDefaultAndStays()
{
    m_pane->store.setValue("menuBarIconHidden", "yes");
    m_pane->store.setValue("agent.accessibilityTrusted", 1.0);
    QVERIFY(m_pane->isChecked("Show in the menu bar"));
    QVERIFY(m_pane->item("Open Settings", QAccessible::Button));
    QCOMPARE(m_pane->store.value("menuBarIconHidden"), QVariant("yes"));
    QCOMPARE(m_pane->store.value("agent.accessibilityTrusted"), QVariant(1.0));
}

CORVANE_TEST(TestGeneralPane, runInGui)
#include "tst_generalpane.moc"
