#include "FakePlatform.h"
#include "GuideVisibility.h"
#include "OnboardingFlow.h"
#include "Shared.h"
#include "TestProgram.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QSignalSpy>

#include <memory>

class TestOnboardingFlow : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theFlowBeginsWithTheWelcome();
    void theVariableNamesTheFirstStep_data();
    void theVariableNamesTheFirstStep();
    void nextAndBackGoThroughTheStepsAndStopAtTheEnds();
    void startAtLoginIsTakenForGrantedUnlessAReplayKnowsBetter_data();
    void startAtLoginIsTakenForGrantedUnlessAReplayKnowsBetter();
    void reduceMotionIsReadOnce();

    void theHintAsksForWhatIsNotDoneYet();
    void theHintNamesTheCrossOnlyWhileItIsAlone_data();
    void theHintNamesTheCrossOnlyWhileItIsAlone();
    void theHintFollowsTheStore();

    void skippingTheSetupEndsTheFlowAndSendsNothing();
    void skippingTheSetupHidesTheTile();
    void askingForAccessStepsAsideSendsAndShowsTheTileLater();
    void theGuideIsAsideBeforeTheAgentIsAsked();
    void askingAgainAsksTheAgentAgain();
    void withoutAnAgentTheGuideStaysAndItCanBeTriedAgain();
    void whoeverHasMovedOnWhileTheAgentStartsIsNotInterrupted();
    void theTileIsNotShownToWhomeverHasMovedOn();
    void theTileIsNotShownOnceThePermissionIsThere();
    void permissionBringsTheGuideBackAndAdvancesAfterASecond();
    void permissionOnAnotherStepMovesNothing_data();
    void permissionOnAnotherStepMovesNothing();
    void permissionDoesNotMoveWhoeverMovedOnFirst();
    void permissionThatWasThereBeforeMovesNothing();
    void permissionTakenAwayIsShown();
    void whereWindowsAreUnknownTheGuideStaysAndNoTileFloats();
    void whereWindowsAreUnknownPermissionAdvancesAllTheSame();
    void leavingTheAccessStepHidesTheTile_data();
    void leavingTheAccessStepHidesTheTile();

    void looksGoodSendsAndGoesOn();
    void keepTheDefaultsOverwritesBeforeItSends();
    void openMissionControlSendsBothCommandsInOrderOpensAndEnds();
    void bothCommandsGoBeforeMissionControlOpensAndTheFlowEndsLast();
    void notStartingAtLoginSendsFalseAndOpensNothing_data();
    void notStartingAtLoginSendsFalseAndOpensNothing();

private:
    OnboardingFlow &make(OnboardingFlow::Run run = OnboardingFlow::Run::first);
    OnboardingFlow &makeAt(OnboardingStep step);
    FakeUserDefaults &store() { return m_platform->suite(Shared::suiteName); }

    /// The commands that were posted, "setLaunchAtLogin true".
    QStringList commands() const;

    FakePlatform *m_platform = nullptr;
    std::unique_ptr<OnboardingFlow> m_flow;
    int m_finished = 0;
    /// What was announced to the guide's window.
    QList<bool> m_visibilities;
};

void TestOnboardingFlow::init()
{
    m_platform = &FakePlatform::install();
    m_finished = 0;
    m_visibilities.clear();
    GuideVisibility::observe(this, [this](bool visible) { m_visibilities.append(visible); });
}

void TestOnboardingFlow::cleanup()
{
    m_flow.reset();
    disconnect(&NotificationCenter::defaultCenter(), nullptr, this, nullptr);
    qunsetenv("CV_STEP");
}

OnboardingFlow &TestOnboardingFlow::make(OnboardingFlow::Run run)
{
    m_flow = std::make_unique<OnboardingFlow>(run, [this] { ++m_finished; });
    return *m_flow;
}

OnboardingFlow &TestOnboardingFlow::makeAt(OnboardingStep step)
{
    make().go(step);
    return *m_flow;
}

QStringList TestOnboardingFlow::commands() const
{
    QStringList list;
    for (const auto &post : m_platform->notifications.posts) {
        QStringList words;
        for (const QVariant &value : post.userInfo)
            words.append(value.toString());
        list.append(words.join(' '));
    }
    return list;
}

void TestOnboardingFlow::theFlowBeginsWithTheWelcome()
{
    QCOMPARE(make().stepName(), "welcome");
    QCOMPARE(make(OnboardingFlow::Run::replay).stepName(), "welcome");
}

