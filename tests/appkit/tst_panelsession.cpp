#include "EndToEndTest.h"
#include "TestProgram.h"

#include <X11/keysym.h>

#include <algorithm>

using namespace Qt::StringLiterals;

/// A panel on a real display, seen and used from outside.
class TestPanelSession : public EndToEndTest {
    Q_OBJECT

private:
    bool openPanel();
    QList<quint32> numbers(const TopLevel &window, const char *property) const;
    bool hasSaid(const QStringList &lines) const
    {
        return QTest::qWaitFor([&] { return program().standardOutput() == lines; }, 5000);
    }

private slots:
    void everyViewIsOnTheAccessibilityBus();
    void pressingThroughTheBusWorks();
    void tabAndArrowsReachEveryControl();
    void escapeClosesThePanel();
    void aClickOnTheButtonOpensAndClosesIt();
    void aClickOutsideClosesIt();
    void thePanelStandsUnderTheButton();
    void thePanelIsOnEveryDesktopAboveTheOthersAndInNoList();
};

bool TestPanelSession::openPanel()
{
    return open({.executable = QStringLiteral(PROGRAM_PANEL_SAMPLE)})
        && find(ATSPI_ROLE_PUSH_BUTTON, u"Status"_s).doAction(u"Press"_s) && hasSaid({u"opened"_s})
        && !find(ATSPI_ROLE_DIALOG, u"Corvane"_s).isNull();
}

void TestPanelSession::everyViewIsOnTheAccessibilityBus()
{
    QVERIFY(openPanel());
    FIND(header, ATSPI_ROLE_HEADING, "Corvane");
    FIND(label, ATSPI_ROLE_LABEL, "Windows");
    FIND(row, ATSPI_ROLE_LIST_ITEM, "Overview");
    QCOMPARE(row.description(), u"Is open"_s);
    QVERIFY(row.has(ATSPI_STATE_SELECTED));
    FIND(keys, ATSPI_ROLE_PANEL, "Close");
    QCOMPARE(keys.description(), u"Ctrl+W"_s);
    FIND(toggle, ATSPI_ROLE_CHECK_BOX, "Close windows");
    QVERIFY(!toggle.has(ATSPI_STATE_CHECKED));
    QCOMPARE(toggle.extents().size(), QSize(36, 22));
    FIND(button, ATSPI_ROLE_PUSH_BUTTON, "Open");
    FIND(entry, ATSPI_ROLE_MENU_ITEM, "Quit");
    QVERIFY(entry.has(ATSPI_STATE_FOCUSABLE));
}

void TestPanelSession::pressingThroughTheBusWorks()
{
    QVERIFY(openPanel());
    const Accessible toggle = find(ATSPI_ROLE_CHECK_BOX, u"Close windows"_s);
    QVERIFY(toggle.doAction(u"Press"_s));
    QVERIFY(becomes(toggle, ATSPI_STATE_CHECKED));
    QVERIFY(find(ATSPI_ROLE_PUSH_BUTTON, u"Open"_s).doAction(u"Press"_s));
    QVERIFY(find(ATSPI_ROLE_MENU_ITEM, u"Quit"_s).doAction(u"Press"_s));
    QVERIFY(hasSaid({u"opened"_s, u"on"_s, u"Open"_s, u"Quit"_s}));
}

void TestPanelSession::tabAndArrowsReachEveryControl()
{
    QVERIFY(openPanel());
    QVERIFY(becomes(find(ATSPI_ROLE_DIALOG, u"Corvane"_s), ATSPI_STATE_ACTIVE));
    keyboard().press(XK_Tab);
    QVERIFY(becomes(find(ATSPI_ROLE_CHECK_BOX, u"Close windows"_s), ATSPI_STATE_FOCUSED));
    keyboard().press(XK_space);
    QVERIFY(hasSaid({u"opened"_s, u"on"_s}));
    keyboard().press(XK_Tab);
    QVERIFY(becomes(find(ATSPI_ROLE_PUSH_BUTTON, u"Open"_s), ATSPI_STATE_FOCUSED));
    keyboard().press(XK_Down);
    QVERIFY(becomes(find(ATSPI_ROLE_MENU_ITEM, u"Settings"_s), ATSPI_STATE_FOCUSED));
    keyboard().press(XK_Down);
    QVERIFY(becomes(find(ATSPI_ROLE_MENU_ITEM, u"Quit"_s), ATSPI_STATE_FOCUSED));
    keyboard().press(XK_Return);
    QVERIFY(hasSaid({u"opened"_s, u"on"_s, u"Quit"_s}));
}

