#include "EndToEndTest.h"
#include "Processes.h"
#include "ReferenceAgent.h"
#include "TestProgram.h"
#include "WindowManager.h"

#include <X11/keysym.h>
#include <linux/input-event-codes.h>

using namespace Qt::StringLiterals;

namespace {

const QString completed = u"onboardingCompleted"_s;
constexpr QSize guideSize(560, 388);
constexpr QSize tileSize(330, 76);

}

/// The guide from the first screen to the end of the process, with the reference agent beside it.
class TestOnboarding : public EndToEndTest {
    Q_OBJECT

private:
    bool startAgent(const QStringList &arguments = {});

    bool openGuide(const QHash<QString, QString> &environment = {}, const QStringList &more = {});

    /// The program's window of that size, once it is on the screen.
    std::optional<TopLevel> windowOf(QSize size) const;

    bool press(const QString &button) const;
    Accessible cell(const QString &name) const { return find(ATSPI_ROLE_PANEL, name); }

    /// What was sent, in order: "setLaunchAtLogin true".
    QStringList sent() const;
    bool ends();

    /// Starts a window manager that composites and lets no program take the focus from the one in use.
    bool startManager();
    /// Starts one that never shows a minimised window because its program says so.
    bool startStrictManager();

    std::unique_ptr<ReferenceAgent> m_agent;
    std::unique_ptr<WindowManager> m_manager;

private slots:
    void cleanup();

    void theWholeJourneyByPointerAndKeyboard_data();
    void theWholeJourneyByPointerAndKeyboard();
    void systemSettingsThatWasMinimizedComesBackInFront();
    void theWholeJourneyThroughAccessibilityAlone();
    void aShortWayOutSendsOneCommand_data();
    void aShortWayOutSendsOneCommand();
    void quittingIsNoEndOfTheOnboarding();
    void escapeLeavesFromEveryStep_data();
    void escapeLeavesFromEveryStep();
    void shortcutsOfThePracticeDoNotReachTheWindow();
    void inThePracticeEveryLayoutKeepsTheGuide_data();
    void inThePracticeEveryLayoutKeepsTheGuide();
    void escapeIsTheKeyThatMeansIt();
    void notStartingAtLoginIsSent();
    void aReplayKnowsWhatTheAgentReports();
    void theGuideComesBackWhenSystemSettingsNeverOpens();
    void theGuideNeedsNoAgent();
    void everyStepIsWholeForAssistiveTechnologies_data();
    void everyStepIsWholeForAssistiveTechnologies();
};

bool TestOnboarding::startAgent(const QStringList &arguments)
{
    m_agent = std::make_unique<ReferenceAgent>(environment());
    return m_agent->start(store(), arguments);
}

void TestOnboarding::cleanup()
{
    EndToEndTest::cleanup();
    const std::unique_ptr<ReferenceAgent> agent = std::move(m_agent);
    m_manager.reset();
    if (!agent)
        return;
    QVERIFY(agent->terminate());
    const QStringList complaints = agent->complaints();
    QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join(u'\n')));
}

bool TestOnboarding::openGuide(const QHash<QString, QString> &environment, const QStringList &more)
{
    return open({.arguments = QStringList{u"--onboarding"_s} + more, .environment = environment});
}

std::optional<TopLevel> TestOnboarding::windowOf(QSize size) const
{
    std::optional<TopLevel> found;
    const auto isThere = [&] {
        const QList<TopLevel> windows = TopLevel::ofProcess(desktop().x(), program().processId());
        for (const TopLevel &candidate : windows) {
            if (candidate.isViewable() && candidate.frame().size() == size)
                found = candidate;
        }
        return found.has_value();
    };
    return QTest::qWaitFor(isThere, 20000) ? found : std::nullopt;
}

bool TestOnboarding::press(const QString &button) const
{
    const Accessible element = find(ATSPI_ROLE_PUSH_BUTTON, button);
    return element && element.doAction(u"Press"_s);
}