void TestOnboardingFlow::theVariableNamesTheFirstStep_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QString>("step");
    QTest::newRow("3") << QByteArray("3") << "customize";
    QTest::newRow("+2") << QByteArray("+2") << "access";
    QTest::newRow("9") << QByteArray("9") << "welcome";
    QTest::newRow("x") << QByteArray("x") << "welcome";
    QTest::newRow("empty") << QByteArray("") << "welcome";
}

void TestOnboardingFlow::theVariableNamesTheFirstStep()
{
    QFETCH(QByteArray, variable);
    qputenv("CV_STEP", variable);
    QTEST(make().stepName(), "step");
}

void TestOnboardingFlow::nextAndBackGoThroughTheStepsAndStopAtTheEnds()
{
    OnboardingFlow &flow = make();
    const QSignalSpy changes(&flow, &OnboardingFlow::stepChanged);
    flow.back();
    QCOMPARE(flow.stepName(), "welcome");
    QStringList seen;
    for (int press = 0; press < 5; ++press) {
        flow.next();
        seen.append(flow.stepName());
    }
    QCOMPARE(seen, (QStringList{"tryIt", "access", "customize", "done", "done"}));
    QCOMPARE(changes.size(), 4);
    flow.back();
    QCOMPARE(flow.stepName(), "customize");
    QCOMPARE(commands(), QStringList());
    QCOMPARE(m_finished, 0);
}

void TestOnboardingFlow::startAtLoginIsTakenForGrantedUnlessAReplayKnowsBetter_data()
{
    QTest::addColumn<OnboardingFlow::Run>("run");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<bool>("launch");
    QTest::newRow("first run") << OnboardingFlow::Run::first << QVariant() << true;
    QTest::newRow("first run ignores the store") << OnboardingFlow::Run::first << QVariant(false) << true;
    QTest::newRow("replay without a report") << OnboardingFlow::Run::replay << QVariant() << true;
    QTest::newRow("replay, off") << OnboardingFlow::Run::replay << QVariant(false) << false;
    QTest::newRow("replay, on") << OnboardingFlow::Run::replay << QVariant(true) << true;
    QTest::newRow("replay, another type") << OnboardingFlow::Run::replay << QVariant("false") << true;
    QTest::newRow("replay, a number") << OnboardingFlow::Run::replay << QVariant(0.0) << true;
}

void TestOnboardingFlow::startAtLoginIsTakenForGrantedUnlessAReplayKnowsBetter()
{
    QFETCH(OnboardingFlow::Run, run);
    QFETCH(QVariant, stored);
    if (stored.isValid())
        store().setValue("agent.launchAtLogin", stored);
    QTEST(make(run).launchAtLogin(), "launch");
}

void TestOnboardingFlow::reduceMotionIsReadOnce()
{
    QVERIFY(!make().property("reduceMotion").toBool());
    m_platform->look.setReduceMotion(true);
    QVERIFY(!m_flow->property("reduceMotion").toBool());
    QVERIFY(make().property("reduceMotion").toBool());
}

void TestOnboardingFlow::theHintAsksForWhatIsNotDoneYet()
{
    OnboardingFlow &flow = makeAt(OnboardingStep::tryIt);
    const QSignalSpy changes(&flow, &OnboardingFlow::hintChanged);
    QCOMPARE(flow.hint(), QString::fromUtf8("Click the cross, or press ⌘W to close it."));
    flow.demo()->apply(Hotkey::maximize, 3);
    QCOMPARE(flow.hint(), QString::fromUtf8("Click the cross, or press ⌘W to close it."));
    flow.demo()->apply(Hotkey::close, 0);
    QCOMPARE(flow.hint(), QString::fromUtf8("Now hover another window and press ⌘M to minimize it."));
    flow.demo()->apply(Hotkey::minimize, 1);
    QCOMPARE(flow.hint(), "That's all there is to it. It works just like this in Mission Control.");
    QCOMPARE(changes.size(), 2);
    flow.demo()->reset();
    QCOMPARE(flow.hint(), "That's all there is to it. It works just like this in Mission Control.");
    OnboardingFlow &other = makeAt(OnboardingStep::tryIt);
    other.demo()->apply(Hotkey::close, 0);
    other.demo()->apply(Hotkey::minimize, 1);
    QCOMPARE(other.hint(), QString::fromUtf8("Press ⌘F on a window to take it full screen."));
}

void TestOnboardingFlow::theHintNamesTheCrossOnlyWhileItIsAlone_data()
{
    QTest::addColumn<bool>("minimize");
    QTest::addColumn<bool>("maximize");
    QTest::addColumn<QString>("hint");
    const QString cross = QString::fromUtf8("Click the cross, or press ⌘W to close it.");
    const QString button = QString::fromUtf8("Click a button, or press ⌘W to close it.");
    QTest::newRow("neither") << false << false << cross;
    QTest::newRow("minimize") << true << false << button;
    QTest::newRow("full screen") << false << true << button;
    QTest::newRow("both") << true << true << button;
}

