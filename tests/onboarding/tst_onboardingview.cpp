#include "DragTileView.h"
#include "Glyph.h"
#include "Motion.h"
#include "OnboardingFlow.h"
#include "TestProgram.h"
#include "ViewWindow.h"
#include "Wrapping.h"

#include <memory>

namespace {

/// The screens of a run of the guide. There is no window before it begins.
class GuideView : public ViewWindow {
public:
    GuideView() { platform.look.setReduceMotion(true); }
    ~GuideView() { discard(); }

    void begin(OnboardingStep step, OnboardingFlow::Run run)
    {
        flow = std::make_unique<OnboardingFlow>(run, [this] { ++finished; });
        flow->go(step);
        auto *view = ViewEngine::make(engine, "qrc:/Corvane/Onboarding/OnboardingView.qml",
                                      {{"flow", QVariant::fromValue(flow.get())}});
        put(view, {560, 388});
        view->setSize({560, 388});
        bringUp();
    }

    std::unique_ptr<OnboardingFlow> flow;
    /// How many times the guide has ended.
    int finished = 0;
};

}

/// The five screens of the onboarding, in a window without a display.
class TestOnboardingView : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_guide.reset(); }

    void theViewHasItsSize();
    void theWelcomeSaysWhatTheProductDoes();
    void returnBeginsTheGuide();
    void skipSetupEndsIt();
    void theTryItStepHasThePracticeTheChipsAndNoWayBack();
    void resetBringsTheWindowsBackAndKeepsWhatWasPractised();
    void leavingThePracticeLeavesItsWindowAndItsKeys();
    void theHintIsTheText();
    void aNewHintIsReadOut();
    void theAccessStepExplainsThePermission();
    void theAccessStepChangesOnceThePermissionWasAskedFor();
    void theAccessStepSaysThatTheAgentIsMissing();
    void theAccessStepShowsThePermission();
    void whereWindowsAreUnknownTheAccessStepCarriesTheTile();
    void whereTheTileFloatsTheAccessStepHasNone();
    void theTileInTheStepDoesNotBob();
    void whenThePermissionArrivesTheTileInTheStepStaysAndDoesNothing();
    void theButtonsOfTheAccessStepGoOnAndBack();
    void theButtonsOfTheAccessStepKeepTheirPlace();
    void noSingleWordIsLeftForALastLine();
    void thePreviewIsAsHighAsTheCardBesideIt();
    void theCustomizeStepShowsAndStoresTheLook();
    void theCustomizeStepShowsTheDefaultsForWhatNobodyKnows();
    void theButtonsOfTheCustomizeStepGoOnAndBack();
    void theLastStepFollowsTheWishToStartAtLogin_data();
    void theLastStepFollowsTheWishToStartAtLogin();
    void theLastStepEndsTheFlow_data();
    void theLastStepEndsTheFlow();
    void everyStepCanBeLeftByTheKeyboardAlone();
    void aStepBeginsWithTheFocusOnItsHeading_data();
    void aStepBeginsWithTheFocusOnItsHeading();
    void returnWorksWhileTheLastScreenFadesIn();
    void valuesOfAnotherTypeCountAsAbsent_data();
    void valuesOfAnotherTypeCountAsAbsent();
    void theScreenThatFadesOutIsHiddenFromAssistiveTechnologies();
    void stepsCrossFadeInAQuarterOfASecond();
    void withLessMotionStepsChangeAtOnce();
    void onlyTheCurrentScreenIsThere();

private:
    void make(OnboardingStep step, OnboardingFlow::Run run = OnboardingFlow::Run::first);
    bool shows(const QString &name) { return m_guide->isShown(name); }
    FoundItem control(const QString &name, QAccessible::Role role = QAccessible::Button)
    {
        return m_guide->item(name, role);
    }
    void click(QQuickItem *item) { m_guide->click(item); }
    QAccessible::State stateOf(const QString &name, QAccessible::Role role = QAccessible::Button)
    {
        return m_guide->state(name, role);
    }
    QString focused() const { return m_guide->focused(); }

    /// Goes to that control by the Tab key, and presses it.
    void pressByKeyboard(const QString &name, Qt::Key key);

    QString step() const { return m_flow->stepName(); }
    QStringList commands() const;

    /// The screens that exist at this moment, by their step.
    QStringList screens() const;
    qreal opacityOf(const QString &step) const;

    std::unique_ptr<GuideView> m_guide;
    FakePlatform *m_platform = nullptr;
    FakeUserDefaults *m_store = nullptr;
    OnboardingFlow *m_flow = nullptr;
    QQuickWindow *m_window = nullptr;
};

