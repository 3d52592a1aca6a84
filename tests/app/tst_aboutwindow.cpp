#include "EBEnvironment.h"
#include "EBKit.h"
#include "FakePlatform.h"
#include "Fonts.h"
#include "LaunchFlags.h"
#include "NamedItems.h"
#include "SettingsAppDelegate.h"
#include "TestProgram.h"
#include "Views.h"
#include "Wrapping.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QScreen>

/// The application started with "--about". Flags are read once a process, so this test is one of its own.
class TestAboutWindow : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void itIsTheOnlyWindow();
    void itIsAsLargeAsItsContentAndInTheMiddle();
    void itCannotBeMiniaturizedOrZoomed();
    void anyPlaceOfItIsPaper();
    void itsOwnButtonHasTheRingOfTheProduct();
    void itShowsTheVersionWithTheBuild_data();
    void itShowsTheVersionWithTheBuild();
    void itSaysWhatTheProductIs();
    void updatesAreOfferedWhereTheAgentHasAKey_data();
    void updatesAreOfferedWhereTheAgentHasAKey();
    void outsideOfAnAgentThereAreNoUpdates();
    void theUpdateButtonSendsTheCommand();
    void theWebsiteButtonOpensTheWebsite();
    void theKeyboardReachesItsButtons();
    void escapeClosesIt_data();
    void escapeClosesIt();
    void closingItEndsTheProcess();
    void itGoesWithTheDelegate();
    void fromRightToLeftItIsMirrored();

private:
    /// Puts the agent around the application, with that key in its dictionary.
    void putIntoAgent(const QVariant &key);
    void open();
    static QQuickWindow *window();
    static QQuickItem *screen() { return Views::visible(window()->contentItem(), "EBAboutScreen").constFirst(); }
    static FoundItem button(const QString &name)
    {
        return NamedItems::first(window()->contentItem(), name, QAccessible::Button);
    }
    static bool shows(const QString &text)
    {
        return NamedItems::first(window()->contentItem(), text, QAccessible::StaticText);
    }
    static void click(const QString &name);

    FakePlatform *m_platform = nullptr;
    std::unique_ptr<SettingsAppDelegate> m_delegate;
};

namespace {

const QString updates = QStringLiteral("Check for Updates");
const QString website = QStringLiteral("Website ↗\uFE0E");

}

void TestAboutWindow::initTestCase()
{
    QAccessible::setActive(true);
}

void TestAboutWindow::init()
{
    m_platform = &FakePlatform::install();
    m_platform->main.url = QUrl::fromLocalFile("/apps/Corvane Settings.app");
    addFaces(m_platform->main);
}

void TestAboutWindow::cleanup()
{
    m_delegate.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void TestAboutWindow::putIntoAgent(const QVariant &key)
{
    m_platform->main.url = QUrl::fromLocalFile("/apps/Corvane.app/Contents/Helpers/Corvane Settings.app");
    FakeBundle agent;
    agent.url = QUrl::fromLocalFile("/apps/Corvane.app");
    agent.info = QVariantMap{{"SUPublicEDKey", key}};
    m_platform->bundles = {agent};
}

void TestAboutWindow::open()
{
    m_delegate = std::make_unique<SettingsAppDelegate>();
    m_delegate->applicationDidFinishLaunching();
    REQUIRE(window());
    REQUIRE(QTest::qWaitForWindowActive(window()));
    window()->grabWindow();
}

QQuickWindow *TestAboutWindow::window()
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    return windows.size() == 1 ? qobject_cast<QQuickWindow *>(windows.constFirst()) : nullptr;
}

void TestAboutWindow::click(const QString &name)
{
    const QQuickItem *pressed = button(name);
    QTest::mouseClick(window(), Qt::LeftButton, {},
                      pressed->mapRectToScene(pressed->boundingRect()).center().toPoint());
}

void TestAboutWindow::itIsTheOnlyWindow()
{
    open();
    QCOMPARE(window()->title(), "About Corvane");
    QVERIFY(window()->isVisible());
    QCOMPARE(EBEnvironment::of(screen())->ebApp(), EBApp::corvane);
}

void TestAboutWindow::itIsAsLargeAsItsContentAndInTheMiddle()
{
    open();
    const QSize size(460, 380);
    QCOMPARE(window()->size(), size);
    QCOMPARE(window()->minimumSize(), size);
    QCOMPARE(window()->maximumSize(), size);
    QCOMPARE(screen()->size(), QSizeF(size));
    const QPoint off = window()->geometry().center() - window()->screen()->availableGeometry().center();
    QVERIFY(qAbs(off.x()) <= 1 && qAbs(off.y()) <= 1);
}

void TestAboutWindow::itCannotBeMiniaturizedOrZoomed()
{
    open();
    for (const QString &name : {QStringLiteral("Minimize"), QStringLiteral("Zoom")}) {
        QVERIFY(button(name));
        QVERIFY(!button(name)->isEnabled());
    }
    QVERIFY(button("Close")->isEnabled());
}

void TestAboutWindow::anyPlaceOfItIsPaper()
{
    open();
    for (const AppearanceName name : {AppearanceName::Aqua, AppearanceName::DarkAqua}) {
        m_platform->look.setName(name);
        QCOMPARE(window()->color(), EBKit::paper().current());
        const QImage picture = window()->grabWindow();
        QCOMPARE(picture.pixelColor(2, 2).rgb(), EBKit::paper().current().rgb());
        QCOMPARE(picture.pixelColor(457, 377).rgb(), EBKit::paper().current().rgb());
    }
}

void TestAboutWindow::itsOwnButtonHasTheRingOfTheProduct()
{
    open();
    button("Close")->forceActiveFocus(Qt::TabFocusReason);
    QCOMPARE(Views::pixel(*window(), button("Close"), {7, -3}).name(), EBKit::indigo().current().name());
}