void TestOnboardingFlow::theHintNamesTheCrossOnlyWhileItIsAlone()
{
    QFETCH(bool, minimize);
    QFETCH(bool, maximize);
    store().setValue("showMinimizeButton", minimize);
    store().setValue("showMaximizeButton", maximize);
    QTEST(make().hint(), "hint");
}

void TestOnboardingFlow::theHintFollowsTheStore()
{
    OnboardingFlow &flow = make();
    const QSignalSpy changes(&flow, &OnboardingFlow::hintChanged);
    store().setValue("buttonTheme", "soft");
    QCOMPARE(changes.size(), 0);
    store().setValue("showMaximizeButton", true);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(flow.hint(), QString::fromUtf8("Click a button, or press ⌘W to close it."));
    store().values.clear();
    emit store().changed({});
    QCOMPARE(changes.size(), 2);
    QCOMPARE(flow.hint(), QString::fromUtf8("Click the cross, or press ⌘W to close it."));
}

void TestOnboardingFlow::skippingTheSetupEndsTheFlowAndSendsNothing()
{
    make().skipSetup();
    QCOMPARE(m_finished, 1);
    QCOMPARE(commands(), QStringList());
    QVERIFY(store().values.isEmpty());
    QCOMPARE(m_visibilities, QList<bool>());
}

void TestOnboardingFlow::skippingTheSetupHidesTheTile()
{
    OnboardingFlow &flow = makeAt(OnboardingStep::access);
    flow.requestAccess();
    m_platform->queue.advance(0.8);
    QVERIFY(flow.dragTile().panel());
    flow.skipSetup();
    QVERIFY(!flow.dragTile().panel());
}

void TestOnboardingFlow::askingForAccessStepsAsideSendsAndShowsTheTileLater()
{
    OnboardingFlow &flow = makeAt(OnboardingStep::access);
    QVERIFY(!flow.accessRequested());
    flow.requestAccess();
    QVERIFY(flow.accessRequested());
    QCOMPARE(m_visibilities, QList<bool>{false});
    QCOMPARE(commands(), QStringList{"requestAccessibility"});
    m_platform->queue.advance(0.79);
    QVERIFY(!flow.dragTile().panel());
    m_platform->queue.advance(0.01);
    QVERIFY(flow.dragTile().panel());
}

void TestOnboardingFlow::theGuideIsAsideBeforeTheAgentIsAsked()
{
    OnboardingFlow &flow = makeAt(OnboardingStep::access);
    QList<bool> atArrival;
    m_platform->notifications.observe(Shared::Command::name, this,
                                      [&](const QVariantMap &) { atArrival = m_visibilities; });
    flow.requestAccess();
    QCOMPARE(atArrival, QList<bool>{false});
}

void TestOnboardingFlow::askingAgainAsksTheAgentAgain()
{
    OnboardingFlow &flow = makeAt(OnboardingStep::access);
    const QSignalSpy changes(&flow, &OnboardingFlow::accessRequestedChanged);
    flow.requestAccess();
    flow.requestAccess();
    QCOMPARE(changes.size(), 1);
    QCOMPARE(commands(), (QStringList{"requestAccessibility", "requestAccessibility"}));
    QCOMPARE(m_visibilities, (QList<bool>{false, false}));
}

void TestOnboardingFlow::withoutAnAgentTheGuideStaysAndItCanBeTriedAgain()
{
    OnboardingFlow &flow = makeAt(OnboardingStep::access);
    m_platform->programs.outcome = Instances::Start::failed;
    flow.requestAccess();
    QCOMPARE(m_platform->programs.started, QStringList{"com.vexmoor.corvane"});
    QVERIFY(flow.agentMissing());
    QVERIFY(!flow.accessRequested());
    m_platform->queue.advance(20);
    QVERIFY(!flow.dragTile().panel());
    QCOMPARE(m_visibilities, QList<bool>());
    QCOMPARE(commands(), QStringList());

    m_platform->programs.outcome = Instances::Start::running;
    flow.requestAccess();
    QVERIFY(!flow.agentMissing());
    QVERIFY(flow.accessRequested());
    QCOMPARE(m_visibilities, QList<bool>{false});
    QCOMPARE(commands(), QStringList{"requestAccessibility"});
}