void TestOnboardingView::init()
{
    m_guide = std::make_unique<GuideView>();
    m_platform = &m_guide->platform;
    m_store = &m_guide->store;
}

void TestOnboardingView::make(OnboardingStep step, OnboardingFlow::Run run)
{
    m_guide->begin(step, run);
    m_flow = m_guide->flow.get();
    m_window = &m_guide->window();
}

void TestOnboardingView::pressByKeyboard(const QString &name, Qt::Key key)
{
    for (int tabs = 0; tabs < 12 && focused() != name; ++tabs)
        QTest::keyClick(m_window, Qt::Key_Tab);
    REQUIRE(focused() == name);
    REQUIRE(m_window->activeFocusItem()->property("visualFocus").toBool());
    QTest::keyClick(m_window, key);
}

QStringList TestOnboardingView::commands() const
{
    QStringList list;
    for (const auto &post : m_platform->notifications.posts)
        list.append(post.userInfo.value("command").toString());
    return list;
}

QStringList TestOnboardingView::screens() const
{
    QStringList steps;
    for (const QQuickItem *holder : m_guide->typed("StepHolder")) {
        if (holder->property("item").value<QQuickItem *>())
            steps.append(holder->property("step").toString());
    }
    return steps;
}

qreal TestOnboardingView::opacityOf(const QString &step) const
{
    for (const QQuickItem *holder : m_guide->typed("StepHolder")) {
        if (holder->property("step").toString() == step)
            return holder->opacity();
    }
    return -1;
}

void TestOnboardingView::theViewHasItsSize()
{
    make(OnboardingStep::welcome);
    QCOMPARE(m_guide->root().implicitWidth(), 560);
    QCOMPARE(m_guide->root().implicitHeight(), 388);
}

void TestOnboardingView::theWelcomeSaysWhatTheProductDoes()
{
    make(OnboardingStep::welcome);
    QVERIFY(shows(QString::fromUtf8("Welcome · 01 / 05")));
    QVERIFY(
        shows("Close, minimize and full-screen windows right in Mission Control. Hover a window for its buttons, or "
              "use the shortcuts you already know."));
    click(control("Get started"));
    QCOMPARE(step(), "tryIt");
    QCOMPARE(commands(), QStringList());
}

void TestOnboardingView::returnBeginsTheGuide()
{
    make(OnboardingStep::welcome);
    QTest::keyClick(m_window, Qt::Key_Return);
    QCOMPARE(step(), "tryIt");
}

void TestOnboardingView::skipSetupEndsIt()
{
    make(OnboardingStep::welcome);
    click(control("Skip setup"));
    QCOMPARE(m_guide->finished, 1);
    QCOMPARE(commands(), QStringList());
    QVERIFY(m_store->values.isEmpty());
}

void TestOnboardingView::theTryItStepHasThePracticeTheChipsAndNoWayBack()
{
    make(OnboardingStep::tryIt);
    QVERIFY(shows(QString::fromUtf8("Step 02 · Try it")));
    QVERIFY(control("Give it a try", QAccessible::Heading));
    QVERIFY(shows("Browser window, Start page"));
    QVERIFY(shows("Browser window, Docs"));
    QVERIFY(!control("Back"));
    const QQuickItem *reset = control("Reset windows");
    QCOMPARE(reset->size(), QSizeF(24, 24));
    click(control("Continue"));
    QCOMPARE(step(), "access");
}

void TestOnboardingView::resetBringsTheWindowsBackAndKeepsWhatWasPractised()
{
    make(OnboardingStep::tryIt);
    m_flow->demo()->apply(Hotkey::close, 2);
    click(control("Reset windows"));
    QCOMPARE(m_flow->demo()->wins().at(2).state, DemoModel::State::normal);
    QVERIFY(m_flow->demo()->done().contains(DemoModel::Task::close));
}