void TestPanelSession::escapeClosesThePanel()
{
    QVERIFY(openPanel());
    QVERIFY(becomes(find(ATSPI_ROLE_DIALOG, u"Corvane"_s), ATSPI_STATE_ACTIVE));
    keyboard().press(XK_Escape);
    QVERIFY(hasSaid({u"opened"_s, u"closed"_s}));
    QVERIFY(disappears(ATSPI_ROLE_DIALOG, u"Corvane"_s));
}

void TestPanelSession::aClickOnTheButtonOpensAndClosesIt()
{
    QVERIFY(open({.executable = QStringLiteral(PROGRAM_PANEL_SAMPLE)}));
    const QPoint status = find(ATSPI_ROLE_PUSH_BUTTON, u"Status"_s).extents().center();
    pointer().click(status);
    QVERIFY(hasSaid({u"opened"_s}));
    QVERIFY(becomes(find(ATSPI_ROLE_DIALOG, u"Corvane"_s), ATSPI_STATE_ACTIVE));
    pointer().click(status);
    QVERIFY(hasSaid({u"opened"_s, u"closed"_s}));
    // The same click has reached the button by now.
    settle();
    QCOMPARE(program().standardOutput().size(), 2);
}

void TestPanelSession::aClickOutsideClosesIt()
{
    QVERIFY(openPanel());
    const QRect open = find(ATSPI_ROLE_PUSH_BUTTON, u"Open"_s).extents();
    pointer().click(open.center());
    QVERIFY(hasSaid({u"opened"_s, u"Open"_s}));
    pointer().click(window()->geometry().topLeft() + QPoint(5, 5));
    QVERIFY(hasSaid({u"opened"_s, u"Open"_s, u"closed"_s}));
}

void TestPanelSession::thePanelStandsUnderTheButton()
{
    QVERIFY(openPanel());
    const QRect button = find(ATSPI_ROLE_PUSH_BUTTON, u"Status"_s).extents();
    const QRect panel = find(ATSPI_ROLE_DIALOG, u"Corvane"_s).extents();
    QCOMPARE(panel.width(), 300);
    QCOMPARE(panel.top(), button.bottom() + 1 + 4);
    QCOMPARE(panel.center().x(), button.center().x());
}

QList<quint32> TestPanelSession::numbers(const TopLevel &window, const char *property) const
{
    const QByteArray bytes = desktop().x().property(window.id(), desktop().x().atom(property));
    const auto *first = reinterpret_cast<const quint32 *>(bytes.constData());
    return {first, first + bytes.size() / qsizetype(sizeof(quint32))};
}

void TestPanelSession::thePanelIsOnEveryDesktopAboveTheOthersAndInNoList()
{
    QVERIFY(openPanel());
    const QList<TopLevel> windows = TopLevel::ofProcess(desktop().x(), program().processId());
    const auto panel = std::find_if(windows.begin(), windows.end(),
                                    [](const TopLevel &window) { return window.title() == u"Corvane"; });
    QVERIFY(panel != windows.end());
    const QList<quint32> states = numbers(*panel, "_NET_WM_STATE");
    for (const char *state :
         {"_NET_WM_STATE_STICKY", "_NET_WM_STATE_ABOVE", "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"})
        QVERIFY2(states.contains(desktop().x().atom(state)), state);
    QCOMPARE(numbers(*panel, "_NET_WM_DESKTOP"), QList<quint32>{0xFFFFFFFF});
}

CORVANE_TEST(TestPanelSession, runInCore)
#include "tst_panelsession.moc"