void TestOnboardingFlow::whoeverHasMovedOnWhileTheAgentStartsIsNotInterrupted()
{
    OnboardingFlow &flow = makeAt(OnboardingStep::access);
    m_platform->programs.answersLater = true;
    flow.requestAccess();
    flow.requestAccess();
    QCOMPARE(m_platform->programs.started.size(), 1);
    flow.next();
    m_platform->programs.answer();
    QCOMPARE(m_visibilities, QList<bool>());
    QCOMPARE(commands(), QStringList());
    // It can be asked for anew.
    flow.back();
    flow.requestAccess();
    m_platform->programs.answer();
    QCOMPARE(commands(), QStringList{"requestAccessibility"});
}

void TestOnboardingFlow::theTileIsNotShownToWhomeverHasMovedOn()
{
    OnboardingFlow &flow = makeAt(OnboardingStep::access);
    flow.requestAccess();
    flow.next();
    m_platform->queue.advance(1);
    QVERIFY(!flow.dragTile().panel());
}

void TestOnboardingFlow::theTileIsNotShownOnceThePermissionIsThere()
{
    OnboardingFlow &flow = makeAt(OnboardingStep::access);
    flow.requestAccess();
    store().setValue("agent.accessibilityTrusted", true);
    m_platform->queue.advance(0.9);
    QVERIFY(!flow.dragTile().panel());
}

void TestOnboardingFlow::permissionBringsTheGuideBackAndAdvancesAfterASecond()
{
    OnboardingFlow &flow = makeAt(OnboardingStep::access);
    flow.requestAccess();
    m_platform->queue.advance(0.8);
    QVERIFY(flow.dragTile().panel());
    m_visibilities.clear();
    store().setValue("agent.accessibilityTrusted", true);
    QVERIFY(flow.trusted());
    QVERIFY(!flow.dragTile().panel());
    QCOMPARE(m_visibilities, QList<bool>{true});
    m_platform->queue.advance(0.99);
    QCOMPARE(flow.stepName(), "access");
    m_platform->queue.advance(0.01);
    QCOMPARE(flow.stepName(), "customize");
    QCOMPARE(commands(), QStringList{"requestAccessibility"});
}

void TestOnboardingFlow::permissionOnAnotherStepMovesNothing_data()
{
    QTest::addColumn<OnboardingStep>("step");
    QTest::newRow("welcome") << OnboardingStep::welcome;
    QTest::newRow("tryIt") << OnboardingStep::tryIt;
    QTest::newRow("customize") << OnboardingStep::customize;
    QTest::newRow("done") << OnboardingStep::done;
}

void TestOnboardingFlow::permissionOnAnotherStepMovesNothing()
{
    QFETCH(OnboardingStep, step);
    OnboardingFlow &flow = makeAt(step);
    store().setValue("agent.accessibilityTrusted", true);
    QVERIFY(flow.trusted());
    m_platform->queue.advance(2);
    QCOMPARE(flow.step(), step);
    QCOMPARE(m_visibilities, QList<bool>());
}

void TestOnboardingFlow::permissionDoesNotMoveWhoeverMovedOnFirst()
{
    OnboardingFlow &flow = makeAt(OnboardingStep::access);
    store().setValue("agent.accessibilityTrusted", true);
    m_platform->queue.advance(0.5);
    flow.back();
    m_platform->queue.advance(1);
    QCOMPARE(flow.stepName(), "tryIt");
}

void TestOnboardingFlow::permissionThatWasThereBeforeMovesNothing()
{
    store().setValue("agent.accessibilityTrusted", true);
    OnboardingFlow &flow = makeAt(OnboardingStep::access);
    QVERIFY(flow.trusted());
    m_platform->queue.advance(2);
    QCOMPARE(flow.stepName(), "access");
}

void TestOnboardingFlow::permissionTakenAwayIsShown()
{
    store().setValue("agent.accessibilityTrusted", true);
    OnboardingFlow &flow = makeAt(OnboardingStep::access);
    store().values.clear();
    emit store().changed({});
    QVERIFY(!flow.trusted());
    QCOMPARE(m_visibilities, QList<bool>());
}

void TestOnboardingFlow::whereWindowsAreUnknownTheGuideStaysAndNoTileFloats()
{
    QVERIFY(!make().carriesTile());
    m_platform->windows.available = false;
    OnboardingFlow &flow = makeAt(OnboardingStep::access);
    QVERIFY(flow.carriesTile());
    flow.requestAccess();
    QVERIFY(flow.accessRequested());
    QCOMPARE(commands(), QStringList{"requestAccessibility"});
    m_platform->queue.advance(20);
    QVERIFY(!flow.dragTile().panel());
    QCOMPARE(m_visibilities, QList<bool>());
}

