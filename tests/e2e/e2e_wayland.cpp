#include "Compositor.h"
#include "EndToEndTest.h"
#include "ReferenceAgent.h"
#include "SettingsPortal.h"
#include "TestProgram.h"

#include <QDBusVariant>

using namespace Qt::StringLiterals;

/// The program on a Wayland compositor, where no application knows where its own windows stand, or those of others.
class TestWayland : public EndToEndTest {
    Q_OBJECT

protected:
    QProcessEnvironment environment() const override { return m_compositor->inside(desktop().environment()); }
    bool hasWindow() const override { return shown().has_value(); }
    void closeWindow() const override { m_compositor->close(program().processId()); }
    QPoint place(const Accessible &element) const override { return placeIn(program().processId(), element); }

private:
    /// The window of the program, or of another process; none before it is on the screen.
    std::optional<Compositor::Window> shown() const { return shown(program()); }
    std::optional<Compositor::Window> shown(const Program &of) const;

    /// Where the middle of an element of that process is on the screen.
    QPoint placeIn(qint64 processId, const Accessible &element) const;

    std::unique_ptr<Compositor> m_compositor;
    std::unique_ptr<ReferenceAgent> m_agent;

private slots:
    void initTestCase();
    void cleanup();

    void theSettingsWindowIsKnownByItsNameAndCloses();
    void aHigherPageStaysOnTheScreen();
    void aSecondStartComesToTheFrontWithTheLaunchersToken();
    void noGraphicsDriverIsLoaded();
    void theDesktopsTextSizeScalesTheWindow();
    void theWholeJourneyByPointer();
};

void TestWayland::initTestCase()
{
    EndToEndTest::initTestCase();
    m_compositor = std::make_unique<Compositor>(desktop().environment());
    QVERIFY2(m_compositor->isValid(), "no compositor");
}

void TestWayland::cleanup()
{
    EndToEndTest::cleanup();
    if (!m_agent)
        return;
    const std::unique_ptr<ReferenceAgent> agent = std::move(m_agent);
    QVERIFY(agent->terminate());
    const QStringList complaints = agent->complaints();
    QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join(u'\n')));
}

std::optional<Compositor::Window> TestWayland::shown(const Program &of) const
{
    const QList<Compositor::Window> windows = m_compositor->windowsOf(of.processId());
    return windows.isEmpty() ? std::nullopt : std::optional(windows.constFirst());
}

QPoint TestWayland::placeIn(qint64 processId, const Accessible &element) const
{
    const QList<Compositor::Window> windows = m_compositor->windowsOf(processId);
    const QList<Accessible> frames = Accessible::application(processId).children();
    REQUIRE(windows.size() == 1 && frames.size() == 1);
    return windows.constFirst().frame.topLeft() + element.extents().center() - frames.constFirst().extents().topLeft();
}

void TestWayland::theSettingsWindowIsKnownByItsNameAndCloses()
{
    QVERIFY(open());
    QCOMPARE(shown()->appId, u"com.vexmoor.corvane.settings"_s);
    QCOMPARE(shown()->title, u"Corvane Settings"_s);
    QCOMPARE(shown()->frame.size(), QSize(620, 311));
    QTRY_VERIFY(shown()->hasFocus);
    QVERIFY(clickButton(u"Close"_s));
    QVERIFY(program().waitForExit());
    QCOMPARE(program().exitCode(), 0);
}

/// It came up in the middle, and nobody tells it that it is still there.
void TestWayland::aHigherPageStaysOnTheScreen()
{
    QVERIFY(open());
    const QRect first = shown()->frame;
    FIND(page, ATSPI_ROLE_LIST_ITEM, "Layouts");
    QVERIFY(page.doAction(u"Press"_s));
    QTRY_COMPARE(shown()->frame.height(), 531);
    QCOMPARE(shown()->frame.topLeft(), first.topLeft());
    QVERIFY(shown()->frame.bottom() < desktop().x().size().height());
}