QStringList TestOnboarding::sent() const
{
    QStringList list;
    for (const HeardCommand &heard : commands().heard())
        list.append(heard.value ? heard.command + u' ' + heard.value->toString() : heard.command);
    return list;
}

bool TestOnboarding::ends()
{
    return program().waitForExit() && program().exitCode() == 0;
}

bool TestOnboarding::startManager()
{
    QProcess settings;
    settings.setProcessEnvironment(desktop().environment());
    settings.start(u"xfconf-query"_s,
                   QString("-c xfwm4 -p /general/prevent_focus_stealing -n -t bool -s true").split(' '));
    m_manager = std::make_unique<WindowManager>(desktop(), u"xfwm4"_s);
    return settings.waitForFinished() && settings.exitCode() == 0
        && m_manager->start({u"--compositor=on"_s, u"--vblank=off"_s});
}

bool TestOnboarding::startStrictManager()
{
    m_manager = std::make_unique<WindowManager>(desktop(), u"mutter"_s);
    return m_manager->start({u"--x11"_s});
}

void TestOnboarding::theWholeJourneyByPointerAndKeyboard_data()
{
    QTest::addColumn<bool>("managed");
    QTest::newRow("on a bare display") << false;
    QTest::newRow("under a compositing window manager") << true;
}

void TestOnboarding::theWholeJourneyByPointerAndKeyboard()
{
    QFETCH(const bool, managed);
    QVERIFY(!managed || startManager());
    QVERIFY(startAgent());
    QVERIFY(openGuide());
    QCOMPARE(window()->title(), u"Welcome to Corvane"_s);
    QCOMPARE(window()->geometry().size(), guideSize);
    keyboard().press(XK_Return);

    QVERIFY(find(ATSPI_ROLE_HEADING, u"Give it a try"_s));
    const Accessible first = cell(u"Browser window, Start page"_s);
    QVERIFY(first);
    pointer().move(first.extents().center());
    // The close button hangs over the window's corner; beside its cross it is red.
    const QPoint button = first.extents().topLeft() - QPoint(3, 9);
    QVERIFY(screen().waitForPixel(button, QColor("#EC4640")));
    pointer().click(button);
    QVERIFY(shows(u"Now hover another window and press Ctrl+M to minimize it."_s));
    pointer().move(cell(u"Ideas window, Sketches"_s).extents().center());
    keyboard().press(XK_m, {XK_Control_L});
    QVERIFY(shows(u"Press Ctrl+F on a window to take it full screen."_s));
    pointer().move(cell(u"Tasks window, This week"_s).extents().center());
    keyboard().press(XK_f, {XK_Control_L});
    QVERIFY(shows(u"That's all there is to it. It works just like this in Mission Control."_s));
    QVERIFY(cell(u"Tasks window, This week, full screen"_s));
    QVERIFY(clickButton(u"Continue"_s));

    QVERIFY(find(ATSPI_ROLE_HEADING, u"One permission, then you're done"_s));
    QVERIFY(clickButton(u"Open System Settings"_s));
    const Accessible list = m_agent->find(ATSPI_ROLE_PANEL, u"No applications"_s);
    QVERIFY(list);
    const auto tile = windowOf(tileSize);
    QVERIFY(tile);
    drag(tile->frame().center(), place(list), *m_agent);
    QVERIFY(store().waitFor(AgentKey::trusted, true));
    const auto back = windowOf(guideSize);
    QVERIFY(back);
    QTRY_VERIFY(back->hasInputFocus());
    QVERIFY(find(ATSPI_ROLE_HEADING, u"Make it yours"_s));

    FIND(classic, ATSPI_ROLE_RADIO_BUTTON, "Classic look");
    QVERIFY(classic.has(ATSPI_STATE_CHECKED));
    const Accessible soft = find(ATSPI_ROLE_RADIO_BUTTON, u"Soft look"_s);
    QVERIFY(soft);
    click(soft);
    QVERIFY(store().waitFor(u"buttonTheme"_s, u"soft"_s));
    QVERIFY(becomes(soft, ATSPI_STATE_CHECKED));
    QVERIFY(becomes(classic, ATSPI_STATE_CHECKED, false));
    const Accessible minimize = find(ATSPI_ROLE_CHECK_BOX, u"Minimize button"_s);
    QVERIFY(minimize);
    click(minimize);
    QVERIFY(store().waitFor(u"showMinimizeButton"_s, true));
    QVERIFY(clickButton(u"Looks Good"_s));

    QVERIFY(clickButton(u"Open Mission Control"_s));
    QVERIFY(ends());
    QVERIFY(commands().waitForCount(5));
    QCOMPARE(sent(),
             (QStringList{u"requestAccessibility"_s, u"applySettings"_s, u"setLaunchAtLogin true"_s, u"applySettings"_s,
                          u"applySettings"_s}));
    QVERIFY(store().waitFor(AgentKey::launchAtLogin, true));
    QCOMPARE(store().readAll(),
             (QVariantMap{{completed, true},
                          {u"buttonTheme"_s, u"soft"_s},
                          {u"showMinimizeButton"_s, true},
                          {AgentKey::trusted, true},
                          {AgentKey::launchAtLogin, true},
                          {u"agent.launchAtLoginNeedsApproval"_s, false}}));
}

