#include "BundleCopy.h"
#include "BusDaemon.h"
#include "EndToEndTest.h"
#include "RootListener.h"

#include <QFile>
#include <QRegularExpression>

#include <X11/keysym.h>

using namespace Qt::StringLiterals;

/// Start-up, the window and its end, and the starts in which something of the desktop or the bundle is missing.
class TestLaunch : public EndToEndTest {
    Q_OBJECT

private:
    /// Waits for the page with that number and title: the line above its heading, and its entry as the selected one.
    bool showsPage(int number, const QString &title);

    /// Starts the program on a bus that cannot store anything, and flips a switch there and back. Without a session
    /// there is no accessibility bus either, so the switch is looked up in an ordinary run first, and then watched.
    void togglesInMemory(const QByteArray &busAddress);

private slots:
    void opensTheSettingsWindow();
    void isInTheMiddleOfTheScreenAndStaysThere();
    void isAsHighAsItsContentFromTheFirstFrame();
    void cannotBeResized();
    void takesTheKeyboardFocus();

    void unknownArgumentsOpenTheSettingsWindow_data();
    void unknownArgumentsOpenTheSettingsWindow();
    void theTabVariableNamesTheFirstPage_data();
    void theTabVariableNamesTheFirstPage();

    void closingTheWindowEndsTheProcess_data();
    void closingTheWindowEndsTheProcess();
    void theMinimizeButtonAsksToIconify();
    void theZoomButtonDoesNothing();

    void startsWithoutASessionBus_data();
    void startsWithoutASessionBus();
    void startsWithoutASettingsService();
    void startsWithADamagedStore();
    void valuesOfOtherTypesReadAsDefaultsAndStay();

    void saysOnceWhichFontsAreMissing_data();
    void saysOnceWhichFontsAreMissing();
    void startsWithoutItsInfoDictionary_data();
    void startsWithoutItsInfoDictionary();
};

bool TestLaunch::showsPage(int number, const QString &title)
{
    const auto isSelected = [&](const Accessible &element) {
        return element.name() == title && element.has(ATSPI_STATE_SELECTED);
    };
    return shows(u"Settings · %1"_s.arg(number, 2, 10, QChar(u'0'))) && !application().findAll(isSelected).isEmpty();
}

void TestLaunch::togglesInMemory(const QByteArray &busAddress)
{
    QVERIFY(open());
    FIND(icon, ATSPI_ROLE_CHECK_BOX, "Show in the menu bar");
    settle();
    const QRect track = icon.extents();
    const QPoint leading(track.left() + 6, track.center().y());
    window()->close();
    QVERIFY(program().waitForExit());

    QVERIFY(launch({.environment = {{u"DBUS_SESSION_BUS_ADDRESS"_s, QString::fromUtf8(busAddress)}}}));
    const QColor on(0x5A, 0x5C, 0xF2);
    const QColor knob(Qt::white);
    QVERIFY(screen().waitForPixel(leading, on));
    pointer().click(track.center());
    QVERIFY(screen().waitForPixel(leading, knob));
    pointer().click(track.center());
    QVERIFY(screen().waitForPixel(leading, on));
    QCOMPARE(store().readAll(), QVariantMap());
    QCOMPARE(commands().heard().size(), 0);
}

void TestLaunch::opensTheSettingsWindow()
{
    QVERIFY(open());
    QCOMPARE(TopLevel::ofProcess(desktop().x(), program().processId()).size(), 1);
    QCOMPARE(window()->title(), u"Corvane Settings"_s);
    QCOMPARE(window()->windowClass(), u"com.vexmoor.corvane.settings"_s);
    QVERIFY(window()->protocols().contains("WM_DELETE_WINDOW"));
    QCOMPARE(window()->geometry().width(), 620);
    QVERIFY(showsPage(1, u"General"_s));
}

void TestLaunch::isInTheMiddleOfTheScreenAndStaysThere()
{
    QVERIFY(open());
    FIND(last, ATSPI_ROLE_PUSH_BUTTON, "Show Guide");
    settle();
    const QRect frame = window()->geometry();
    const QSize space = desktop().x().size() - frame.size();
    QVERIFY2(qAbs(frame.x() - space.width() / 2) <= 1, qPrintable(QString::number(frame.x())));
    QVERIFY2(qAbs(frame.y() - space.height() / 2) <= 1, qPrintable(QString::number(frame.y())));
}

void TestLaunch::isAsHighAsItsContentFromTheFirstFrame()
{
    QVERIFY(launch());
    const QRect first = window()->geometry();
    FIND(last, ATSPI_ROLE_PUSH_BUTTON, "Show Guide");
    settle();
    QCOMPARE(window()->geometry(), first);
    // The page ends 16 points below its last row, and the row 6 points or more below its button.
    const int below = first.bottom() - last.extents().bottom();
    QVERIFY2(below >= 16 + 6 && below <= 16 + 12, qPrintable(QString::number(below)));
}