void TestOnboardingView::leavingThePracticeLeavesItsWindowAndItsKeys()
{
    m_platform->look.setReduceMotion(false);
    make(OnboardingStep::tryIt);
    DemoModel &demo = *m_flow->demo();
    for (const int times : {1, 2}) {
        QTRY_COMPARE(opacityOf("tryIt"), 1);
        QQuickItem *sketches = control("Ideas window, Sketches", QAccessible::Grouping);
        m_guide->point(sketches, {60, 40});
        QTRY_COMPARE(demo.hovered(), std::optional(1));
        QCOMPARE(m_platform->keyMonitorCount(), 1);
        demo.pulse(Hotkey::close);
        m_flow->next();
        // It still fades.
        QCOMPARE(screens(), (QStringList{"tryIt", "access"}));
        QVERIFY(!demo.hovered());
        QCOMPARE(m_platform->keyMonitorCount(), 0);
        m_platform->queue.advance(0.45);
        QVERIFY(!demo.flash());
        // Once while it fades and once when it is gone.
        if (times == 2)
            QTRY_COMPARE(screens(), QStringList{"access"});
        QTest::mouseMove(m_window, {550, 380});
        m_flow->back();
        QCOMPARE(screens().count("tryIt"), 1);
        QCOMPARE(m_platform->keyMonitorCount(), 1);
    }
    QVERIFY(!demo.hovered());
    QCOMPARE(demo.nudge(), 0);
}

void TestOnboardingView::theHintIsTheText()
{
    make(OnboardingStep::tryIt);
    QVERIFY(shows(QString::fromUtf8("Click the cross, or press Ctrl+W to close it.")));
    m_store->setValue("showMinimizeButton", true);
    QVERIFY(shows(QString::fromUtf8("Click a button, or press Ctrl+W to close it.")));
    m_flow->demo()->apply(Hotkey::close, 2);
    QVERIFY(shows(QString::fromUtf8("Now hover another window and press Ctrl+M to minimize it.")));
}

void TestOnboardingView::aNewHintIsReadOut()
{
    make(OnboardingStep::tryIt);
    const QString first = QString::fromUtf8("Click the cross, or press Ctrl+W to close it.");
    const QQuickItem *hint = control(first, QAccessible::Notification);
    QVERIFY(hint);
    m_flow->demo()->apply(Hotkey::close, 2);
    QCOMPARE(control("Now hover another window and press Ctrl+M to minimize it.", QAccessible::Notification), hint);
    // The text of another step stays as it is, and is silent.
    m_flow->go(OnboardingStep::customize);
    QVERIFY(control("Optional. Pick a look and a size; you can change them any time in Settings.",
                    QAccessible::StaticText));
    // But for what the person must know.
    m_store->obstacle = UserDefaults::Trouble::noRoom;
    m_store->setValue("showMinimizeButton", true);
    QVERIFY(control("Changes can't be saved: the disk is full or read-only.", QAccessible::Notification));
}

void TestOnboardingView::theAccessStepExplainsThePermission()
{
    make(OnboardingStep::access);
    QVERIFY(shows(QString::fromUtf8("Step 03 · Permission")));
    QVERIFY(control("One permission, then you're done", QAccessible::Heading));
    QVERIFY(shows("macOS asks you first before Corvane can tell which window the pointer is on. Nothing is recorded or "
                  "sent anywhere."));
    QVERIFY(shows("Accessibility"));
    QVERIFY(shows("Opens Privacy & Security in System Settings."));
    QVERIFY(shows("Waiting"));
    QVERIFY(shows("Step 2 of 5, Try it, done"));
    QVERIFY(shows("Step 3 of 5, Permission, current"));
    QVERIFY(shows("Step 4 of 5, Make it yours"));
    QVERIFY(!control("Continue"));
}

void TestOnboardingView::theAccessStepChangesOnceThePermissionWasAskedFor()
{
    make(OnboardingStep::access);
    click(control("Open System Settings"));
    QCOMPARE(commands(), QStringList{"requestAccessibility"});
    QVERIFY(shows("Switch on Corvane in the list. Not there? Drag in the tile under System Settings."));
    QVERIFY(!control("Open System Settings"));
    click(control("Open Again"));
    QCOMPARE(commands(), (QStringList{"requestAccessibility", "requestAccessibility"}));
}

