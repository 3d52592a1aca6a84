#include "EndToEndTest.h"
#include "TestProgram.h"

#include <X11/keysym.h>

using namespace Qt::StringLiterals;

/// The settings window without a pointer.
class TestKeyboard : public EndToEndTest {
    Q_OBJECT

private:
    /// Opens the window and waits until it has the keyboard.
    bool openWithKeyboard();

    /// The names of the elements that the Tab key has to reach.
    QStringList tabStops() const;
    QString focused() const;

    /// Presses the key until an element has the focus that had it before, and returns the names in the order in which
    /// they had it.
    QStringList round(const QList<xcb_keysym_t> &modifiers);
    bool focusByTab(const QString &name);

    QImage around(const Accessible &control) const;

    static QStringList pagesIn(const Accessible &sidebar);

private slots:
    void tabReachesEveryControlAndComesRound();
    void shiftTabGoesTheOtherWayRound();
    void aControlThatGoesAwayGivesTheFocusUp();

    void keysActOnTheFocusedControl_data();
    void keysActOnTheFocusedControl();

    void theFocusedControlShowsARing_data();
    void theFocusedControlShowsARing();
    void aClickShowsNoRing();

    void controlFGoesToTheSearchField();
    void escapeEmptiesTheSearchField();
    void searchingFiltersTheSidebarOnly();
    void arrowsChooseAmongThePages();
};

bool TestKeyboard::openWithKeyboard()
{
    return open() && QTest::qWaitFor([this] { return window()->hasInputFocus(); });
}

QStringList TestKeyboard::tabStops() const
{
    // Of the pages only the chosen one is a stop: the arrow keys go on from there.
    const auto isStop = [](const Accessible &element) {
        const bool isOtherPage = element.role() == ATSPI_ROLE_LIST_ITEM && !element.has(ATSPI_STATE_SELECTED);
        return element.has(ATSPI_STATE_SHOWING) && element.has(ATSPI_STATE_FOCUSABLE) && !isOtherPage;
    };
    QStringList names;
    const QList<Accessible> elements = application().findAll(isStop);
    for (const Accessible &element : elements)
        names.append(element.name());
    return names;
}

QString TestKeyboard::focused() const
{
    const auto hasFocus = [](const Accessible &element) {
        return element.has(ATSPI_STATE_FOCUSED) && element.role() != ATSPI_ROLE_FRAME;
    };
    // What the focused element stands in may say that it has the focus too.
    const QList<Accessible> elements = application().findAll(hasFocus);
    return elements.isEmpty() ? QString() : elements.constLast().name();
}

QStringList TestKeyboard::round(const QList<xcb_keysym_t> &modifiers)
{
    constexpr int tooMany = 50;
    QStringList names;
    while (names.size() < tooMany) {
        const QString before = focused();
        keyboard().press(XK_Tab, modifiers);
        if (!QTest::qWaitFor([&] { return focused() != before && !focused().isEmpty(); }))
            return names;
        if (names.contains(focused()))
            return names;
        names.append(focused());
    }
    return names;
}

bool TestKeyboard::focusByTab(const QString &name)
{
    const qsizetype most = tabStops().size();
    for (qsizetype step = 0; step <= most && focused() != name; ++step) {
        const QString before = focused();
        keyboard().press(XK_Tab);
        if (!QTest::qWaitFor([&] { return focused() != before; }))
            return false;
    }
    return focused() == name;
}

QImage TestKeyboard::around(const Accessible &control) const
{
    constexpr int ringReach = 6;
    return screen().picture(control.extents().adjusted(-ringReach, -ringReach, ringReach, ringReach));
}

QStringList TestKeyboard::pagesIn(const Accessible &sidebar)
{
    QStringList names;
    const QList<Accessible> entries = sidebar.children();
    for (const Accessible &entry : entries)
        names.append(entry.name());
    return names;
}