void TestLaunch::cannotBeResized()
{
    QVERIFY(open());
    QVERIFY(window()->minimumSize() && window()->maximumSize());
    QTRY_COMPARE(*window()->minimumSize(), window()->geometry().size());
    QTRY_COMPARE(*window()->maximumSize(), window()->geometry().size());
}

void TestLaunch::takesTheKeyboardFocus()
{
    QVERIFY(open());
    QTRY_VERIFY(window()->hasInputFocus());
}

void TestLaunch::unknownArgumentsOpenTheSettingsWindow_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("capital letter") << QStringList{u"--Onboarding"_s};
    QTest::newRow("with a value") << QStringList{u"--onboarding=1"_s};
    QTest::newRow("one dash") << QStringList{u"-onboarding"_s};
    QTest::newRow("part of the flag") << QStringList{u"--onboard"_s};
    QTest::newRow("About in capitals") << QStringList{u"--ABOUT"_s};
    QTest::newRow("replay alone") << QStringList{u"--replay"_s};
    QTest::newRow("a page's name") << QStringList{u"buttons"_s};
}

void TestLaunch::unknownArgumentsOpenTheSettingsWindow()
{
    QFETCH(QStringList, arguments);
    QVERIFY(open({.arguments = arguments}));
    QCOMPARE(window()->title(), u"Corvane Settings"_s);
    QVERIFY(showsPage(1, u"General"_s));
}

void TestLaunch::theTabVariableNamesTheFirstPage_data()
{
    QTest::addColumn<QString>("tab");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("title");
    QTest::newRow("general") << u"general"_s << 1 << u"General"_s;
    QTest::newRow("capital letter") << u"Layouts"_s << 1 << u"General"_s;
    QTest::newRow("a title") << u"General"_s << 1 << u"General"_s;
    QTest::newRow("unknown") << u"nowhere"_s << 1 << u"General"_s;
    QTest::newRow("empty") << u""_s << 1 << u"General"_s;
}

void TestLaunch::theTabVariableNamesTheFirstPage()
{
    QFETCH(QString, tab);
    QFETCH(int, number);
    QFETCH(QString, title);
    QVERIFY(open({.environment = {{u"CV_TAB"_s, tab}}}));
    QVERIFY(showsPage(number, title));
}

void TestLaunch::closingTheWindowEndsTheProcess_data()
{
    using Close = std::function<void(TestLaunch &)>;
    QTest::addColumn<Close>("close");
    QTest::newRow("window manager") << Close([](TestLaunch &test) { test.window()->close(); });
    QTest::newRow("close button") << Close([](TestLaunch &test) {
        test.pointer().click(test.find(ATSPI_ROLE_PUSH_BUTTON, u"Close"_s).extents().center());
    });
    QTest::newRow("action of the close button") << Close([](TestLaunch &test) {
        test.find(ATSPI_ROLE_PUSH_BUTTON, u"Close"_s).doAction(u"Press"_s);
    });
    QTest::newRow("Ctrl+W") << Close(
        [](TestLaunch &test) { test.keyboard().press(XK_w, {XK_Control_L}); });
    QTest::newRow("Ctrl+Q") << Close(
        [](TestLaunch &test) { test.keyboard().press(XK_q, {XK_Control_L}); });
}

void TestLaunch::closingTheWindowEndsTheProcess()
{
    QFETCH(std::function<void(TestLaunch &)>, close);
    QVERIFY(open());
    QTRY_VERIFY(window()->hasInputFocus());
    close(*this);
    QVERIFY(program().waitForExit());
    QCOMPARE(program().exitCode(), 0);
}

void TestLaunch::theMinimizeButtonAsksToIconify()
{
    constexpr quint32 iconicState = 3;
    RootListener requests(desktop().display());
    QVERIFY(open());
    FIND(minimize, ATSPI_ROLE_PUSH_BUTTON, "Minimize");
    pointer().click(minimize.extents().center());
    QVERIFY(requests.waitForRequest(window()->id(), "WM_CHANGE_STATE", iconicState));
}

void TestLaunch::theZoomButtonDoesNothing()
{
    QVERIFY(open());
    FIND(zoom, ATSPI_ROLE_PUSH_BUTTON, "Zoom");
    const QRect frame = window()->geometry();
    pointer().click(zoom.extents().center());
    settle();
    QCOMPARE(window()->geometry(), frame);
}