void TestOnboarding::systemSettingsThatWasMinimizedComesBackInFront()
{
    QVERIFY(startStrictManager());
    QVERIFY(startAgent());
    QVERIFY(openGuide({{u"CV_STEP"_s, u"2"_s}}));
    QVERIFY(clickButton(u"Open System Settings"_s));
    QVERIFY(windowOf(tileSize));
    const Accessible minimize = m_agent->find(ATSPI_ROLE_PUSH_BUTTON, u"Minimize"_s);
    QVERIFY(minimize);
    click(minimize);
    // The tile gives up, and the guide takes the focus.
    const auto guide = windowOf(guideSize);
    QVERIFY(guide);
    QTRY_VERIFY(guide->hasInputFocus());
    QVERIFY(clickButton(u"Open Again"_s));
    const auto isSettingsInFront = [this] {
        const QList<TopLevel> windows = TopLevel::ofProcess(desktop().x(), m_agent->processId());
        return std::any_of(windows.begin(), windows.end(), std::mem_fn(&TopLevel::hasInputFocus));
    };
    QTRY_VERIFY(isSettingsInFront());
    QVERIFY(windowOf(tileSize));
    // Whoever grants it, the guide comes back with the focus.
    store().write(AgentKey::trusted, true);
    QTRY_VERIFY(windowOf(guideSize)->hasInputFocus());
}

void TestOnboarding::theWholeJourneyThroughAccessibilityAlone()
{
    QVERIFY(startAgent({u"--listed"_s}));
    QVERIFY(openGuide());
    QVERIFY(press(u"Get started"_s));

    QVERIFY(cell(u"Browser window, Start page"_s).doAction(u"Close"_s));
    QVERIFY(shows(u"Now hover another window and press Ctrl+M to minimize it."_s));
    QVERIFY(cell(u"Ideas window, Sketches"_s).doAction(u"Minimize"_s));
    QVERIFY(shows(u"Press Ctrl+F on a window to take it full screen."_s));
    QVERIFY(cell(u"Tasks window, This week"_s).doAction(u"Full screen"_s));
    QVERIFY(cell(u"Tasks window, This week, full screen"_s));
    QVERIFY(press(u"Reset windows"_s));
    QVERIFY(cell(u"Browser window, Start page"_s));
    QVERIFY(shows(u"That's all there is to it. It works just like this in Mission Control."_s));
    QVERIFY(press(u"Continue"_s));

    QVERIFY(shows(u"Step 3 of 5, Permission, current"_s));
    QVERIFY(press(u"Open System Settings"_s));
    const Accessible permission = m_agent->find(ATSPI_ROLE_CHECK_BOX, u"Corvane"_s);
    QVERIFY(permission);
    QVERIFY(permission.doAction(u"Toggle"_s));
    QVERIFY(store().waitFor(AgentKey::trusted, true));

    QVERIFY(find(ATSPI_ROLE_HEADING, u"Make it yours"_s));
    QVERIFY(press(u"Keep the Defaults"_s));
    QVERIFY(press(u"Open Mission Control"_s));
    QVERIFY(ends());
    QVERIFY(commands().waitForCount(5));
    QCOMPARE(sent(),
             (QStringList{u"requestAccessibility"_s, u"applySettings"_s, u"setLaunchAtLogin true"_s, u"applySettings"_s,
                          u"applySettings"_s}));
    QCOMPARE(store().read(completed), true);
    QCOMPARE(store().read(u"buttonTheme"_s), u"classic"_s);
    QCOMPARE(store().read(u"buttonSizeOption"_s), u"medium"_s);
    QCOMPARE(store().read(u"showMinimizeButton"_s), false);
    QCOMPARE(store().read(u"showMaximizeButton"_s), false);
}

