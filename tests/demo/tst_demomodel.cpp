#include "DemoModel.h"
#include "FakePlatform.h"
#include "TestProgram.h"

#include <QSignalSpy>

#include <map>
#include <memory>

using State = DemoModel::State;
using Task = DemoModel::Task;

Q_DECLARE_METATYPE(Hotkey)

class TestDemoModel : public QObject {
    Q_OBJECT

private slots:
    void init();

    void itBeginsWithSixWindowsOfFourApplications();
    void itBeginsWithNothingHoveredDoneLitOrCounted();

    void aShortcutChangesWindowsAndRecordsATask_data();
    void aShortcutChangesWindowsAndRecordsATask();
    void appWideShortcutsChangeWindowsInEveryState_data();
    void appWideShortcutsChangeWindowsInEveryState();
    void maximizeTwiceReturnsToNormalAndStaysDone();
    void aFullScreenWindowCanBecomeAnythingElse();
    void anUnknownIdChangesNothing();
    void closeAllInsertsCloseOnce();
    void tasksOnlyGrow();

    void aHoveredWindowThatGoesIsNotHoveredAnyMore_data();
    void aHoveredWindowThatGoesIsNotHoveredAnyMore();
    void whatGoesUnhoveredLeavesTheHoverAlone();
    void enteringHoversAndIsATask();
    void leavingLateNeverLosesTheNewHover();

    void aFlashLastsFortyFiveHundredths();
    void aNewerFlashKeepsItsFullTime();
    void theSameShortcutAgainStaysLitForItsFullTime();
    void aModelThatIsGoneIsNotCalled();
    void nothingWaitsWhileNothingIsLit();

    void everyShortcutIsReportedBeforeWhatItLeadsTo_data();
    void everyShortcutIsReportedBeforeWhatItLeadsTo();
    void aShortcutInVainIsReportedToo();

    void pressingWithoutAHoverOnlyLightsAndCounts();
    void pressingOverAWindowActsOnIt();
    void pressingOverAWindowThatIsGoneBringsNothingBack_data();
    void pressingOverAWindowThatIsGoneBringsNothingBack();

    void resetBringsTheWindowsBackAndNothingElse();
    void aChangeMovesWithItsOwnSpring();

    void fieldsTellOnlyOfChanges();
    void qmlReadsRawStrings();
    void qmlAppliesByCaseName();

private:
    QList<State> states() const
    {
        QList<State> list;
        for (const DemoModel::Win &win : m_model->wins())
            list.append(win.state);
        return list;
    }

    FakePlatform *m_platform = nullptr;
    std::unique_ptr<DemoModel> m_model;
};

static constexpr auto normal = State::normal, closed = State::closed, minimized = State::minimized,
                      hidden = State::hidden, full = State::full;
static const QList<State> allNormal(6, State::normal);

void TestDemoModel::init()
{
    m_model.reset();
    m_platform = &FakePlatform::install();
    m_model = std::make_unique<DemoModel>();
}

void TestDemoModel::itBeginsWithSixWindowsOfFourApplications()
{
    const QList<DemoModel::Win> expected = {
        {0, "Browser", "Start page", GlyphName::globe, normal}, {1, "Ideas", "Sketches", GlyphName::spark, normal},
        {2, "Tasks", "This week", GlyphName::flag, normal},     {3, "Terminal", "zsh", GlyphName::terminal, normal},
        {4, "Player", "Library", GlyphName::note, normal},      {5, "Browser", "Docs", GlyphName::globe, normal},
    };
    QCOMPARE(m_model->wins(), expected);
}

void TestDemoModel::itBeginsWithNothingHoveredDoneLitOrCounted()
{
    QVERIFY(!m_model->hovered());
    QVERIFY(m_model->done().isEmpty());
    QVERIFY(!m_model->flash());
    QCOMPARE(m_model->nudge(), 0);
}

