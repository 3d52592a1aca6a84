#include "BundleCopy.h"
#include "BusDaemon.h"
#include "EndToEndTest.h"
#include "RootListener.h"
#include "Service.h"
#include "TestProgram.h"

#include <QDir>
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

    /// Where the switch "Show in the menu bar" is. Without a session bus there is no accessibility bus to ask, so it
    /// is looked up in an ordinary run, which is over afterwards.
    QRect findSwitch();

    /// Flips that switch off and on again by the pointer, and sees it happen.
    bool flips(const QRect &track) const;

    static QHash<QString, QString> onBus(const QByteArray &address)
    {
        return {{QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QString::fromUtf8(address)}};
    }

private slots:
    void opensTheSettingsWindow();
    void speaksTheFirstLanguageOfTheDesktopThatItCan_data();
    void speaksTheFirstLanguageOfTheDesktopThatItCan();
    void isInTheMiddleOfTheScreenAndStaysThere();
    void isAsHighAsItsContentFromTheFirstFrame();
    void cannotBeResized();
    void isAsLargeAsTheScaleAsksFor_data();
    void isAsLargeAsTheScaleAsksFor();
    void takesTheKeyboardFocus();

    void unknownArgumentsOpenTheSettingsWindow_data();
    void unknownArgumentsOpenTheSettingsWindow();

    void closingTheWindowEndsTheProcess_data();
    void closingTheWindowEndsTheProcess();
    void theMinimizeButtonAsksToIconify();
    void theZoomButtonDoesNothing();

    void startsWithoutASessionBus_data();
    void startsWithoutASessionBus();
    void outlivesItsSessionBus_data();
    void outlivesItsSessionBus();
    void startsWithADamagedStore();
    void valuesOfOtherTypesReadAsDefaultsAndStay();

    void saysOnceWhichFontsAreMissing_data();
    void saysOnceWhichFontsAreMissing();
    void startsWithoutAStreamForItsComplaints();
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

QRect TestLaunch::findSwitch()
{
    if (!open())
        return {};
    const Accessible icon = find(ATSPI_ROLE_CHECK_BOX, u"Show in the menu bar"_s);
    settle();
    const QRect track = icon.extents();
    window()->close();
    return program().waitForExit() ? track : QRect();
}