void TestKeyboard::tabReachesEveryControlAndComesRound()
{
    QVERIFY(openWithKeyboard());
    FIND(last, ATSPI_ROLE_PUSH_BUTTON, "Show Guide");
    QStringList expected = tabStops();
    for (const char *name : {"Search", "General", "Start at login", "Show in the menu bar", "Open Settings",
                             "Show Guide", "Close", "Minimize"})
        QVERIFY2(expected.contains(QLatin1String(name)), name);
    QVERIFY(!expected.contains(u"Zoom"_s));

    QStringList reached = round({});
    expected.sort();
    reached.sort();
    QCOMPARE(reached, expected);
}

void TestKeyboard::shiftTabGoesTheOtherWayRound()
{
    QVERIFY(openWithKeyboard());
    FIND(last, ATSPI_ROLE_PUSH_BUTTON, "Show Guide");
    const QStringList forwards = round({});
    QVERIFY(forwards.size() > 2);
    QVERIFY(focusByTab(forwards.constFirst()));
    QStringList backwards = round({XK_Shift_L});
    std::reverse(backwards.begin(), backwards.end());
    QCOMPARE(backwards, forwards);
}

void TestKeyboard::aControlThatGoesAwayGivesTheFocusUp()
{
    QVERIFY(openWithKeyboard());
    FIND(button, ATSPI_ROLE_PUSH_BUTTON, "Open Settings");
    QVERIFY(focusByTab(u"Open Settings"_s));
    store().write(u"agent.accessibilityTrusted"_s, true);
    QVERIFY(disappears(ATSPI_ROLE_PUSH_BUTTON, u"Open Settings"_s));
    keyboard().press(XK_space);
    settle();
    QCOMPARE(commands().heard().size(), 0);
    QStringList reached = round({});
    QVERIFY(!reached.contains(u"Open Settings"_s));
    QVERIFY(reached.contains(u"Show Guide"_s));
}

void TestKeyboard::keysActOnTheFocusedControl_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<xcb_keysym_t>("key");
    QTest::addColumn<QString>("command");
    QTest::newRow("space on a switch") << u"Start at login"_s << xcb_keysym_t(XK_space) << u"setLaunchAtLogin"_s;
    QTest::newRow("return on a switch") << u"Start at login"_s << xcb_keysym_t(XK_Return) << u"setLaunchAtLogin"_s;
    QTest::newRow("space on a button") << u"Open Settings"_s << xcb_keysym_t(XK_space) << u"requestAccessibility"_s;
    QTest::newRow("return on a button") << u"Open Settings"_s << xcb_keysym_t(XK_Return) << u"requestAccessibility"_s;
    QTest::newRow("enter on a button") << u"Open Settings"_s << xcb_keysym_t(XK_KP_Enter) << u"requestAccessibility"_s;
}

void TestKeyboard::keysActOnTheFocusedControl()
{
    QFETCH(QString, control);
    QFETCH(xcb_keysym_t, key);
    QFETCH(QString, command);
    QVERIFY(openWithKeyboard());
    FIND(last, ATSPI_ROLE_PUSH_BUTTON, "Show Guide");
    QVERIFY(focusByTab(control));
    keyboard().press(key);
    QVERIFY(commands().waitForCount(1));
    settle();
    QCOMPARE(commands().heard().size(), 1);
    QCOMPARE(commands().heard().constFirst().command, command);
}

void TestKeyboard::theFocusedControlShowsARing_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"General", "Start at login", "Open Settings", "Close"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestKeyboard::theFocusedControlShowsARing()
{
    QFETCH(QString, name);
    QVERIFY(openWithKeyboard());
    FIND(last, ATSPI_ROLE_PUSH_BUTTON, "Show Guide");
    const QList<Accessible> found = application().findAll(
        [&](const Accessible &element) { return element.name() == name && element.has(ATSPI_STATE_FOCUSABLE); });
    QVERIFY(!found.isEmpty());
    const Accessible &control = found.constFirst();
    QVERIFY(focused() != name);
    const QImage resting = around(control);

    QVERIFY(focusByTab(name));
    QTRY_VERIFY(around(control) != resting);
    // Two stops further, so that the ring of a neighbour is not in the picture.
    keyboard().press(XK_Tab);
    keyboard().press(XK_Tab);
    QTRY_COMPARE(around(control), resting);
}