void TestOnboardingView::theAccessStepSaysThatTheAgentIsMissing()
{
    m_platform->programs.outcome = Instances::Start::failed;
    make(OnboardingStep::access);
    click(control("Open System Settings"));
    QVERIFY(shows("Corvane is not running."));
    QVERIFY(control("Corvane is not running.", QAccessible::Notification));
    QCOMPARE(commands(), QStringList());
    m_platform->programs.outcome = Instances::Start::running;
    click(control("Try Again"));
    QVERIFY(!shows("Corvane is not running."));
    QVERIFY(control("Open Again"));
    QCOMPARE(commands(), QStringList{"requestAccessibility"});
}

void TestOnboardingView::theAccessStepShowsThePermission()
{
    m_store->setValue("agent.accessibilityTrusted", true);
    make(OnboardingStep::access);
    QVERIFY(shows("Corvane can now see which window you point at."));
    QVERIFY(shows("Allowed in System Settings."));
    QVERIFY(shows("Allowed"));
    QVERIFY(!control("Open System Settings"));
    QVERIFY(!control("Skip"));
    click(control("Continue"));
    QCOMPARE(step(), "customize");
}

void TestOnboardingView::whereWindowsAreUnknownTheAccessStepCarriesTheTile()
{
    m_platform->windows.available = false;
    make(OnboardingStep::access);
    QVERIFY(shows("Opens Privacy & Security in System Settings."));
    QVERIFY(m_guide->all<DragTileView>().isEmpty());
    m_flow->requestAccess();
    m_guide->waitForFrame();
    QVERIFY(shows("Switch on Corvane in the list in System Settings."));
    const DragTileView &tile = *m_guide->all<DragTileView>().constFirst();
    QCOMPARE(tile.appURL(), m_flow->appURL());
    QVERIFY(tile.isEnabled());
    QVERIFY(control("Not in the list? Drag me in.", QAccessible::StaticText));
    QVERIFY(m_guide->textItem("Drop Corvane onto the Accessibility list."));
}

void TestOnboardingView::whereTheTileFloatsTheAccessStepHasNone()
{
    make(OnboardingStep::access);
    m_flow->requestAccess();
    QVERIFY(m_guide->all<DragTileView>().isEmpty());
    QVERIFY(shows("Switch on Corvane in the list. Not there? Drag in the tile under System Settings."));
}

void TestOnboardingView::theTileInTheStepDoesNotBob()
{
    m_platform->windows.available = false;
    m_platform->look.setReduceMotion(false);
    make(OnboardingStep::access);
    m_flow->requestAccess();
    m_guide->waitForFrame();
    QVERIFY(!m_guide->typed("DragTileContent").constFirst()->property("nudge").toBool());
    for (const Glyph *glyph : m_guide->all<Glyph>())
        QVERIFY(glyph->property("name") != "arrow");
}

void TestOnboardingView::whenThePermissionArrivesTheTileInTheStepStaysAndDoesNothing()
{
    m_platform->windows.available = false;
    make(OnboardingStep::access);
    m_flow->requestAccess();
    m_guide->waitForFrame();
    const qreal buttons = m_guide->rectOf(control("Skip")).y();
    m_store->setValue("agent.accessibilityTrusted", true);
    m_guide->waitForFrame();
    QVERIFY(shows("Allowed in System Settings."));
    QVERIFY(!m_guide->all<DragTileView>().constFirst()->isEnabled());
    QCOMPARE(m_guide->rectOf(control("Continue")).y(), buttons);
}

void TestOnboardingView::theButtonsOfTheAccessStepGoOnAndBack()
{
    make(OnboardingStep::access);
    click(control("Back"));
    QCOMPARE(step(), "tryIt");
    m_flow->next();
    click(control("Skip"));
    QCOMPARE(step(), "customize");
    QCOMPARE(commands(), QStringList());
}

void TestOnboardingView::theButtonsOfTheAccessStepKeepTheirPlace()
{
    make(OnboardingStep::access);
    const auto place = [&](const QString &button) {
        m_guide->waitForFrame();
        return m_guide->rectOf(control(button)).topLeft();
    };
    const QPointF before = place("Open System Settings");
    m_flow->requestAccess();
    QCOMPARE(place("Open Again"), before);
    m_store->setValue("agent.accessibilityTrusted", true);
    QCOMPARE(place("Continue"), before);
}

