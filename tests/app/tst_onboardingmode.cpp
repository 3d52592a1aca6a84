#include "FakePlatform.h"
#include "Fonts.h"
#include "LaunchFlags.h"
#include "SettingsAppDelegate.h"
#include "TestProgram.h"

#include <QGuiApplication>
#include <QQuickWindow>

/// The application started with "--onboarding". Flags are read once a process, so this test is one of its own.
class TestOnboardingMode : public QObject {
    Q_OBJECT

private slots:
    void init();
    void theGuideIsTheOnlyWindow();
    void aWindowThatClosesDoesNotEndTheProcess();
};

void TestOnboardingMode::init()
{
    addFaces(FakePlatform::install().main);
}

void TestOnboardingMode::theGuideIsTheOnlyWindow()
{
    SettingsAppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    const QWindowList windows = QGuiApplication::topLevelWindows();
    QCOMPARE(windows.size(), 1);
    QCOMPARE(windows.constFirst()->title(), "Welcome to Corvane");
}

void TestOnboardingMode::aWindowThatClosesDoesNotEndTheProcess()
{
    QVERIFY(!SettingsAppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    SettingsAppDelegate delegate;
    QVERIFY(!QGuiApplication::quitOnLastWindowClosed());
    QWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    // What is posted when the last window closes is handled before what is posted twice over.
    constexpr int stillRunning = 7;
    const auto later = [](auto action) { QMetaObject::invokeMethod(qApp, action, Qt::QueuedConnection); };
    connect(qGuiApp, &QGuiApplication::lastWindowClosed, &window,
            [later] { later([later] { later([] { QCoreApplication::exit(stillRunning); }); }); });
    later([&window] { window.close(); });
    QCOMPARE(QGuiApplication::exec(), stillRunning);
}

static int runOnboardingMode(int argc, char **argv)
{
    char program[] = "corvane-settings";
    char flag[] = "--onboarding";
    static char *arguments[] = {program, flag};
    LaunchFlags::setArguments(2, arguments);
    return runInGui<TestOnboardingMode>(argc, argv);
}

CORVANE_TEST_MAIN(runOnboardingMode)

#include "tst_onboardingmode.moc"