void TestOnboarding::aShortWayOutSendsOneCommand_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("Escape") << u"Escape"_s;
    QTest::newRow("close button") << u"Close"_s;
    QTest::newRow("skip") << u"Skip setup"_s;
    QTest::newRow("Ctrl+W") << u"Ctrl+W"_s;
    QTest::newRow("window manager") << u"window manager"_s;
}

void TestOnboarding::aShortWayOutSendsOneCommand()
{
    QFETCH(QString, way);
    QVERIFY(openGuide());
    QVERIFY(find(ATSPI_ROLE_PUSH_BUTTON, u"Get started"_s));
    if (way == u"Escape"_s)
        keyboard().press(XK_Escape);
    else if (way == u"Ctrl+W"_s)
        keyboard().press(XK_w, {XK_Control_L});
    else if (way == u"window manager"_s)
        window()->close();
    else
        QVERIFY(clickButton(way));
    QVERIFY(ends());
    QVERIFY(commands().waitForCount(1));
    QCOMPARE(sent(), QStringList{u"applySettings"_s});
    QCOMPARE(commands().heard().first().stored.value(completed), true);
    QCOMPARE(store().readAll(), (QVariantMap{{completed, true}}));
}

void TestOnboarding::quittingIsNoEndOfTheOnboarding()
{
    QVERIFY(openGuide());
    QVERIFY(find(ATSPI_ROLE_PUSH_BUTTON, u"Get started"_s));
    keyboard().press(XK_q, {XK_Control_L});
    QVERIFY(ends());
    commands().settle(program().processId());
    QCOMPARE(sent(), QStringList());
    QCOMPARE(store().readAll(), QVariantMap());
}

void TestOnboarding::escapeLeavesFromEveryStep_data()
{
    QTest::addColumn<QString>("step");
    for (const char *step : {"1", "2", "3", "4"})
        QTest::newRow(step) << QString::fromLatin1(step);
}

void TestOnboarding::escapeLeavesFromEveryStep()
{
    QFETCH(QString, step);
    QVERIFY(openGuide({{u"CV_STEP"_s, step}}));
    keyboard().press(XK_Escape);
    QVERIFY(ends());
    QVERIFY(commands().waitForCount(1));
    QCOMPARE(sent(), QStringList{u"applySettings"_s});
}

void TestOnboarding::shortcutsOfThePracticeDoNotReachTheWindow()
{
    QVERIFY(openGuide({{u"CV_STEP"_s, u"1"_s}}));
    QVERIFY(cell(u"Browser window, Start page"_s));
    pointer().move(window()->geometry().bottomRight() - QPoint(250, 8));
    keyboard().press(XK_w, {XK_Control_L});
    keyboard().press(XK_q, {XK_Control_L});
    settle();
    QVERIFY(program().isRunning());
    QVERIFY(cell(u"Browser window, Start page"_s));
    QVERIFY(press(u"Continue"_s));
    QVERIFY(find(ATSPI_ROLE_HEADING, u"One permission, then you're done"_s));
    QVERIFY(disappears(ATSPI_ROLE_HEADING, u"Give it a try"_s));
    keyboard().press(XK_w, {XK_Control_L});
    QVERIFY(ends());
}