void TestOnboardingView::noSingleWordIsLeftForALastLine()
{
    m_store->setValue("agent.accessibilityTrusted", true);
    make(OnboardingStep::access);
    const auto last = [&](const QString &text) { return lastLine(*m_guide->textItem(text)); };
    const QString allowed = last("Corvane can now see which window you point at.");
    QVERIFY2(allowed.contains(u' '), qPrintable(allowed));
    m_flow->go(OnboardingStep::welcome);
    const QString welcome =
        last("Close, minimize and full-screen windows right in Mission Control. Hover a window for its "
             "buttons, or use the shortcuts you already know.");
    QVERIFY2(welcome.contains(u' '), qPrintable(welcome));
}

void TestOnboardingView::thePreviewIsAsHighAsTheCardBesideIt()
{
    make(OnboardingStep::customize);
    const QQuickItem *preview = control("Preview of the buttons", QAccessible::Graphic);
    QVERIFY(preview);
    const auto beside = preview->parentItem()->childItems();
    QCOMPARE(beside.size(), 2);
    QCOMPARE(preview->height(), beside.constLast()->height());
    QVERIFY(preview->height() > 150);
}

void TestOnboardingView::theCustomizeStepShowsAndStoresTheLook()
{
    make(OnboardingStep::customize);
    QVERIFY(shows(QString::fromUtf8("Step 04 · Make it yours")));
    QVERIFY(control("Make it yours", QAccessible::Heading));
    QVERIFY(shows("Optional. Pick a look and a size; you can change them any time in Settings."));
    click(control("Soft look", QAccessible::RadioButton));
    QCOMPARE(m_store->values.value("buttonTheme"), "soft");
    click(control("Large", QAccessible::RadioButton));
    QCOMPARE(m_store->values.value("buttonSizeOption"), "large");
    click(control("Minimize button", QAccessible::CheckBox));
    QCOMPARE(m_store->values.value("showMinimizeButton"), true);
    click(control("Full screen button", QAccessible::CheckBox));
    QCOMPARE(m_store->values.value("showMaximizeButton"), true);
    QCOMPARE(commands(), QStringList());
}

void TestOnboardingView::theCustomizeStepShowsTheDefaultsForWhatNobodyKnows()
{
    m_store->setValue("buttonTheme", "nobody's");
    m_store->setValue("buttonSizeOption", "nobody's");
    make(OnboardingStep::customize);
    QVERIFY(stateOf("Classic look", QAccessible::RadioButton).checked);
    QVERIFY(stateOf("Medium", QAccessible::RadioButton).checked);
    QCOMPARE(m_store->values.value("buttonTheme"), "nobody's");
}

void TestOnboardingView::theButtonsOfTheCustomizeStepGoOnAndBack()
{
    make(OnboardingStep::customize);
    click(control("Back"));
    QCOMPARE(step(), "access");
    m_flow->next();
    click(control("Looks Good"));
    QCOMPARE(step(), "done");
    QCOMPARE(commands(), QStringList{"applySettings"});
    m_flow->back();
    m_store->setValue("buttonTheme", "mono");
    click(control("Keep the Defaults"));
    QCOMPARE(step(), "done");
    QCOMPARE(m_store->values.value("buttonTheme"), "classic");
    QCOMPARE(commands(), (QStringList{"applySettings", "applySettings"}));
}

void TestOnboardingView::theLastStepFollowsTheWishToStartAtLogin_data()
{
    QTest::addColumn<bool>("launch");
    QTest::addColumn<QString>("copy");
    QTest::addColumn<QString>("secondary");
    const QString copy = "Swipe up with three fingers or press F3 to open Mission Control, then hover any window.";
    QTest::newRow("yes") << true << copy + " Corvane starts at login."
                         << "Don't start at login";
    QTest::newRow("no") << false << copy << "Not now";
}