void TestDemoModel::aShortcutChangesWindowsAndRecordsATask_data()
{
    QTest::addColumn<Hotkey>("hotkey");
    QTest::addColumn<int>("id");
    QTest::addColumn<QList<State>>("states");
    QTest::addColumn<QSet<Task>>("done");
    const auto row = [](const char *name, Hotkey hotkey, int id, const QList<State> &states, const QSet<Task> &done) {
        QTest::newRow(name) << hotkey << id << states << done;
    };
    row("close", Hotkey::close, 0, {closed, normal, normal, normal, normal, normal}, {Task::close});
    row("closeAll", Hotkey::closeAll, 0, {closed, normal, normal, normal, normal, closed}, {Task::close});
    row("closeAll from the other", Hotkey::closeAll, 5, {closed, normal, normal, normal, normal, closed},
        {Task::close});
    row("minimize", Hotkey::minimize, 2, {normal, normal, minimized, normal, normal, normal}, {Task::minimize});
    row("maximize", Hotkey::maximize, 4, {normal, normal, normal, normal, full, normal}, {Task::fullscreen});
    row("hide", Hotkey::hide, 5, {hidden, normal, normal, normal, normal, hidden}, {});
    row("hideOthers", Hotkey::hideOthers, 3, {hidden, hidden, hidden, normal, hidden, hidden}, {});
    row("hideOthers keeps the app", Hotkey::hideOthers, 0, {normal, hidden, hidden, hidden, hidden, normal}, {});
    row("kill", Hotkey::kill, 5, {closed, normal, normal, normal, normal, closed}, {Task::close});
    row("kill of one window", Hotkey::kill, 1, {normal, closed, normal, normal, normal, normal}, {Task::close});
}

void TestDemoModel::aShortcutChangesWindowsAndRecordsATask()
{
    QFETCH(const Hotkey, hotkey);
    QFETCH(const int, id);
    m_model->apply(hotkey, id);
    QTEST(states(), "states");
    QTEST(m_model->done(), "done");
    QCOMPARE(m_model->flash(), std::optional(hotkey));
    QCOMPARE(m_model->nudge(), 0);
}

void TestDemoModel::appWideShortcutsChangeWindowsInEveryState_data()
{
    QTest::addColumn<Hotkey>("before");
    QTest::addColumn<Hotkey>("hotkey");
    QTest::addColumn<State>("after");
    QTest::newRow("a closed one is hidden") << Hotkey::close << Hotkey::hide << hidden;
    QTest::newRow("a minimised one is closed") << Hotkey::minimize << Hotkey::closeAll << closed;
    QTest::newRow("a hidden one is killed") << Hotkey::hide << Hotkey::kill << closed;
    QTest::newRow("a full one is closed") << Hotkey::maximize << Hotkey::closeAll << closed;
}

void TestDemoModel::appWideShortcutsChangeWindowsInEveryState()
{
    QFETCH(const Hotkey, before);
    QFETCH(const Hotkey, hotkey);
    m_model->apply(before, 5);
    m_model->apply(hotkey, 0);
    QTEST(m_model->wins().at(5).state, "after");
    QTEST(m_model->wins().at(0).state, "after");
}

void TestDemoModel::maximizeTwiceReturnsToNormalAndStaysDone()
{
    m_model->apply(Hotkey::maximize, 2);
    m_model->apply(Hotkey::maximize, 2);
    QCOMPARE(states(), allNormal);
    QCOMPARE(m_model->done(), QSet{Task::fullscreen});
}

void TestDemoModel::aFullScreenWindowCanBecomeAnythingElse()
{
    const std::map<Hotkey, State> becomes = {
        {Hotkey::close, closed}, {Hotkey::minimize, minimized}, {Hotkey::hide, hidden}};
    for (const auto &[hotkey, state] : becomes) {
        m_model->apply(Hotkey::maximize, 1);
        m_model->apply(hotkey, 1);
        QCOMPARE(m_model->wins().at(1).state, state);
        m_model->reset();
    }
    m_model->apply(Hotkey::maximize, 1);
    m_model->apply(Hotkey::hideOthers, 0);
    QCOMPARE(m_model->wins().at(1).state, hidden);
}

void TestDemoModel::anUnknownIdChangesNothing()
{
    m_model->enter(2);
    for (const Hotkey hotkey : Hotkeys::allCases) {
        m_model->apply(hotkey, 6);
        m_model->apply(hotkey, -1);
    }
    QCOMPARE(states(), allNormal);
    QCOMPARE(m_model->done(), QSet{Task::hover});
    QCOMPARE(m_model->hovered(), std::optional(2));
    QVERIFY(!m_model->flash());
    QCOMPARE(m_platform->queue.waiting(), 0);
}

void TestDemoModel::closeAllInsertsCloseOnce()
{
    const QSignalSpy done(m_model.get(), &DemoModel::doneChanged);
    m_model->apply(Hotkey::closeAll, 0);
    QCOMPARE(m_model->wins().at(0).state, closed);
    QCOMPARE(m_model->wins().at(5).state, closed);
    QCOMPARE(m_model->done(), QSet{Task::close});
    QCOMPARE(done.count(), 1);
}