void TestWayland::aSecondStartComesToTheFrontWithTheLaunchersToken()
{
    QVERIFY(open());
    Program about(defaultExecutable(), environment());
    QVERIFY(about.start({u"--about"_s}));
    QTRY_VERIFY_WITH_TIMEOUT(shown(about) && shown(about)->hasFocus, 20000);
    QCOMPARE(shown(about)->appId, u"com.vexmoor.corvane.settings"_s);
    QVERIFY(!shown()->hasFocus);
    QProcessEnvironment fromLauncher = environment();
    fromLauncher.insert(u"XDG_ACTIVATION_TOKEN"_s, m_compositor->launcherToken());
    Program second(defaultExecutable(), fromLauncher);
    QVERIFY(second.start());
    QVERIFY(second.waitForExit());
    QCOMPARE(second.exitCode(), 0);
    QTRY_VERIFY(shown()->hasFocus);
    QVERIFY(!shown(about)->hasFocus);
    QVERIFY(about.terminate());
    QCOMPARE(about.complaints(), QStringList());
}

/// The software renderer needs none, and it would take as much memory as all the rest.
void TestWayland::noGraphicsDriverIsLoaded()
{
    QVERIFY(open({.arguments = {u"--about"_s}}));
    QFile maps(u"/proc/%1/maps"_s.arg(program().processId()));
    QVERIFY(maps.open(QFile::ReadOnly));
    const QByteArray loaded = maps.readAll();
    QVERIFY(loaded.contains("libQt6WaylandClient"));
    QVERIFY(!loaded.contains("wayland-graphics-integration-client"));
}

void TestWayland::theDesktopsTextSizeScalesTheWindow()
{
    const SettingsPortal portal(QVariant::fromValue(QDBusVariant(1.5)));
    QVERIFY(open({.arguments = {u"--about"_s}}));
    QTRY_COMPARE(shown()->frame.size(), QSize(690, 570));
}

void TestWayland::theWholeJourneyByPointer()
{
    m_agent = std::make_unique<ReferenceAgent>(environment());
    QVERIFY(m_agent->start(store()));
    QVERIFY(open({.arguments = {u"--onboarding"_s}}));
    QCOMPARE(shown()->title, u"Welcome to Corvane"_s);
    QCOMPARE(shown()->appId, u"com.vexmoor.corvane.settings"_s);
    QCOMPARE(shown()->frame.size(), QSize(560, 388));
    QVERIFY(clickButton(u"Get started"_s));

    FIND(first, ATSPI_ROLE_PANEL, "Browser window, Start page");
    const QPoint middle = place(first);
    pointer().move(middle);
    // The close button hangs over the window's corner; beside its cross it is red.
    const QPoint button = middle - first.extents().center() + first.extents().topLeft() - QPoint(3, 9);
    QVERIFY(screen().waitForPixel(button, QColor("#EC4640")));
    pointer().click(button);
    QVERIFY(shows(u"Now hover another window and press Ctrl+M to minimize it."_s));
    QVERIFY(clickButton(u"Continue"_s));

    QVERIFY(clickButton(u"Open System Settings"_s));
    const Accessible list = m_agent->find(ATSPI_ROLE_PANEL, u"No applications"_s);
    QVERIFY(list);
    const qint64 agent = m_agent->processId();
    QTRY_COMPARE(m_compositor->windowsOf(agent).size(), 1);
    QCOMPARE(m_compositor->windowsOf(agent).constFirst().title, u"System Settings"_s);
    // The guide is still there, and carries the tile.
    QVERIFY(shown());
    FIND(tile, ATSPI_ROLE_LABEL, "Not in the list? Drag me in.");
    m_compositor->move(agent, {20, 20});
    drag(place(tile), placeIn(agent, list), *m_agent);
    QVERIFY(store().waitFor(u"agent.accessibilityTrusted"_s, true));

    QVERIFY(find(ATSPI_ROLE_HEADING, u"Make it yours"_s));
    FIND(soft, ATSPI_ROLE_RADIO_BUTTON, "Soft look");
    click(soft);
    QVERIFY(store().waitFor(u"buttonTheme"_s, u"soft"_s));
    QVERIFY(clickButton(u"Looks Good"_s));
    QVERIFY(clickButton(u"Open Mission Control"_s));
    QVERIFY(program().waitForExit());
    QCOMPARE(program().exitCode(), 0);
    QCOMPARE(store().read(u"onboardingCompleted"_s), true);
    QVERIFY(store().waitFor(u"agent.launchAtLogin"_s, true));
}

CORVANE_TEST(TestWayland, runInCore)
#include "e2e_wayland.moc"