void TestOnboardingView::theLastStepFollowsTheWishToStartAtLogin()
{
    QFETCH(bool, launch);
    QFETCH(QString, copy);
    QFETCH(QString, secondary);
    m_store->setValue("agent.launchAtLogin", launch);
    make(OnboardingStep::done, OnboardingFlow::Run::replay);
    QVERIFY(shows(QString::fromUtf8("All set · 05 / 05")));
    QVERIFY(shows(copy));
    QVERIFY(!control("Back"));
    click(control(secondary));
    QCOMPARE(commands(), (QStringList{"setLaunchAtLogin", "applySettings"}));
    QCOMPARE(m_platform->notifications.posts.first().userInfo.value("value"), QVariant(false));
    QCOMPARE(m_guide->finished, 1);
    QCOMPARE(m_platform->space.missionControlOpened, 0);
}

void TestOnboardingView::theLastStepEndsTheFlow_data()
{
    QTest::addColumn<bool>("launch");
    QTest::newRow("starting at login") << true;
    QTest::newRow("not starting at login") << false;
}

void TestOnboardingView::theLastStepEndsTheFlow()
{
    QFETCH(bool, launch);
    m_store->setValue("agent.launchAtLogin", launch);
    make(OnboardingStep::done, OnboardingFlow::Run::replay);
    QTest::keyClick(m_window, Qt::Key_Return);
    QCOMPARE(commands(), (QStringList{"setLaunchAtLogin", "applySettings"}));
    QCOMPARE(m_platform->notifications.posts.first().userInfo.value("value"), QVariant(launch));
    QCOMPARE(m_platform->space.missionControlOpened, 1);
    QCOMPARE(m_guide->finished, 1);
}

void TestOnboardingView::everyStepCanBeLeftByTheKeyboardAlone()
{
    make(OnboardingStep::welcome);
    QTest::keyClick(m_window, Qt::Key_Enter);
    QCOMPARE(step(), "tryIt");
    pressByKeyboard("Continue", Qt::Key_Space);
    QCOMPARE(step(), "access");
    pressByKeyboard("Back", Qt::Key_Return);
    QCOMPARE(step(), "tryIt");
    pressByKeyboard("Continue", Qt::Key_Return);
    pressByKeyboard("Skip", Qt::Key_Space);
    QCOMPARE(step(), "customize");
    pressByKeyboard("Looks Good", Qt::Key_Space);
    QCOMPARE(step(), "done");
    pressByKeyboard("Don't start at login", Qt::Key_Return);
    QCOMPARE(commands(), (QStringList{"applySettings", "setLaunchAtLogin", "applySettings"}));
    QCOMPARE(m_platform->space.missionControlOpened, 0);
    QCOMPARE(m_guide->finished, 1);
}

void TestOnboardingView::aStepBeginsWithTheFocusOnItsHeading_data()
{
    QTest::addColumn<OnboardingStep>("step");
    QTest::addColumn<QString>("heading");
    QTest::addColumn<QString>("first");
    QTest::newRow("tryIt") << OnboardingStep::tryIt << "Give it a try"
                           << "Browser window, Start page";
    QTest::newRow("access") << OnboardingStep::access << "One permission, then you're done"
                            << "Open System Settings";
    QTest::newRow("customize") << OnboardingStep::customize << "Make it yours"
                               << "Classic look";
}

void TestOnboardingView::aStepBeginsWithTheFocusOnItsHeading()
{
    QFETCH(OnboardingStep, step);
    make(OnboardingStep::welcome);
    m_flow->go(step);
    QTEST(focused(), "heading");
    QTest::keyClick(m_window, Qt::Key_Return);
    QTest::keyClick(m_window, Qt::Key_Space);
    QCOMPARE(m_flow->step(), step);
    QTest::keyClick(m_window, Qt::Key_Tab);
    QTEST(focused(), "first");
}

void TestOnboardingView::returnWorksWhileTheLastScreenFadesIn()
{
    m_platform->look.setReduceMotion(false);
    make(OnboardingStep::customize);
    pressByKeyboard("Keep the Defaults", Qt::Key_Return);
    QCOMPARE(screens(), (QStringList{"customize", "done"}));
    QTest::keyClick(m_window, Qt::Key_Return);
    QCOMPARE(commands(), (QStringList{"applySettings", "setLaunchAtLogin", "applySettings"}));
    QCOMPARE(m_guide->finished, 1);
}