void TestDemoModel::tasksOnlyGrow()
{
    m_model->enter(0);
    m_model->apply(Hotkey::maximize, 0);
    m_model->apply(Hotkey::maximize, 0);
    m_model->apply(Hotkey::minimize, 0);
    m_model->leave(0);
    m_model->apply(Hotkey::close, 1);
    m_model->reset();
    QCOMPARE(m_model->done(), QSet({Task::hover, Task::close, Task::minimize, Task::fullscreen}));
}

void TestDemoModel::aHoveredWindowThatGoesIsNotHoveredAnyMore_data()
{
    QTest::addColumn<Hotkey>("hotkey");
    QTest::addColumn<bool>("stays");
    QTest::newRow("close") << Hotkey::close << false;
    QTest::newRow("closeAll") << Hotkey::closeAll << false;
    QTest::newRow("minimize") << Hotkey::minimize << false;
    QTest::newRow("maximize") << Hotkey::maximize << true;
    QTest::newRow("hide") << Hotkey::hide << false;
    QTest::newRow("hideOthers") << Hotkey::hideOthers << true;
    QTest::newRow("kill") << Hotkey::kill << false;
}

void TestDemoModel::aHoveredWindowThatGoesIsNotHoveredAnyMore()
{
    QFETCH(const Hotkey, hotkey);
    QFETCH(const bool, stays);
    m_model->enter(3);
    m_model->apply(hotkey, 3);
    QCOMPARE(m_model->hovered(), stays ? std::optional(3) : std::nullopt);
    QCOMPARE(m_model->flash(), std::optional(hotkey));
}

void TestDemoModel::whatGoesUnhoveredLeavesTheHoverAlone()
{
    m_model->enter(0);
    m_model->apply(Hotkey::close, 1);
    QCOMPARE(m_model->hovered(), std::optional(0));
    // The other window of the hovered one's application takes it along, but is not the target.
    m_model->apply(Hotkey::hide, 5);
    QCOMPARE(m_model->wins().at(0).state, hidden);
    QCOMPARE(m_model->hovered(), std::optional(0));
}

void TestDemoModel::enteringHoversAndIsATask()
{
    m_model->enter(4);
    QCOMPARE(m_model->hovered(), std::optional(4));
    QCOMPARE(m_model->done(), QSet{Task::hover});
    m_model->leave(4);
    QVERIFY(!m_model->hovered());
    QCOMPARE(m_model->done(), QSet{Task::hover});
}

void TestDemoModel::leavingLateNeverLosesTheNewHover()
{
    m_model->enter(2);
    m_model->enter(5);
    m_model->leave(2);
    QCOMPARE(m_model->hovered(), std::optional(5));
}

void TestDemoModel::aFlashLastsFortyFiveHundredths()
{
    m_model->pulse(Hotkey::hide);
    m_platform->queue.advance(0.449);
    QCOMPARE(m_model->flash(), std::optional(Hotkey::hide));
    m_platform->queue.advance(0.001);
    QVERIFY(!m_model->flash());
}

void TestDemoModel::aNewerFlashKeepsItsFullTime()
{
    m_model->pulse(Hotkey::close);
    m_platform->queue.advance(0.3);
    m_model->pulse(Hotkey::minimize);
    QCOMPARE(m_model->flash(), std::optional(Hotkey::minimize));
    m_platform->queue.advance(0.449);
    QCOMPARE(m_model->flash(), std::optional(Hotkey::minimize));
    m_platform->queue.advance(0.001);
    QVERIFY(!m_model->flash());
}

void TestDemoModel::theSameShortcutAgainStaysLitForItsFullTime()
{
    m_model->pulse(Hotkey::close);
    m_platform->queue.advance(0.3);
    m_model->pulse(Hotkey::close);
    m_platform->queue.advance(0.449);
    QCOMPARE(m_model->flash(), std::optional(Hotkey::close));
    m_platform->queue.advance(0.001);
    QVERIFY(!m_model->flash());
}

void TestDemoModel::aModelThatIsGoneIsNotCalled()
{
    m_model->pulse(Hotkey::close);
    m_model.reset();
    m_platform->queue.advance(1);
    QCOMPARE(m_platform->queue.waiting(), 0);
}