void TestKeyboard::aClickShowsNoRing()
{
    QVERIFY(openWithKeyboard());
    FIND(button, ATSPI_ROLE_PUSH_BUTTON, "Open Settings");
    const QImage resting = around(button);
    pointer().click(button.extents().center());
    QVERIFY(commands().waitForCount(1));
    pointer().move({1, 1});
    QTRY_COMPARE(around(button), resting);
}

void TestKeyboard::controlFGoesToTheSearchField()
{
    QVERIFY(openWithKeyboard());
    FIND(search, ATSPI_ROLE_TEXT, "Search");
    QVERIFY(focusByTab(u"Show Guide"_s));
    keyboard().press(XK_f, {XK_Control_L});
    QVERIFY(becomes(search, ATSPI_STATE_FOCUSED));
    keyboard().type(u"Login"_s);
    QTRY_COMPARE(search.text(), u"Login"_s);
}

void TestKeyboard::escapeEmptiesTheSearchField()
{
    QVERIFY(openWithKeyboard());
    FIND(search, ATSPI_ROLE_TEXT, "Search");
    keyboard().press(XK_f, {XK_Control_L});
    QVERIFY(becomes(search, ATSPI_STATE_FOCUSED));
    QVERIFY(disappears(ATSPI_ROLE_PUSH_BUTTON, u"Clear search"_s));
    keyboard().type(u"x"_s);
    FIND(clear, ATSPI_ROLE_PUSH_BUTTON, "Clear search");
    keyboard().press(XK_Escape);
    QTRY_COMPARE(search.text(), QString());
    QVERIFY(disappears(ATSPI_ROLE_PUSH_BUTTON, u"Clear search"_s));
    QVERIFY(program().isRunning());
}

void TestKeyboard::searchingFiltersTheSidebarOnly()
{
    QVERIFY(openWithKeyboard());
    FIND(search, ATSPI_ROLE_TEXT, "Search");
    FIND(list, ATSPI_ROLE_LIST, "Pages");
    const auto pages = [&] { return pagesIn(list); };
    const QStringList all = pages();
    keyboard().press(XK_f, {XK_Control_L});
    QVERIFY(becomes(search, ATSPI_STATE_FOCUSED));

    keyboard().type(u" LOGIN "_s);
    QTRY_COMPARE(pages(), QStringList{u"General"_s});
    keyboard().type(u"zzz"_s);
    QTRY_COMPARE(pages(), QStringList());
    FIND(login, ATSPI_ROLE_CHECK_BOX, "Start at login");

    FIND(clear, ATSPI_ROLE_PUSH_BUTTON, "Clear search");
    pointer().click(clear.extents().center());
    QTRY_COMPARE(pages(), all);
    QCOMPARE(search.text(), QString());
}

void TestKeyboard::arrowsChooseAmongThePages()
{
    QVERIFY(openWithKeyboard());
    FIND(list, ATSPI_ROLE_LIST, "Pages");
    const QStringList pages = pagesIn(list);
    const auto selected = [&] {
        QStringList names;
        const QList<Accessible> entries = list.children();
        for (const Accessible &entry : entries) {
            if (entry.has(ATSPI_STATE_SELECTED))
                names.append(entry.name());
        }
        return names;
    };
    QVERIFY(focusByTab(pages.constFirst()));
    for (qsizetype page = 1; page < pages.size(); ++page) {
        keyboard().press(XK_Down);
        QTRY_COMPARE(selected(), QStringList(pages.at(page)));
        QTRY_COMPARE(focused(), pages.at(page));
    }
    keyboard().press(XK_Down);
    settle();
    QCOMPARE(selected(), QStringList(pages.constLast()));
    for (qsizetype page = pages.size() - 2; page >= 0; --page) {
        keyboard().press(XK_Up);
        QTRY_COMPARE(selected(), QStringList(pages.at(page)));
    }
    keyboard().press(XK_Up);
    settle();
    QCOMPARE(selected(), QStringList(pages.constFirst()));
}

CORVANE_TEST(TestKeyboard, runInCore)
#include "e2e_keyboard.moc"