void TestOnboardingFlow::whereWindowsAreUnknownPermissionAdvancesAllTheSame()
{
    m_platform->windows.available = false;
    OnboardingFlow &flow = makeAt(OnboardingStep::access);
    flow.requestAccess();
    store().setValue("agent.accessibilityTrusted", true);
    QCOMPARE(m_visibilities, QList<bool>{true});
    m_platform->queue.advance(1);
    QCOMPARE(flow.stepName(), "customize");
}

void TestOnboardingFlow::leavingTheAccessStepHidesTheTile_data()
{
    QTest::addColumn<OnboardingStep>("to");
    QTest::newRow("back") << OnboardingStep::tryIt;
    QTest::newRow("on") << OnboardingStep::customize;
    QTest::newRow("to the end") << OnboardingStep::done;
}

void TestOnboardingFlow::leavingTheAccessStepHidesTheTile()
{
    QFETCH(OnboardingStep, to);
    OnboardingFlow &flow = makeAt(OnboardingStep::access);
    flow.requestAccess();
    m_platform->queue.advance(0.8);
    QVERIFY(flow.dragTile().panel());
    flow.go(to);
    QVERIFY(!flow.dragTile().panel());
}

void TestOnboardingFlow::looksGoodSendsAndGoesOn()
{
    OnboardingFlow &flow = makeAt(OnboardingStep::customize);
    store().setValue("buttonTheme", "soft");
    flow.looksGood();
    QCOMPARE(commands(), QStringList{"applySettings"});
    QCOMPARE(store().values, (QVariantMap{{"buttonTheme", "soft"}}));
    QCOMPARE(flow.stepName(), "done");
}

void TestOnboardingFlow::keepTheDefaultsOverwritesBeforeItSends()
{
    OnboardingFlow &flow = makeAt(OnboardingStep::customize);
    store().values = {{"buttonTheme", "soft"},
                      {"buttonSizeOption", "large"},
                      {"showMinimizeButton", true},
                      {"showMaximizeButton", true}};
    QVariantMap atArrival;
    m_platform->notifications.observe(Shared::Command::name, this,
                                      [&](const QVariantMap &) { atArrival = store().values; });
    flow.keepTheDefaults();
    const QVariantMap defaults = {{"buttonTheme", "classic"},
                                  {"buttonSizeOption", "medium"},
                                  {"showMinimizeButton", false},
                                  {"showMaximizeButton", false}};
    QCOMPARE(atArrival, defaults);
    QCOMPARE(store().values, defaults);
    QCOMPARE(commands(), QStringList{"applySettings"});
    QCOMPARE(flow.stepName(), "done");
}

void TestOnboardingFlow::openMissionControlSendsBothCommandsInOrderOpensAndEnds()
{
    makeAt(OnboardingStep::done).finishSetup(true, true);
    QCOMPARE(commands(), (QStringList{"setLaunchAtLogin true", "applySettings"}));
    QCOMPARE(m_platform->space.missionControlOpened, 1);
    QCOMPARE(m_finished, 1);
}

void TestOnboardingFlow::bothCommandsGoBeforeMissionControlOpensAndTheFlowEndsLast()
{
    QStringList course;
    const auto record = [&](const QString &event) {
        course.append(event + (m_platform->space.missionControlOpened ? ", opened" : ""));
    };
    m_platform->notifications.observe(Shared::Command::name, this,
                                      [&](const QVariantMap &command) { record(command.value("command").toString()); });
    m_flow = std::make_unique<OnboardingFlow>(OnboardingFlow::Run::first, [&] { record("end"); });
    m_flow->finishSetup(true, true);
    QCOMPARE(course, (QStringList{"setLaunchAtLogin", "applySettings", "end, opened"}));
}

void TestOnboardingFlow::notStartingAtLoginSendsFalseAndOpensNothing_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("was on") << QVariant(true);
    QTest::newRow("was off already") << QVariant(false);
}

void TestOnboardingFlow::notStartingAtLoginSendsFalseAndOpensNothing()
{
    QFETCH(QVariant, stored);
    store().setValue("agent.launchAtLogin", stored);
    make(OnboardingFlow::Run::replay).finishSetup(false, false);
    QCOMPARE(commands(), (QStringList{"setLaunchAtLogin false", "applySettings"}));
    QCOMPARE(m_platform->space.missionControlOpened, 0);
    QCOMPARE(m_finished, 1);
}

CORVANE_TEST(TestOnboardingFlow, runInGui)
#include "tst_onboardingflow.moc"