void TestLaunch::startsWithoutASessionBus_data()
{
    QTest::addColumn<QByteArray>("address");
    QTest::newRow("nobody listens there") << QByteArray("unix:path=/nonexistent/bus");
    QTest::newRow("switched off") << QByteArray("disabled:");
    QTest::newRow("no address at all") << QByteArray("nonsense");
}

void TestLaunch::startsWithoutASessionBus()
{
    QFETCH(QByteArray, address);
    togglesInMemory(address);
}

void TestLaunch::startsWithoutASettingsService()
{
    const BusDaemon bare(QStringList{});
    QVERIFY(!bare.address().isEmpty());
    togglesInMemory(bare.address());
}

void TestLaunch::startsWithADamagedStore()
{
    store().write(u"menuBarIconHidden"_s, true);
    const QString database = desktop().session().configFolder() + u"/dconf/user"_s;
    QFile damaged(database + u".new"_s);
    QVERIFY(damaged.open(QFile::WriteOnly));
    damaged.write(QByteArray("no such format, or half of it. ").repeated(64));
    damaged.close();
    QVERIFY(QFile::remove(database) && damaged.rename(database));

    QVERIFY(open());
    FIND(icon, ATSPI_ROLE_CHECK_BOX, "Show in the menu bar");
    QVERIFY(icon.has(ATSPI_STATE_CHECKED));
    pointer().click(icon.extents().center());
    QVERIFY(becomes(icon, ATSPI_STATE_CHECKED, false));
    QVERIFY(store().waitFor(u"menuBarIconHidden"_s, true));
}

void TestLaunch::valuesOfOtherTypesReadAsDefaultsAndStay()
{
    const QVariantMap stored = {{u"menuBarIconHidden"_s, u"true"_s},
                                {u"agent.launchAtLogin"_s, 1},
                                {u"agent.launchAtLoginNeedsApproval"_s, 1.0},
                                {u"agent.accessibilityTrusted"_s, u""_s}};
    for (auto entry = stored.cbegin(); entry != stored.cend(); ++entry)
        store().write(entry.key(), entry.value());
    QVERIFY(open());
    FIND(login, ATSPI_ROLE_CHECK_BOX, "Start at login");
    FIND(icon, ATSPI_ROLE_CHECK_BOX, "Show in the menu bar");
    FIND(button, ATSPI_ROLE_PUSH_BUTTON, "Open Settings");
    QVERIFY(!login.has(ATSPI_STATE_CHECKED));
    QVERIFY(icon.has(ATSPI_STATE_CHECKED));
    QCOMPARE(store().readAll(), stored);
}

void TestLaunch::saysOnceWhichFontsAreMissing_data()
{
    QTest::addColumn<QStringList>("missing");
    QTest::newRow("heading") << QStringList{u"InstrumentSans-SemiBold.ttf"_s};
    QTest::newRow("labels") << QStringList{u"GeistMono-Medium.ttf"_s};
    QTest::newRow("both") << QStringList{u"InstrumentSans-SemiBold.ttf"_s, u"GeistMono-Medium.ttf"_s};
}

void TestLaunch::saysOnceWhichFontsAreMissing()
{
    QFETCH(QStringList, missing);
    const BundleCopy bundle(defaultExecutable());
    QVERIFY(bundle.isValid());
    for (const QString &font : missing) {
        QVERIFY(bundle.remove(u"Resources/"_s + font));
        expectInLog(u"Embera: font "_s + font + u" is missing from the bundle"_s);
    }
    QVERIFY(open({.executable = bundle.executable()}));
    QVERIFY(showsPage(1, u"General"_s));
}

void TestLaunch::startsWithoutItsInfoDictionary_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("absent") << QByteArray();
    QTest::newRow("damaged") << QByteArray("<?xml version=\"1.0\"?><plist><dict><key>CFBundle");
    QTest::newRow("a version that is no text")
        << QByteArray("<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>CFBundleShortVersionString</key>"
                      "<integer>7</integer></dict></plist>");
}

void TestLaunch::startsWithoutItsInfoDictionary()
{
    QFETCH(QByteArray, content);
    const BundleCopy bundle(defaultExecutable());
    QVERIFY(bundle.isValid());
    QVERIFY(content.isNull() ? bundle.remove(u"Info.plist"_s) : bundle.write(u"Info.plist"_s, content));
    QVERIFY(open({.executable = bundle.executable()}));
    QVERIFY(showsPage(1, u"General"_s));
    const auto namesAVersion = [](const Accessible &element) {
        return element.name().contains(QRegularExpression(u"version\\s*\\d"_s, QRegularExpression::CaseInsensitiveOption));
    };
    QVERIFY(application().findAll(namesAVersion).isEmpty());
}

QTEST_GUILESS_MAIN(TestLaunch)
#include "tst_launch.moc"