void TestAboutWindow::itShowsTheVersionWithTheBuild_data()
{
    QTest::addColumn<QVariantMap>("info");
    QTest::addColumn<QString>("text");
    const QString version = "CFBundleShortVersionString";
    const QString build = "CFBundleVersion";
    QTest::newRow("both") << QVariantMap{{version, "1.4"}, {build, "212"}} << "1.4 (212)";
    QTest::newRow("no build") << QVariantMap{{version, "1.4"}} << "1.4 ()";
    QTest::newRow("a build that is no text") << QVariantMap{{version, "1.4"}, {build, 212}} << "1.4 ()";
    QTest::newRow("no version") << QVariantMap{{build, "212"}} << " (212)";
    QTest::newRow("nothing") << QVariantMap{} << " ()";
}

void TestAboutWindow::itShowsTheVersionWithTheBuild()
{
    QFETCH(QVariantMap, info);
    QFETCH(QString, text);
    m_platform->main.info = info;
    open();
    QVERIFY(shows(text));
}

void TestAboutWindow::itSaysWhatTheProductIs()
{
    open();
    QVERIFY(NamedItems::first(window()->contentItem(), "Corvane", QAccessible::Heading));
    const FoundItem blurb = NamedItems::first(
        window()->contentItem(),
        "Close, minimize and full-screen windows right in Mission Control, with buttons on every window and the "
        "shortcuts you already know.",
        QAccessible::StaticText);
    QVERIFY(blurb);
    const QString last = lastLine(*blurb);
    QVERIFY2(last.contains(u' '), qPrintable(last));
}

void TestAboutWindow::updatesAreOfferedWhereTheAgentHasAKey_data()
{
    QTest::addColumn<QVariant>("key");
    QTest::addColumn<bool>("offered");
    QTest::newRow("44 characters") << QVariant(QString(44, 'k')) << true;
    QTest::newRow("absent") << QVariant() << false;
}

void TestAboutWindow::updatesAreOfferedWhereTheAgentHasAKey()
{
    QFETCH(QVariant, key);
    QFETCH(bool, offered);
    putIntoAgent(key);
    open();
    QCOMPARE(bool(button(updates)), offered);
    QVERIFY(button(website));
}

void TestAboutWindow::outsideOfAnAgentThereAreNoUpdates()
{
    open();
    QVERIFY(!button(updates));
    QVERIFY(button(website));
}

void TestAboutWindow::theUpdateButtonSendsTheCommand()
{
    putIntoAgent(QString(44, 'k'));
    open();
    QCOMPARE(m_platform->notifications.posts.size(), 0);
    click(updates);
    QCOMPARE(m_platform->notifications.posts.size(), 1);
    QCOMPARE(m_platform->notifications.posts.constFirst().name, "com.vexmoor.corvane.command");
    QCOMPARE(m_platform->notifications.posts.constFirst().userInfo, (QVariantMap{{"command", "checkForUpdates"}}));
    QCOMPARE(m_platform->space.openedURLs.size(), 0);
}

void TestAboutWindow::theWebsiteButtonOpensTheWebsite()
{
    open();
    click(website);
    QCOMPARE(m_platform->space.openedURLs, {QUrl(QStringLiteral("https://vexmoor.com/corvane"))});
    QCOMPARE(m_platform->notifications.posts.size(), 0);
}

void TestAboutWindow::theKeyboardReachesItsButtons()
{
    putIntoAgent(QString(44, 'k'));
    open();
    QTest::keyClick(window(), Qt::Key_Tab);
    QTest::keyClick(window(), Qt::Key_Return);
    QCOMPARE(m_platform->notifications.posts.size(), 1);
    QTest::keyClick(window(), Qt::Key_Tab);
    QTest::keyClick(window(), Qt::Key_Space);
    QCOMPARE(m_platform->space.openedURLs.size(), 1);
}

void TestAboutWindow::escapeClosesIt_data()
{
    QTest::addColumn<int>("tabs");
    QTest::newRow("with no focus") << 0;
    QTest::newRow("from a button") << 1;
}

void TestAboutWindow::escapeClosesIt()
{
    QFETCH(int, tabs);
    open();
    for (int tab = 0; tab < tabs; ++tab)
        QTest::keyClick(window(), Qt::Key_Tab);
    QTest::keyClick(window(), Qt::Key_Q);
    QVERIFY(window()->isVisible());
    QTest::keyClick(window(), Qt::Key_Escape);
    QVERIFY(!window()->isVisible());
}

void TestAboutWindow::closingItEndsTheProcess()
{
    QVERIFY(SettingsAppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    open();
    QMetaObject::invokeMethod(window(), &QWindow::close, Qt::QueuedConnection);
    QCOMPARE(QGuiApplication::exec(), 0);
    QVERIFY(!window()->isVisible());
}

void TestAboutWindow::itGoesWithTheDelegate()
{
    open();
    m_delegate.reset();
    QVERIFY(QGuiApplication::topLevelWindows().isEmpty());
}

void TestAboutWindow::fromRightToLeftItIsMirrored()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    open();
    const QQuickItem *opens = button(website);
    QCOMPARE(opens->mapRectToScene(opens->boundingRect()).right(), 460.0 - 26);
}

static int runAboutWindow(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    char name[] = "corvane-settings";
    char flag[] = "--about";
    char *arguments[] = {name, flag};
    LaunchFlags::setArguments(2, arguments);
    return runTest<TestAboutWindow>(argc, argv);
}

CORVANE_TEST_MAIN(runAboutWindow)

#include "tst_aboutwindow.moc"
