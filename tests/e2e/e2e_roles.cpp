#include "BundleCopy.h"
#include "EndToEndTest.h"
#include "RootListener.h"
#include "TestProgram.h"

#include <X11/keysym.h>

using namespace Qt::StringLiterals;

/// What the arguments and the environment make of a start.
class TestRoles : public EndToEndTest {
    Q_OBJECT

private:
    /// A property list with these keys.
    static QByteArray plist(const QByteArray &keys)
    {
        return "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>" + keys + "</dict></plist>";
    }

private slots:
    void aboutOpensOnlyTheAboutWindow();
    void aboutShowsTheVersionWithTheBuild();
    void theAgentsKeyDecidesAboutUpdates_data();
    void theAgentsKeyDecidesAboutUpdates();
    void checkingForUpdatesIsACommand();
    void aWindowIsMovedByWhatTakesNoClick_data();
    void aWindowIsMovedByWhatTakesNoClick();
    void closingTheAboutWindowEndsTheProcess_data();
    void closingTheAboutWindowEndsTheProcess();
    void onboardingGoesBeforeAbout_data();
    void onboardingGoesBeforeAbout();
    void argumentsOfTheToolkitAreIgnored_data();
    void argumentsOfTheToolkitAreIgnored();
};

void TestRoles::aboutOpensOnlyTheAboutWindow()
{
    QVERIFY(open({.arguments = {u"--about"_s}}));
    FIND(website, ATSPI_ROLE_PUSH_BUTTON, "Website ↗\uFE0E");
    QCOMPARE(TopLevel::ofProcess(desktop().x(), program().processId()).size(), 1);
    QCOMPARE(window()->title(), u"About Corvane"_s);
    const QSize size(460, 380);
    QCOMPARE(window()->geometry().size(), size);
    QTRY_COMPARE(window()->minimumSize().value_or(QSize()), size);
    QTRY_COMPARE(window()->maximumSize().value_or(QSize()), size);
    const QSize space = desktop().x().size() - size;
    QCOMPARE(window()->geometry().topLeft(), QPoint(space.width() / 2, space.height() / 2));
    QTRY_VERIFY(window()->hasInputFocus());
    FIND(minimize, ATSPI_ROLE_PUSH_BUTTON, "Minimize");
    FIND(zoom, ATSPI_ROLE_PUSH_BUTTON, "Zoom");
    QVERIFY(!minimize.has(ATSPI_STATE_ENABLED));
    QVERIFY(!zoom.has(ATSPI_STATE_ENABLED));
    QVERIFY(find(ATSPI_ROLE_HEADING, u"Corvane"_s));
    QCOMPARE(store().readAll(), QVariantMap());
}

void TestRoles::aboutShowsTheVersionWithTheBuild()
{
    const BundleCopy bundle(defaultExecutable());
    QVERIFY(bundle.isValid());
    QVERIFY(bundle.write(u"Info.plist"_s,
                         plist("<key>CFBundleShortVersionString</key><string>1.4</string>"
                               "<key>CFBundleVersion</key><string>212</string>")));
    QVERIFY(open({.arguments = {u"--about"_s}, .executable = bundle.executable()}));
    QVERIFY(shows(u"1.4 (212)"_s));
}

void TestRoles::theAgentsKeyDecidesAboutUpdates_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("offered");
    QTest::newRow("44 characters") << 44 << true;
    QTest::newRow("no agent's dictionary") << 0 << false;
}

void TestRoles::theAgentsKeyDecidesAboutUpdates()
{
    QFETCH(int, length);
    QFETCH(bool, offered);
    const BundleCopy bundle(defaultExecutable());
    QVERIFY(bundle.isValid());
    if (length > 0) {
        const QByteArray key = "<key>SUPublicEDKey</key><string>" + QByteArray(length, 'k') + "</string>";
        // The agent's own dictionary, around the application.
        QVERIFY(bundle.write(u"../../../Info.plist"_s, plist(key)));
    }
    QVERIFY(open({.arguments = {u"--about"_s}, .executable = bundle.executable()}));
    QVERIFY(find(ATSPI_ROLE_PUSH_BUTTON, u"Website ↗\uFE0E"_s));
    QCOMPARE(!application().find(ATSPI_ROLE_PUSH_BUTTON, u"Check for Updates"_s).isNull(), offered);
    QVERIFY(shows(u"Made by Vexmoor"_s));
}

void TestRoles::checkingForUpdatesIsACommand()
{
    QVERIFY(open({.arguments = {u"--about"_s}}));
    FIND(updates, ATSPI_ROLE_PUSH_BUTTON, "Check for Updates");
    pointer().click(updates.extents().center());
    QVERIFY(commands().waitForCount(1));
    QVERIFY(updates.doAction(u"Press"_s));
    QVERIFY(commands().waitForCount(2));
    for (const HeardCommand &heard : commands().heard()) {
        QCOMPARE(heard.command, u"checkForUpdates"_s);
        QVERIFY(!heard.value);
        QCOMPARE(heard.extras, QVariantMap());
    }
    QCOMPARE(store().readAll(), QVariantMap());
}