void TestOnboarding::inThePracticeEveryLayoutKeepsTheGuide_data()
{
    QTest::addColumn<QString>("layout");
    // The places of the keys that type w and q.
    QTest::addColumn<quint32>("typesW");
    QTest::addColumn<quint32>("typesQ");
    QTest::newRow("french") << u"fr"_s << quint32(KEY_Z) << quint32(KEY_A);
    QTest::newRow("dvorak") << u"us(dvorak)"_s << quint32(KEY_COMMA) << quint32(KEY_X);
}

void TestOnboarding::inThePracticeEveryLayoutKeepsTheGuide()
{
    QFETCH(QString, layout);
    QFETCH(quint32, typesW);
    QFETCH(quint32, typesQ);
    const auto restored = qScopeGuard([this] { desktop().setKeyboardLayout(u"us"_s); });
    QVERIFY(desktop().setKeyboardLayout(layout));
    QVERIFY(openGuide({{u"CV_STEP"_s, u"1"_s}}));
    const QString sketches = u"Ideas window, Sketches"_s;
    const Accessible element = cell(sketches);
    QVERIFY(element);
    pointer().move(element.extents().center());
    // By label, as the hint says: nothing happens, and the guide stays.
    keyboard().pressPosition(typesW, {XK_Control_L});
    keyboard().pressPosition(typesQ, {XK_Control_L});
    settle();
    QVERIFY(program().isRunning());
    QVERIFY(cell(sketches));
    // By place.
    keyboard().pressPosition(KEY_W, {XK_Control_L});
    QVERIFY(disappears(ATSPI_ROLE_PANEL, sketches));
    QVERIFY(shows(u"Now hover another window and press Ctrl+M to minimize it."_s));
    // On the next step the label counts again.
    QVERIFY(press(u"Continue"_s));
    QVERIFY(find(ATSPI_ROLE_HEADING, u"One permission, then you're done"_s));
    QVERIFY(disappears(ATSPI_ROLE_HEADING, u"Give it a try"_s));
    keyboard().pressPosition(typesW, {XK_Control_L});
    QVERIFY(ends());
    QCOMPARE(store().read(completed), true);
}

void TestOnboarding::escapeIsTheKeyThatMeansIt()
{
    const auto means = [this](quint32 evdevCode, xcb_keysym_t meaning) {
        xcb_change_keyboard_mapping(desktop().x(), 1, xcb_keycode_t(evdevCode + 8), 1, &meaning);
        desktop().x().synchronise();
    };
    const auto restored = qScopeGuard([this] { desktop().setKeyboardLayout(u"us"_s); });
    means(KEY_F9, XK_Escape);
    means(KEY_ESC, XK_F9);
    QVERIFY(openGuide({{u"CV_STEP"_s, u"1"_s}}));
    QVERIFY(cell(u"Browser window, Start page"_s));
    keyboard().pressPosition(KEY_ESC);
    settle();
    QVERIFY(program().isRunning());
    keyboard().pressPosition(KEY_F9);
    QVERIFY(ends());
    QCOMPARE(store().read(completed), true);
}

void TestOnboarding::notStartingAtLoginIsSent()
{
    QVERIFY(openGuide({{u"CV_STEP"_s, u"4"_s}}));
    QVERIFY(clickButton(u"Don't start at login"_s));
    QVERIFY(ends());
    QVERIFY(commands().waitForCount(3));
    QCOMPARE(sent(), (QStringList{u"setLaunchAtLogin false"_s, u"applySettings"_s, u"applySettings"_s}));
}