void TestDemoModel::nothingWaitsWhileNothingIsLit()
{
    QCOMPARE(m_platform->queue.waiting(), 0);
    m_model->enter(0);
    m_model->reset();
    QCOMPARE(m_platform->queue.waiting(), 0);
    m_model->pulse(Hotkey::close);
    QCOMPARE(m_platform->queue.waiting(), 1);
    m_platform->queue.advance(0.45);
    QCOMPARE(m_platform->queue.waiting(), 0);
}

void TestDemoModel::everyShortcutIsReportedBeforeWhatItLeadsTo_data()
{
    QTest::addColumn<QList<Hotkey>>("hotkeys");
    QTest::addColumn<QString>("report");
    const auto row = [](const QList<Hotkey> &hotkeys, const char *report) {
        QTest::newRow(report) << hotkeys << QString(report);
    };
    row({Hotkey::close}, "Start page closed");
    row({Hotkey::closeAll}, "All windows of Browser closed");
    row({Hotkey::minimize}, "Start page minimized");
    row({Hotkey::maximize}, "Start page full screen");
    row({Hotkey::maximize, Hotkey::maximize}, "Start page no longer full screen");
    row({Hotkey::hide}, "Browser hidden");
    row({Hotkey::hideOthers}, "All but Browser hidden");
    row({Hotkey::kill}, "Browser quit");
}

void TestDemoModel::everyShortcutIsReportedBeforeWhatItLeadsTo()
{
    QFETCH(const QList<Hotkey>, hotkeys);
    QStringList heard;
    connect(m_model.get(), &DemoModel::reported, this, [&](const QString &report) { heard.append(report); });
    connect(m_model.get(), &DemoModel::doneChanged, this, [&] { heard.append("done"); });
    for (const Hotkey hotkey : hotkeys) {
        heard.clear();
        m_model->apply(hotkey, 0);
    }
    QTEST(heard.constFirst(), "report");
    QCOMPARE(heard.count("done") + 1, heard.size());
}

void TestDemoModel::aShortcutInVainIsReportedToo()
{
    const QSignalSpy reports(m_model.get(), &DemoModel::reported);
    m_model->press(Hotkey::close);
    QCOMPARE(reports, QList<QVariantList>{{"Point at a window first."}});
    m_model->apply(Hotkey::close, 6);
    QCOMPARE(reports.size(), 1);
}

void TestDemoModel::pressingWithoutAHoverOnlyLightsAndCounts()
{
    m_model->press(Hotkey::kill);
    QCOMPARE(states(), allNormal);
    QVERIFY(m_model->done().isEmpty());
    QCOMPARE(m_model->flash(), std::optional(Hotkey::kill));
    QCOMPARE(m_model->nudge(), 1);
    m_model->press(Hotkey::kill);
    QCOMPARE(m_model->nudge(), 2);
}

void TestDemoModel::pressingOverAWindowActsOnIt()
{
    m_model->enter(1);
    m_model->press(Hotkey::minimize);
    QCOMPARE(m_model->wins().at(1).state, minimized);
    QCOMPARE(m_model->nudge(), 0);
    // It is gone, so the next one acts on nothing.
    m_model->press(Hotkey::minimize);
    QCOMPARE(m_model->nudge(), 1);
}

void TestDemoModel::pressingOverAWindowThatIsGoneBringsNothingBack_data()
{
    QTest::addColumn<Hotkey>("pressed");
    for (const Hotkey pressed : Hotkeys::allCases)
        QTest::newRow(qPrintable(Hotkeys::caseName(pressed))) << pressed;
}

void TestDemoModel::pressingOverAWindowThatIsGoneBringsNothingBack()
{
    QFETCH(const Hotkey, pressed);
    m_model->enter(5);
    // It goes together with another window, and stays hovered.
    m_model->apply(Hotkey::closeAll, 0);
    QCOMPARE(m_model->hovered(), std::optional(5));
    const QList<DemoModel::Win> wins = m_model->wins();
    const QSet<Task> done = m_model->done();
    m_model->press(pressed);
    QCOMPARE(m_model->wins(), wins);
    QCOMPARE(m_model->done(), done);
    QCOMPARE(m_model->nudge(), 1);
    QCOMPARE(m_model->flash(), std::optional(pressed));
}