void TestRoles::aWindowIsMovedByWhatTakesNoClick_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<bool>("expected");
    QTest::newRow("About, at its top") << QStringList{u"--about"_s} << QPoint(300, 10) << true;
    QTest::newRow("About, on a text") << QStringList{u"--about"_s} << QPoint(60, 190) << true;
    QTest::newRow("About, between texts and buttons") << QStringList{u"--about"_s} << QPoint(300, 320) << true;
    QTest::newRow("About, on a button") << QStringList{u"--about"_s} << QPoint(80, 350) << false;
    QTest::newRow("onboarding") << QStringList{u"--onboarding"_s} << QPoint(150, 250) << true;
    QTest::newRow("settings, at its top") << QStringList() << QPoint(400, 10) << true;
    QTest::newRow("settings, beside its heading") << QStringList() << QPoint(500, 60) << false;
}

void TestRoles::aWindowIsMovedByWhatTakesNoClick()
{
    QFETCH(QStringList, arguments);
    QFETCH(QPoint, place);
    QFETCH(bool, expected);
    const XConnection &x = desktop().x();
    // What a window manager says of itself.
    const xcb_atom_t supported = x.atom("_NET_SUPPORTED");
    const xcb_atom_t moves = x.atom("_NET_WM_MOVERESIZE");
    xcb_change_property(x, XCB_PROP_MODE_REPLACE, x.root(), supported, XCB_ATOM_ATOM, 32, 1, &moves);
    const auto unsay = qScopeGuard([&] { xcb_delete_property(x, x.root(), supported); });
    x.synchronise();
    RootListener requests(desktop().display());
    QVERIFY(open({.arguments = arguments}));
    QTRY_VERIFY(window()->hasInputFocus());
    const xcb_window_t id = window()->id();
    const QPoint at = window()->geometry().topLeft() + place;
    pointer().move(at);
    pointer().press();
    pointer().release();
    // What the press asks for is asked for before the key ends the program.
    keyboard().press(XK_w, {XK_Control_L});
    QVERIFY(program().waitForExit());
    QCOMPARE(requests.waitForRequest(id, "_NET_WM_MOVERESIZE", {quint32(at.x())}, 0), expected);
}

void TestRoles::closingTheAboutWindowEndsTheProcess_data()
{
    using Close = std::function<void(TestRoles &)>;
    QTest::addColumn<Close>("close");
    QTest::newRow("window manager") << Close([](TestRoles &test) { test.window()->close(); });
    QTest::newRow("close button") << Close([](TestRoles &test) {
        test.pointer().click(test.find(ATSPI_ROLE_PUSH_BUTTON, u"Close"_s).extents().center());
    });
    QTest::newRow("Ctrl+W") << Close([](TestRoles &test) { test.keyboard().press(XK_w, {XK_Control_L}); });
    QTest::newRow("Ctrl+Q") << Close([](TestRoles &test) { test.keyboard().press(XK_q, {XK_Control_L}); });
    QTest::newRow("Escape") << Close([](TestRoles &test) { test.keyboard().press(XK_Escape); });
}

void TestRoles::closingTheAboutWindowEndsTheProcess()
{
    QFETCH(std::function<void(TestRoles &)>, close);
    QVERIFY(open({.arguments = {u"--about"_s}}));
    QTRY_VERIFY(window()->hasInputFocus());
    close(*this);
    QVERIFY(program().waitForExit());
    QCOMPARE(program().exitCode(), 0);
}

void TestRoles::onboardingGoesBeforeAbout_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("about first") << QStringList{u"--about"_s, u"--onboarding"_s};
    QTest::newRow("onboarding first") << QStringList{u"--onboarding"_s, u"--about"_s};
}

void TestRoles::onboardingGoesBeforeAbout()
{
    QFETCH(QStringList, arguments);
    QVERIFY(open({.arguments = arguments}));
    QCOMPARE(TopLevel::ofProcess(desktop().x(), program().processId()).size(), 1);
    QVERIFY(window()->title() != u"About Corvane"_s);
    // The guide does not end with its window; it is left.
    QTRY_VERIFY(window()->hasInputFocus());
    keyboard().press(XK_Escape);
    QVERIFY(program().waitForExit());
}

void TestRoles::argumentsOfTheToolkitAreIgnored_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("platform without a name") << QStringList{u"--platform"_s};
    QTest::newRow("platform that is none") << QStringList{u"-platform"_s, u"nonsense"_s};
    QTest::newRow("platform without a display") << QStringList{u"-platform"_s, u"offscreen"_s};
    QTest::newRow("display") << QStringList{u"-display"_s, u":nonsense"_s};
    QTest::newRow("reverse") << QStringList{u"-reverse"_s};
    QTest::newRow("geometry") << QStringList{u"-qwindowgeometry"_s, u"300x200+0+0"_s};
    QTest::newRow("title") << QStringList{u"-qwindowtitle"_s, u"Other"_s};
    QTest::newRow("icon") << QStringList{u"-qwindowicon"_s, u"/nonexistent.png"_s};
    QTest::newRow("name") << QStringList{u"-name"_s, u"other"_s};
}

void TestRoles::argumentsOfTheToolkitAreIgnored()
{
    QFETCH(QStringList, arguments);
    QVERIFY(open({.arguments = arguments}));
    QVERIFY(shows(u"Settings · 01"_s));
    QCOMPARE(window()->title(), u"Corvane Settings"_s);
    QCOMPARE(window()->windowClass(), u"com.vexmoor.corvane.settings"_s);
    QCOMPARE(window()->geometry().width(), 620);
    FIND(entry, ATSPI_ROLE_LIST_ITEM, "General");
    QCOMPARE(entry.extents().left(), window()->geometry().left() + 8 + 10);
}

CORVANE_TEST(TestRoles, runInCore)
#include "e2e_roles.moc"
