#include "EBSettingsWindowController.h"
#include "FakePlatform.h"
#include "SettingsAppDelegate.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

class TestAppDelegate : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }
    void init();
    void cleanup() { qunsetenv("CV_TAB"); }
    void withoutFlagsTheSettingsWindowOpens();
    void closingTheLastWindowEndsTheProcess();
    void theGuideIsThisApplicationStartedAgain();

private:
    FakePlatform *m_platform = nullptr;
};

void TestAppDelegate::init()
{
    // The platform without a display takes no size hints, and says so each time.
    QTest::failOnWarning(QRegularExpression("^(?!This plugin does not support propagateSizeHints)"));
    m_platform = &FakePlatform::install();
    m_platform->main.url = QUrl::fromLocalFile("/apps/Corvane Settings.app");
}

void TestAppDelegate::withoutFlagsTheSettingsWindowOpens()
{
    QTest::ignoreMessage(QtWarningMsg, "Embera: font InstrumentSans-SemiBold.ttf is missing from the bundle");
    QTest::ignoreMessage(QtWarningMsg, "Embera: font GeistMono-Medium.ttf is missing from the bundle");
    SettingsAppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    const QWindowList windows = QGuiApplication::topLevelWindows();
    QCOMPARE(windows.size(), 1);
    QCOMPARE(windows.constFirst()->title(), "Corvane Settings");
    QVERIFY(windows.constFirst()->isVisible());
    windows.constFirst()->hide();
}

void TestAppDelegate::closingTheLastWindowEndsTheProcess()
{
    QVERIFY(SettingsAppDelegate::applicationShouldTerminateAfterLastWindowClosed());
}

void TestAppDelegate::theGuideIsThisApplicationStartedAgain()
{
    QSignalSpy quits(qApp, &QCoreApplication::aboutToQuit);
    QMetaObject::invokeMethod(this, &SettingsAppDelegate::openGuide, Qt::QueuedConnection);
    QCOMPARE(QGuiApplication::exec(), 0);
    QCOMPARE(quits.count(), 1);
    QCOMPARE(m_platform->space.openedApplications.size(), 1);
    const auto opened = m_platform->space.openedApplications.constFirst();
    QCOMPARE(opened.bundleURL, QUrl::fromLocalFile("/apps/Corvane Settings.app"));
    const QStringList arguments = {"--onboarding", "--replay"};
    QCOMPARE(opened.arguments, arguments);
}

QTEST_MAIN(TestAppDelegate)
#include "tst_appdelegate.moc"