void TestOnboardingView::valuesOfAnotherTypeCountAsAbsent_data()
{
    QTest::addColumn<QVariant>("text");
    QTest::addColumn<QVariant>("flag");
    QTest::newRow("numbers") << QVariant(1.0) << QVariant(1.0);
    QTest::newRow("the other way round") << QVariant(true) << QVariant("true");
    QTest::newRow("lists") << QVariant(QStringList{"soft"}) << QVariant(QVariantList{true});
}

void TestOnboardingView::valuesOfAnotherTypeCountAsAbsent()
{
    QFETCH(QVariant, text);
    QFETCH(QVariant, flag);
    m_store->values = {
        {"buttonTheme", text},        {"buttonSizeOption", text},           {"showMinimizeButton", flag},
        {"showMaximizeButton", flag}, {"agent.accessibilityTrusted", flag}, {"agent.launchAtLogin", flag}};
    const QVariantMap stored = m_store->values;
    make(OnboardingStep::customize, OnboardingFlow::Run::replay);
    QVERIFY(stateOf("Classic look", QAccessible::RadioButton).checked);
    QVERIFY(stateOf("Medium", QAccessible::RadioButton).checked);
    QVERIFY(!stateOf("Minimize button", QAccessible::CheckBox).checked);
    QVERIFY(!stateOf("Full screen button", QAccessible::CheckBox).checked);
    m_flow->back();
    QVERIFY(control("Open System Settings"));
    m_flow->back();
    QVERIFY(shows(QString::fromUtf8("Click the cross, or press Ctrl+W to close it.")));
    QVERIFY(m_flow->launchAtLogin());
    QCOMPARE(m_store->values, stored);
}

void TestOnboardingView::theScreenThatFadesOutIsHiddenFromAssistiveTechnologies()
{
    m_platform->look.setReduceMotion(false);
    make(OnboardingStep::access);
    QVERIFY(!stateOf("Skip").invisible);
    m_flow->next();
    QVERIFY(stateOf("One permission, then you're done", QAccessible::Heading).invisible);
    QVERIFY(stateOf("Skip").invisible);
    QVERIFY(!stateOf("Make it yours", QAccessible::Heading).invisible);
    m_flow->back();
    QVERIFY(!stateOf("Skip").invisible);
}

void TestOnboardingView::stepsCrossFadeInAQuarterOfASecond()
{
    m_platform->look.setReduceMotion(false);
    make(OnboardingStep::access);
    AnimationClock clock;
    m_flow->next();
    QCOMPARE(screens(), (QStringList{"access", "customize"}));
    const QEasingCurve curve = Motion::easeInOut();
    clock.advance(0);
    for (const qreal share : {0.2, 0.5, 0.8}) {
        clock.advance(50 + 25 * (share > 0.2));
        const qreal progress = curve.valueForProgress(share);
        QVERIFY2(std::abs(opacityOf("customize") - progress) < 0.01, qPrintable(QString::number(share)));
        QVERIFY(std::abs(opacityOf("access") - (1 - progress)) < 0.01);
    }
    clock.advance(49);
    QCOMPARE(screens(), (QStringList{"access", "customize"}));
    clock.advance(1);
    QCOMPARE(opacityOf("customize"), 1);
    QTRY_COMPARE(screens(), QStringList{"customize"});
}

void TestOnboardingView::withLessMotionStepsChangeAtOnce()
{
    make(OnboardingStep::access);
    // What the desktop says later does not count.
    m_platform->look.setReduceMotion(false);
    AnimationClock clock;
    m_flow->next();
    QTRY_COMPARE(opacityOf("access"), 0);
    QCOMPARE(opacityOf("customize"), 1);
    QTRY_COMPARE(screens(), QStringList{"customize"});
}

void TestOnboardingView::onlyTheCurrentScreenIsThere()
{
    make(OnboardingStep::welcome);
    for (const OnboardingStep step : OnboardingSteps::allCases) {
        m_flow->go(step);
        QTRY_COMPARE(screens(), QStringList{OnboardingSteps::caseName(step)});
    }
}

CORVANE_TEST(TestOnboardingView, runInGui)
#include "tst_onboardingview.moc"