void TestDemoModel::resetBringsTheWindowsBackAndNothingElse()
{
    m_model->apply(Hotkey::minimize, 1);
    m_model->apply(Hotkey::maximize, 2);
    m_model->apply(Hotkey::kill, 0);
    m_model->press(Hotkey::close);
    m_model->enter(2);
    m_model->reset();
    QCOMPARE(states(), allNormal);
    QCOMPARE(m_model->hovered(), std::optional(2));
    QCOMPARE(m_model->done(), QSet({Task::hover, Task::close, Task::minimize, Task::fullscreen}));
    QCOMPARE(m_model->flash(), std::optional(Hotkey::close));
    QCOMPARE(m_model->nudge(), 1);
}

void TestDemoModel::aChangeMovesWithItsOwnSpring()
{
    const MotionSpring apply = Motion::spring(0.45, 0.78);
    const MotionSpring reset = Motion::spring(0.5, 0.8);
    QList<MotionSpring> springs;
    connect(m_model.get(), &DemoModel::winsChanged, this, [&] { springs.append(m_model->spring()); });
    m_model->apply(Hotkey::close, 0);
    m_model->reset();
    QCOMPARE(springs.size(), 2);
    QCOMPARE(springs.at(0).easing, apply.easing);
    QCOMPARE(springs.at(0).seconds, apply.seconds);
    QCOMPARE(springs.at(1).easing, reset.easing);
    QCOMPARE(springs.at(1).seconds, reset.seconds);
    // All else moves as the shortcuts do.
    QCOMPARE(m_model->spring().seconds, apply.seconds);
}

void TestDemoModel::fieldsTellOnlyOfChanges()
{
    const QSignalSpy wins(m_model.get(), &DemoModel::winsChanged);
    const QSignalSpy hovered(m_model.get(), &DemoModel::hoveredChanged);
    const QSignalSpy done(m_model.get(), &DemoModel::doneChanged);
    const QSignalSpy flash(m_model.get(), &DemoModel::flashChanged);
    const QSignalSpy nudge(m_model.get(), &DemoModel::nudgeChanged);
    const auto told = [&] {
        return QList<qsizetype>{wins.count(), hovered.count(), done.count(), flash.count(), nudge.count()};
    };
    m_model->reset();
    m_model->leave(3);
    QCOMPARE(told(), QList<qsizetype>({0, 0, 0, 0, 0}));
    m_model->enter(1);
    m_model->enter(1);
    QCOMPARE(told(), QList<qsizetype>({0, 1, 1, 0, 0}));
    m_model->apply(Hotkey::close, 1);
    QCOMPARE(told(), QList<qsizetype>({1, 2, 2, 1, 0}));
    m_model->apply(Hotkey::close, 1);
    QCOMPARE(told(), QList<qsizetype>({1, 2, 2, 1, 0}));
    m_model->press(Hotkey::close);
    QCOMPARE(told(), QList<qsizetype>({1, 2, 2, 1, 1}));
    m_platform->queue.advance(1);
    QCOMPARE(told(), QList<qsizetype>({1, 2, 2, 2, 1}));
    m_model->reset();
    m_model->reset();
    QCOMPARE(told(), QList<qsizetype>({2, 2, 2, 2, 1}));
}

void TestDemoModel::qmlReadsRawStrings()
{
    QCOMPARE(m_model->property("hovered").toInt(), -1);
    QCOMPARE(m_model->property("flash").toString(), "");
    m_model->enter(5);
    m_model->apply(Hotkey::maximize, 5);
    m_model->apply(Hotkey::closeAll, 1);
    QCOMPARE(m_model->property("hovered").toInt(), 5);
    QCOMPARE(m_model->property("flash").toString(), "closeAll");
    QCOMPARE(m_model->property("done").toStringList(), QStringList({"hover", "close", "fullscreen"}));
    const QVariantList wins = m_model->property("wins").toList();
    QCOMPARE(wins.size(), 6);
    const auto docs = wins.at(5).value<DemoWin>();
    QCOMPARE(docs.glyphName(), "globe");
    QCOMPARE(docs.stateName(), "full");
    QVERIFY(docs.isVisible());
    QVERIFY(!wins.at(1).value<DemoWin>().isVisible());
}

void TestDemoModel::qmlAppliesByCaseName()
{
    m_model->apply("minimize", 0);
    QCOMPARE(m_model->wins().at(0).state, minimized);
    m_model->apply("Minimize", 1);
    m_model->apply("", 1);
    QCOMPARE(m_model->wins().at(1).state, normal);
}

CORVANE_TEST(TestDemoModel, runInCore)
#include "tst_demomodel.moc"
