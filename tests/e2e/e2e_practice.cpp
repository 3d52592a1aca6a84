#include "EndToEndTest.h"
#include "TestProgram.h"

#include <X11/keysym.h>

#include <cmath>
#include <linux/input-event-codes.h>

using namespace Qt::StringLiterals;

/// The practice in a window of its own, with a real pointer, a real keyboard and the real store.
class TestPractice : public EndToEndTest {
    Q_OBJECT

private:
    bool openPractice();
    Accessible cell(const QString &name) const { return find(ATSPI_ROLE_PANEL, name); }
    bool isGone(const QString &name) const { return disappears(ATSPI_ROLE_PANEL, name); }
    /// A place in the window that the buttons leave free.
    QPoint inside(const QString &name) const { return cell(name).extents().center() + QPoint(0, 20); }
    /// Moves the pointer onto a window and waits until that counts.
    bool hover(const QString &name);
    /// A place on the button's disc, away from its sign. `diameter` is in points.
    QPoint onButton(const QString &name, int place, double diameter) const;
    /// The key with what stands for Command.
    void press(xcb_keysym_t key) const { keyboard().press(key, {XK_Control_L}); }
    /// The names of the windows that are there.
    QStringList windows() const;

private slots:
    void theHoveredWindowShowsTheButtonsOfTheStore();
    void clickingAButtonActsOnItsWindow();
    void theShortcutsActOnTheHoveredWindow();
    void shortcutsArePlacesOfTheKeyboardInEveryLayout_data();
    void shortcutsArePlacesOfTheKeyboardInEveryLayout();
    void aShortcutOverNoWindowShakesTheChipsAndChangesNothing();
    void aHeldKeyDoesNothingMore();
    void movingStraightOnKeepsTheNewHover();
    void resettingBringsTheWindowsBackAndKeepsWhatWasPractised();
    void assistiveTechnologiesCanPractiseEverything_data();
    void assistiveTechnologiesCanPractiseEverything();
    void theKeyboardAloneIsEnough();
    void otherShortcutsOfTheWindowAreLeftAlone();
};

static const QStringList everyWindow = {u"Browser window, Start page"_s, u"Ideas window, Sketches"_s,
                                        u"Tasks window, This week"_s,    u"Terminal window, zsh"_s,
                                        u"Player window, Library"_s,     u"Browser window, Docs"_s};

bool TestPractice::openPractice()
{
    pointer().move({0, 0});
    return open({.arguments = {u"--show"_s, u"practice"_s}, .executable = QStringLiteral(PROGRAM_CORVANE_GALLERY)})
        && QTest::qWaitFor([this] { return window()->hasInputFocus() && windows() == everyWindow; });
}

QPoint TestPractice::onButton(const QString &name, int place, double diameter) const
{
    const QPointF corner = cell(name).extents().topLeft();
    const double step = std::round(diameter + 3);
    return (corner + QPointF(-3 + place * step, -2 - diameter * 0.35)).toPoint();
}

bool TestPractice::hover(const QString &name)
{
    pointer().move(inside(name));
    // The ring of ink along the lower edge.
    const QRect frame = cell(name).extents();
    return screen().waitForPixel({frame.center().x(), frame.bottom()}, QColor(0x11, 0x12, 0x14));
}

QStringList TestPractice::windows() const
{
    const auto isWindow = [](const Accessible &element) {
        return element.role() == ATSPI_ROLE_PANEL && element.has(ATSPI_STATE_SHOWING);
    };
    QStringList names;
    const QList<Accessible> found = application().findAll(isWindow);
    for (const Accessible &element : found)
        names.append(element.name());
    return names;
}

void TestPractice::theHoveredWindowShowsTheButtonsOfTheStore()
{
    store().write(u"buttonTheme"_s, u"graphite"_s);
    store().write(u"buttonSizeOption"_s, u"large"_s);
    store().write(u"showMinimizeButton"_s, true);
    store().write(u"showMaximizeButton"_s, true);
    QVERIFY(openPractice());
    const QString name = u"Player window, Library"_s;
    QVERIFY(hover(name));
    QVERIFY(screen().waitForPixel(onButton(name, 0, 25.6), QColor("#2C2C2E")));
    QVERIFY(screen().waitForPixel(onButton(name, 1, 25.6), QColor("#636366")));
    QVERIFY(screen().waitForPixel(onButton(name, 2, 25.6), QColor("#98989D")));
    QVERIFY(shows(u"Practised: hover"_s));

    store().write(u"buttonTheme"_s, u"classic"_s);
    store().write(u"buttonSizeOption"_s, u"medium"_s);
    store().write(u"showMinimizeButton"_s, false);
    QVERIFY(screen().waitForPixel(onButton(name, 0, 20), QColor("#EC4640")));
    QVERIFY(screen().waitForPixel(onButton(name, 1, 20), QColor("#4CC15E")));

    pointer().move({0, 0});
    QTRY_VERIFY(screen().pixel(onButton(name, 0, 20)) != QColor("#EC4640"));
}

