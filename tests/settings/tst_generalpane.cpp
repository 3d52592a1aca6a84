#include "FakePlatform.h"
#include "GeneralActions.h"
#include "Shared.h"
#include "ViewEngine.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

/// The visible items of that name for accessibility below `item`.
QList<QQuickItem *> named(QQuickItem *item, const QString &name)
{
    QList<QQuickItem *> found;
    if (!item->isVisible())
        return found;
    const auto *accessible = QAccessible::queryAccessibleInterface(item);
    if (accessible && accessible->text(QAccessible::Name) == name)
        found.append(item);
    for (QQuickItem *child : item->childItems())
        found.append(named(child, name));
    return found;
}

}

class TestGeneralPane : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }
    void init();
    void cleanup();

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
    QQuickItem *control(const QString &name, QAccessible::Role role);
    bool isShown(const QString &text) { return !named(m_window->contentItem(), text).isEmpty(); }
    bool isOn(const QString &name);
    void press(QQuickItem *item);

    FakePlatform *m_platform = nullptr;
    FakeUserDefaults *m_store = nullptr;
    std::unique_ptr<ViewEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;
};

void TestGeneralPane::init()
{
    QTest::failOnWarning(QRegularExpression(".*"));
    QAccessible::setActive(true);
    m_platform = &FakePlatform::install();
    m_platform->look.setReduceMotion(true);
    m_store = &m_platform->suite(Shared::suiteName);
    m_engine = std::make_unique<ViewEngine>();
    m_window = std::make_unique<QQuickWindow>();
    m_window->resize(386, 500);
    auto *pane = ViewEngine::make(*m_engine, "qrc:/qt/qml/Corvane/Settings/General/GeneralPane.qml");
    pane->setParent(m_window.get());
    pane->setParentItem(m_window->contentItem());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestGeneralPane::cleanup()
{
    m_window.reset();
    m_engine.reset();
    GeneralActions::setGuideOpener({});
}

QQuickItem *TestGeneralPane::control(const QString &name, QAccessible::Role role)
{
    for (QQuickItem *item : named(m_window->contentItem(), name)) {
        if (QAccessible::queryAccessibleInterface(item)->role() == role)
            return item;
    }
    return nullptr;
}

bool TestGeneralPane::isOn(const QString &name)
{
    return QAccessible::queryAccessibleInterface(control(name, QAccessible::CheckBox))->state().checked;
}

void TestGeneralPane::press(QQuickItem *item)
{
    QVERIFY(item);
    // What has just changed is laid out with the next frame.
    QSignalSpy frames(m_window.get(), &QQuickWindow::frameSwapped);
    m_window->update();
    QTRY_VERIFY(!frames.isEmpty());
    const QPointF middle = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, middle.toPoint());
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
    m_store->setValue("agent.launchAtLogin", launch);
    m_store->setValue("agent.launchAtLoginNeedsApproval", approval);
    QTEST(isOn("Start at login"), "on");
}

void TestGeneralPane::whileApprovalIsPendingItsRowIsShown()
{
    const QString waiting = "Waiting for your OK in System Settings › General › Login Items.";
    const QString usual = "So the buttons are there whenever you open Mission Control.";
    QVERIFY(isShown(usual));
    QVERIFY(!isShown("Login Items"));
    m_store->setValue("agent.launchAtLoginNeedsApproval", true);
    QVERIFY(isShown(waiting));
    QVERIFY(!isShown(usual));
    QVERIFY(isShown("Login Items"));
    QVERIFY(isShown("Allow Corvane there to finish."));
    QVERIFY(control("Open", QAccessible::Button));
    m_store->setValue("agent.launchAtLoginNeedsApproval", false);
    QVERIFY(!isShown("Login Items"));
}