void TestOnboarding::aReplayKnowsWhatTheAgentReports()
{
    store().write(AgentKey::launchAtLogin, false);
    QVERIFY(openGuide({{u"CV_STEP"_s, u"4"_s}}, {u"--replay"_s}));
    QVERIFY(shows(u"Swipe up with three fingers or press F3 to open Mission Control, then hover any window."_s));
    QVERIFY(clickButton(u"Not now"_s));
    QVERIFY(ends());
    QVERIFY(commands().waitForCount(3));
    QCOMPARE(sent(), (QStringList{u"setLaunchAtLogin false"_s, u"applySettings"_s, u"applySettings"_s}));
}

void TestOnboarding::theGuideComesBackWhenSystemSettingsNeverOpens()
{
    QVERIFY(openGuide({{u"CV_STEP"_s, u"2"_s}}));
    QVERIFY(press(u"Open System Settings"_s));
    QVERIFY(QTest::qWaitFor([this] { return !window(); }));
    QElapsedTimer away;
    away.start();
    QVERIFY(windowOf(guideSize));
    // It gives System Settings twelve seconds.
    QVERIFY2(away.elapsed() > 10000, qPrintable(QString::number(away.elapsed())));
    QVERIFY(find(ATSPI_ROLE_PUSH_BUTTON, u"Open Again"_s));
    QCOMPARE(sent(), QStringList{u"requestAccessibility"_s});
}

void TestOnboarding::theGuideNeedsNoAgent()
{
    QVERIFY(openGuide({{u"CV_STEP"_s, u"2"_s}}));
    QVERIFY(press(u"Skip"_s));
    QVERIFY(press(u"Looks Good"_s));
    QVERIFY(press(u"Open Mission Control"_s));
    QVERIFY(ends());
    QCOMPARE(store().readAll(), (QVariantMap{{completed, true}}));
}

void TestOnboarding::everyStepIsWholeForAssistiveTechnologies_data()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<QStringList>("headings");
    QTest::addColumn<QStringList>("buttons");
    const QStringList chrome = {u"Close"_s, u"Minimize"_s, u"Zoom"_s};
    QTest::newRow("welcome") << u"0"_s << QStringList() << QStringList{u"Get started"_s, u"Skip setup"_s} + chrome;
    QTest::newRow("tryIt") << u"1"_s << QStringList{u"Give it a try"_s}
                           << QStringList{u"Reset windows"_s, u"Continue"_s} + chrome;
    QTest::newRow("access") << u"2"_s << QStringList{u"One permission, then you're done"_s}
                            << QStringList{u"Open System Settings"_s, u"Skip"_s, u"Back"_s} + chrome;
    QTest::newRow("customize") << u"3"_s << QStringList{u"Make it yours"_s}
                               << QStringList{u"Looks Good"_s, u"Keep the Defaults"_s, u"Back"_s} + chrome;
    QTest::newRow("done") << u"4"_s << QStringList()
                          << QStringList{u"Open Mission Control"_s, u"Don't start at login"_s} + chrome;
}

void TestOnboarding::everyStepIsWholeForAssistiveTechnologies()
{
    QFETCH(QString, step);
    QVERIFY(openGuide({{u"CV_STEP"_s, step}}));
    QVERIFY(find(ATSPI_ROLE_PUSH_BUTTON, u"Zoom"_s));
    settle();
    const QRect frame = window()->geometry();
    QStringList headings;
    QStringList buttons;
    const QList<Accessible> showing = application().findAll([](const Accessible &element) {
        return element.role() != ATSPI_ROLE_APPLICATION && element.has(ATSPI_STATE_SHOWING);
    });
    for (const Accessible &element : showing) {
        QVERIFY2(!element.name().isEmpty() && frame.contains(element.extents()), qPrintable(element.dump()));
        if (element.role() == ATSPI_ROLE_HEADING)
            headings.append(element.name());
        if (element.role() == ATSPI_ROLE_PUSH_BUTTON)
            buttons.append(element.name());
    }
    QTEST(headings, "headings");
    QTEST(buttons, "buttons");
}

CORVANE_TEST(TestOnboarding, runInCore)
#include "e2e_onboarding.moc"