void TestPractice::clickingAButtonActsOnItsWindow()
{
    store().write(u"showMinimizeButton"_s, true);
    store().write(u"showMaximizeButton"_s, true);
    QVERIFY(openPractice());
    const QRect place = window()->geometry();
    const QString sketches = u"Ideas window, Sketches"_s;
    QVERIFY(hover(sketches));
    QVERIFY(screen().waitForPixel(onButton(sketches, 2, 20), QColor("#4CC15E")));
    pointer().click(onButton(sketches, 2, 20));
    QVERIFY(cell(u"Ideas window, Sketches, full screen"_s));
    pointer().click(onButton(u"Ideas window, Sketches, full screen"_s, 0, 20));
    QVERIFY(isGone(u"Ideas window, Sketches, full screen"_s));

    const QString library = u"Player window, Library"_s;
    QVERIFY(hover(library));
    QVERIFY(screen().waitForPixel(onButton(library, 1, 20), QColor("#F5BF4F")));
    pointer().click(onButton(library, 1, 20));
    QVERIFY(isGone(library));
    const QPoint middle = inside(u"Terminal window, zsh"_s);
    pointer().move(middle);
    pointer().press();
    pointer().move(middle + QPoint(30, 30));
    pointer().release();
    QVERIFY(shows(u"Practised: hover, close, minimize, fullscreen"_s));
    QCOMPARE(windows().size(), 4);
    // The window around can be moved by its background, and neither a button nor a pretend window is that.
    QCOMPARE(window()->geometry(), place);
}

void TestPractice::theShortcutsActOnTheHoveredWindow()
{
    QVERIFY(openPractice());
    QVERIFY(hover(u"Ideas window, Sketches"_s));
    press(XK_m);
    QVERIFY(isGone(u"Ideas window, Sketches"_s));

    QVERIFY(hover(u"Terminal window, zsh"_s));
    // The key beside it lies where Command does elsewhere.
    keyboard().press(XK_f, {XK_Super_L});
    QVERIFY(cell(u"Terminal window, zsh, full screen"_s));
    press(XK_f);
    QVERIFY(cell(u"Terminal window, zsh"_s));

    QVERIFY(hover(u"Browser window, Docs"_s));
    keyboard().press(XK_w, {XK_Control_L, XK_Alt_L});
    QVERIFY(isGone(u"Browser window, Docs"_s));
    QVERIFY(isGone(u"Browser window, Start page"_s));
    QCOMPARE(windows(), QStringList({u"Tasks window, This week"_s, u"Terminal window, zsh"_s, everyWindow.at(4)}));
    QVERIFY(shows(u"Practised: hover, close, minimize, fullscreen"_s));
    QVERIFY(shows(u"Pressed over no window: 0"_s));
}

void TestPractice::shortcutsArePlacesOfTheKeyboardInEveryLayout_data()
{
    QTest::addColumn<QString>("layout");
    // It types the letter of a shortcut, but stands in another place.
    QTest::addColumn<quint32>("otherKey");
    QTest::newRow("french") << u"fr"_s << quint32(KEY_SEMICOLON);
    QTest::newRow("dvorak") << u"us(dvorak)"_s << quint32(KEY_Y);
}

void TestPractice::shortcutsArePlacesOfTheKeyboardInEveryLayout()
{
    QFETCH(const QString, layout);
    QFETCH(const quint32, otherKey);
    const auto restored = qScopeGuard([this] { desktop().setKeyboardLayout(u"us"_s); });
    QVERIFY(desktop().setKeyboardLayout(layout));
    QVERIFY(openPractice());
    QVERIFY(hover(u"Ideas window, Sketches"_s));
    keyboard().pressPosition(otherKey, {XK_Control_L});
    keyboard().pressPosition(KEY_W, {XK_Control_L});
    QVERIFY(isGone(u"Ideas window, Sketches"_s));
    QVERIFY(shows(u"Practised: hover, close"_s));
    QVERIFY(hover(u"Terminal window, zsh"_s));
    keyboard().pressPosition(KEY_M, {XK_Control_L});
    QVERIFY(isGone(u"Terminal window, zsh"_s));
    QVERIFY(shows(u"Practised: hover, close, minimize"_s));
    QVERIFY(shows(u"Pressed over no window: 0"_s));
}

void TestPractice::aShortcutOverNoWindowShakesTheChipsAndChangesNothing()
{
    QVERIFY(openPractice());
    FIND(chips, ATSPI_ROLE_LABEL, "Ctrl+W, Close, Ctrl+M, Minimize, Ctrl+F, Full screen");
    // The end of the row, whose chip is not the one that lights up.
    const QRect row = chips.extents();
    const QRect end(row.right() - 40, row.top(), 50, row.height());
    const QImage resting = screen().picture(end);
    press(XK_w);
    QTRY_VERIFY(screen().picture(end) != resting);
    QTRY_COMPARE(screen().picture(end), resting);
    QVERIFY(shows(u"Pressed over no window: 1"_s));
    QCOMPARE(windows(), everyWindow);
    QVERIFY(program().isRunning());
    QVERIFY(shows(u"Practised: "_s));
}