void TestGeneralPane::flippingTheLoginSwitchStoresBothKeysThenTellsTheAgent()
{
    bool storedFirst = false;
    m_platform->notifications.observe("com.vexmoor.corvane.command", this, [&](const QVariantMap &) {
        storedFirst = m_store->value("agent.launchAtLogin") == QVariant(true)
            && m_store->value("agent.launchAtLoginNeedsApproval") == QVariant(false);
    });
    press(control("Start at login", QAccessible::CheckBox));
    QVERIFY(storedFirst);
    QVERIFY(isOn("Start at login"));
    QCOMPARE(m_platform->notifications.posts.size(), 1);
    const QVariantMap expected = {{"command", "setLaunchAtLogin"}, {"value", true}};
    QCOMPARE(m_platform->notifications.posts.constFirst().userInfo, expected);
}

void TestGeneralPane::flippingItOffWhileApprovalIsPendingEndsTheWait()
{
    m_store->setValue("agent.launchAtLoginNeedsApproval", true);
    press(control("Start at login", QAccessible::CheckBox));
    QCOMPARE(m_store->value("agent.launchAtLogin"), QVariant(false));
    QCOMPARE(m_store->value("agent.launchAtLoginNeedsApproval"), QVariant(false));
    QVERIFY(!isShown("Login Items"));
    QVERIFY(!isOn("Start at login"));
    const QVariantMap expected = {{"command", "setLaunchAtLogin"}, {"value", false}};
    QCOMPARE(m_platform->notifications.posts.size(), 1);
    QCOMPARE(m_platform->notifications.posts.constFirst().userInfo, expected);
}

void TestGeneralPane::openOpensTheLoginItems()
{
    m_store->setValue("agent.launchAtLoginNeedsApproval", true);
    press(control("Open", QAccessible::Button));
    QCOMPARE(m_platform->space.loginItemsSettingsOpened, 1);
    QVERIFY(m_platform->notifications.posts.isEmpty());
}

void TestGeneralPane::theMenuBarSwitchShowsAndStoresTheInverse()
{
    QVERIFY(isOn("Show in the menu bar"));
    m_store->setValue("menuBarIconHidden", true);
    QVERIFY(!isOn("Show in the menu bar"));
    press(control("Show in the menu bar", QAccessible::CheckBox));
    QCOMPARE(m_store->value("menuBarIconHidden"), QVariant(false));
    QCOMPARE(m_platform->notifications.posts.size(), 1);
    const QVariantMap expected = {{"command", "applySettings"}};
    QCOMPARE(m_platform->notifications.posts.constFirst().userInfo, expected);
}

void TestGeneralPane::thePermissionShowsAsAButtonOrAStatus()
{
    QVERIFY(isShown("Needed to see which window you point at in Mission Control."));
    QVERIFY(control("Open Settings", QAccessible::Button));
    QVERIFY(!isShown("Allowed"));
    m_store->setValue("agent.accessibilityTrusted", true);
    QVERIFY(isShown("Corvane can see which window you point at."));
    QVERIFY(!control("Open Settings", QAccessible::Button));
    QVERIFY(isShown("Allowed"));
}

void TestGeneralPane::openSettingsAsksForThePermission()
{
    press(control("Open Settings", QAccessible::Button));
    QCOMPARE(m_platform->notifications.posts.size(), 1);
    const QVariantMap expected = {{"command", "requestAccessibility"}};
    QCOMPARE(m_platform->notifications.posts.constFirst().userInfo, expected);
}

void TestGeneralPane::showGuideAsksTheApplication()
{
    int asked = 0;
    GeneralActions::setGuideOpener([&] { ++asked; });
    press(control("Show Guide", QAccessible::Button));
    QCOMPARE(asked, 1);
    QVERIFY(m_platform->notifications.posts.isEmpty());
}

void TestGeneralPane::aValueOfAnotherTypeShowsItsDefaultAndStays()
{
    m_store->setValue("menuBarIconHidden", "yes");
    m_store->setValue("agent.accessibilityTrusted", 1.0);
    QVERIFY(isOn("Show in the menu bar"));
    QVERIFY(control("Open Settings", QAccessible::Button));
    QCOMPARE(m_store->value("menuBarIconHidden"), QVariant("yes"));
    QCOMPARE(m_store->value("agent.accessibilityTrusted"), QVariant(1.0));
}

QTEST_MAIN(TestGeneralPane)
#include "tst_generalpane.moc"