bool TestLaunch::flips(const QRect &track) const
{
    const QPoint leading(track.left() + 6, track.center().y());
    const QColor accent(0x5A, 0x5C, 0xF2);
    const QColor knob(Qt::white);
    if (!screen().waitForPixel(leading, accent))
        return false;
    pointer().click(track.center());
    if (!screen().waitForPixel(leading, knob))
        return false;
    pointer().click(track.center());
    return screen().waitForPixel(leading, accent);
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

void TestLaunch::speaksTheFirstLanguageOfTheDesktopThatItCan_data()
{
    QTest::addColumn<QString>("languages");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("close");
    QTest::addColumn<bool>("closeIsOnTheLeft");
    QTest::newRow("German") << u"cy:de_AT:fr"_s << u"Corvane-Einstellungen"_s << u"Schließen"_s << true;
    QTest::newRow("English first") << u"en_GB:de"_s << u"Corvane Settings"_s << u"Close"_s << true;
    QTest::newRow("Arabic") << u"ar"_s << u"إعدادات Corvane"_s << u"إغلاق"_s << false;
}

void TestLaunch::speaksTheFirstLanguageOfTheDesktopThatItCan()
{
    QFETCH(QString, languages);
    QFETCH(QString, title);
    QFETCH(QString, close);
    QFETCH(bool, closeIsOnTheLeft);
    QVERIFY(open({.environment = {{u"LANGUAGE"_s, languages}}}));
    QCOMPARE(window()->title(), title);
    const Accessible button = find(ATSPI_ROLE_PUSH_BUTTON, close);
    QVERIFY(button);
    QCOMPARE(button.extents().center().x() < window()->geometry().center().x(), closeIsOnTheLeft);
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

void TestLaunch::isAsLargeAsTheScaleAsksFor_data()
{
    QTest::addColumn<QString>("scale");
    QTest::addColumn<int>("width");
    QTest::newRow("1.5") << u"1.5"_s << 930;
    QTest::newRow("2") << u"2"_s << 1240;
}

void TestLaunch::isAsLargeAsTheScaleAsksFor()
{
    QFETCH(QString, scale);
    QFETCH(int, width);
    QVERIFY(open({.environment = {{u"QT_SCALE_FACTOR"_s, scale}}}));
    FIND(last, ATSPI_ROLE_PUSH_BUTTON, "Show Guide");
    settle();
    const QRect frame = window()->geometry();
    QCOMPARE(frame.width(), width);
    QVERIFY(QRect({}, desktop().x().size()).contains(frame));
    QCOMPARE(screen().pixel(frame.topLeft() + QPoint(3, 3)), QColor(0xF7, 0xF6, 0xF2));
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

void TestLaunch::closingTheWindowEndsTheProcess_data()
{
    using Close = std::function<void(TestLaunch &)>;
    QTest::addColumn<Close>("close");
    QTest::newRow("window manager") << Close([](TestLaunch &test) { test.window()->close(); });
    QTest::newRow("close button") << Close([](TestLaunch &test) {
        test.pointer().click(test.find(ATSPI_ROLE_PUSH_BUTTON, u"Close"_s).extents().center());
    });
    QTest::newRow("action of the close button")
        << Close([](TestLaunch &test) { test.find(ATSPI_ROLE_PUSH_BUTTON, u"Close"_s).doAction(u"Press"_s); });
    QTest::newRow("Ctrl+W") << Close([](TestLaunch &test) { test.keyboard().press(XK_w, {XK_Control_L}); });
    QTest::newRow("Ctrl+Q") << Close([](TestLaunch &test) { test.keyboard().press(XK_q, {XK_Control_L}); });
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
    QVERIFY(requests.waitForRequest(window()->id(), "WM_CHANGE_STATE", {iconicState}));
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
    const QRect track = findSwitch();
    QVERIFY(!track.isEmpty());
    QVERIFY(launch({.environment = onBus(address)}));
    QVERIFY(flips(track));
    QCOMPARE(store().readAll(), QVariantMap());
    QCOMPARE(commands().heard().size(), 0);
}

void TestLaunch::outlivesItsSessionBus_data()
{
    QTest::addColumn<QStringList>("services");
    QTest::newRow("with a settings service") << QStringList{u"ca.desrt.dconf"_s};
    QTest::newRow("without a settings service") << QStringList();
}

void TestLaunch::outlivesItsSessionBus()
{
    QFETCH(QStringList, services);
    const QRect track = findSwitch();
    QVERIFY(!track.isEmpty());
    const QTemporaryDir sockets;
    auto bus = std::make_unique<BusDaemon>(sockets.filePath(u"bus"_s), services);
    QVERIFY(!bus->address().isEmpty());
    QVERIFY(launch({.environment = onBus(bus->address())}));
    // Without the service a flip is taken back, and without a bus it lasts as long as the program.
    QVERIFY(services.isEmpty() || flips(track));
    bus.reset();
    QVERIFY(flips(track));
    QVERIFY(flips(track));
}

void TestLaunch::startsWithADamagedStore()
{
    store().write(u"menuBarIconHidden"_s, true);
    // The service keeps what it has read; the next one reads the database anew.
    QVERIFY(Service(u"ca.desrt.dconf"_s).end());
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

// What the program says about the font must not end up in its connection to the display.
void TestLaunch::startsWithoutAStreamForItsComplaints()
{
    const BundleCopy bundle(defaultExecutable());
    QVERIFY(bundle.isValid() && bundle.remove(u"Resources/GeistMono-Medium.ttf"_s));
    QVERIFY(bundle.write(u"MacOS/start"_s, "#!/bin/sh\nexec \"${0%/*}/corvane-settings\" 2>&-\n"));
    const QString start = QFileInfo(bundle.executable()).dir().filePath(u"start"_s);
    QVERIFY(QFile::setPermissions(start, QFile::ReadOwner | QFile::ExeOwner));
    QVERIFY(open({.executable = start}));
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
        return element.name().contains(
            QRegularExpression(u"version\\s*\\d"_s, QRegularExpression::CaseInsensitiveOption));
    };
    QVERIFY(application().findAll(namesAVersion).isEmpty());
}

CORVANE_TEST(TestLaunch, runInCore)
#include "e2e_launch.moc"