void TestPractice::aHeldKeyDoesNothingMore()
{
    QVERIFY(openPractice());
    keyboard().hold(KEY_LEFTCTRL);
    // A key that goes down while it is down repeats.
    for (int time = 0; time < 4; ++time)
        keyboard().hold(KEY_W);
    keyboard().letGo(KEY_W);
    keyboard().letGo(KEY_LEFTCTRL);
    // Keys arrive in the order in which they were typed.
    keyboard().press(XK_Tab);
    QVERIFY(shows(u"Practised: hover"_s));
    QVERIFY(shows(u"Pressed over no window: 1"_s));
    QCOMPARE(windows(), everyWindow);
}

void TestPractice::movingStraightOnKeepsTheNewHover()
{
    QVERIFY(openPractice());
    QVERIFY(hover(u"Tasks window, This week"_s));
    pointer().move(inside(u"Browser window, Docs"_s));
    press(XK_m);
    QVERIFY(isGone(u"Browser window, Docs"_s));
    QVERIFY(windows().contains(u"Tasks window, This week"_s));
    // It is gone, so the next shortcut meets nothing.
    press(XK_m);
    QVERIFY(shows(u"Pressed over no window: 1"_s));
    QCOMPARE(windows().size(), 5);
}

void TestPractice::resettingBringsTheWindowsBackAndKeepsWhatWasPractised()
{
    QVERIFY(openPractice());
    QVERIFY(hover(u"Player window, Library"_s));
    keyboard().press(XK_h, {XK_Control_L, XK_Alt_L});
    QTRY_COMPARE(windows(), QStringList(u"Player window, Library"_s));
    press(XK_w);
    QTRY_VERIFY(windows().isEmpty());
    FIND(again, ATSPI_ROLE_PUSH_BUTTON, "Once more");
    pointer().click(again.extents().center());
    QTRY_COMPARE(windows(), everyWindow);
    QVERIFY(shows(u"Practised: hover, close"_s));
}

void TestPractice::assistiveTechnologiesCanPractiseEverything_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : everyWindow)
        QTest::newRow(qPrintable(name)) << name;
}

void TestPractice::assistiveTechnologiesCanPractiseEverything()
{
    QFETCH(QString, name);
    // The optional buttons are not shown.
    QVERIFY(openPractice());
    const Accessible element = cell(name);
    QVERIFY(element);
    QCOMPARE(element.description(), u"Use the actions to close, minimize or full-screen it."_s);
    QVERIFY(element.children().isEmpty());
    for (const QString &action : {u"Close"_s, u"Minimize"_s, u"Full screen"_s})
        QVERIFY2(element.actions().contains(action), qPrintable(element.actions().join(u',')));

    QVERIFY(element.doAction(u"Full screen"_s));
    const QString full = name + u", full screen"_s;
    QVERIFY(cell(full));
    QVERIFY(cell(full).doAction(u"Full screen"_s));
    QVERIFY(cell(name).doAction(u"Minimize"_s));
    QVERIFY(isGone(name));
    QCOMPARE(windows().size(), 5);
    FIND(again, ATSPI_ROLE_PUSH_BUTTON, "Once more");
    QVERIFY(again.doAction(u"Press"_s));
    QVERIFY(cell(name).doAction(u"Close"_s));
    QVERIFY(isGone(name));
    QVERIFY(shows(u"Practised: close, minimize, fullscreen"_s));
}

void TestPractice::theKeyboardAloneIsEnough()
{
    QVERIFY(openPractice());
    for (const xcb_keysym_t key : {XK_w, XK_m, XK_f}) {
        keyboard().press(XK_Tab);
        press(key);
    }
    QVERIFY(shows(u"Practised: hover, close, minimize, fullscreen"_s));
    QVERIFY(shows(u"Pressed over no window: 0"_s));
    QCOMPARE(windows(),
             QStringList({u"Tasks window, This week, full screen"_s, u"Terminal window, zsh"_s,
                          u"Player window, Library"_s, u"Browser window, Docs"_s}));
}

void TestPractice::otherShortcutsOfTheWindowAreLeftAlone()
{
    QVERIFY(openPractice());
    // Space presses the focused button, and Shift makes no shortcut of it.
    FIND(again, ATSPI_ROLE_PUSH_BUTTON, "Once more");
    QVERIFY(cell(everyWindow.constFirst()).doAction(u"Close"_s));
    QVERIFY(isGone(everyWindow.constFirst()));
    QVERIFY(again.grabFocus());
    QVERIFY(becomes(again, ATSPI_STATE_FOCUSED));
    keyboard().press(XK_m, {XK_Control_L, XK_Shift_L});
    keyboard().press(XK_space);
    QTRY_COMPARE(windows(), everyWindow);
    QVERIFY(shows(u"Pressed over no window: 0"_s));
}

CORVANE_TEST(TestPractice, runInCore)
#include "e2e_practice.moc"
