#include "FakePlatform.h"
#include "Fonts.h"
#include "LaunchFlags.h"
#include "SettingsAppDelegate.h"
#include "SettingsModel.h"
#include "TestProgram.h"
#include "Views.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTimer>

/// The application started by the desktop. Flags are read once a process, so this test is one of its own.
class TestService : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_delegate.reset(); }
    void nothingIsShownUntilItIsAskedFor();
    void aRequestOpensTheSettings_data();
    void aRequestOpensTheSettings();
    void anActionOpensItsRoleAlone();
    void itEndsWhenNothingIsAskedFor();
    void withAWindowItStays();

private:
    FakePlatform *m_platform = nullptr;
    std::unique_ptr<SettingsAppDelegate> m_delegate;
};

void TestService::init()
{
    m_platform = &FakePlatform::install();
    m_platform->main.url = QUrl::fromLocalFile("/apps/Corvane Settings.app");
    addFaces(m_platform->main);
    m_delegate = std::make_unique<SettingsAppDelegate>();
    m_delegate->applicationDidFinishLaunching();
}

void TestService::nothingIsShownUntilItIsAskedFor()
{
    QVERIFY(QGuiApplication::topLevelWindows().isEmpty());
}

void TestService::aRequestOpensTheSettings_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("shown");
    QTest::newRow("the window") << ""
                                << ""
                                << "general";
    QTest::newRow("a page") << "page"
                            << "shortcuts"
                            << "shortcuts";
    QTest::newRow("no such page") << "page"
                                  << "nowhere"
                                  << "general";
}

void TestService::aRequestOpensTheSettings()
{
    QFETCH(QString, action);
    QFETCH(QString, page);
    QFETCH(QString, shown);
    QVERIFY(m_platform->programs.receive({action, page}));
    const auto *window = qobject_cast<QQuickWindow *>(QGuiApplication::topLevelWindows().value(0));
    QVERIFY(window && window->isVisible());
    const QQuickItem *root = Views::visible(window->contentItem(), "EBSettingsView").constFirst();
    QCOMPARE(root->property("model").value<EBSettingsWindowController::Model *>()->selection(), shown);
}

void TestService::anActionOpensItsRoleAlone()
{
    QVERIFY(m_platform->programs.receive({"about", {}}));
    QCOMPARE(m_platform->space.openedApplications.size(), 1);
    QCOMPARE(m_platform->space.openedApplications.constFirst().arguments, QStringList{"--about"});
    QVERIFY(QGuiApplication::topLevelWindows().isEmpty());
}

void TestService::itEndsWhenNothingIsAskedFor()
{
    QSignalSpy quits(qApp, &QCoreApplication::aboutToQuit);
    m_platform->queue.advance(9.9);
    QCoreApplication::processEvents();
    QCOMPARE(quits.count(), 0);
    QMetaObject::invokeMethod(
        this, [this] { m_platform->queue.advance(0.1); }, Qt::QueuedConnection);
    QCOMPARE(QGuiApplication::exec(), 0);
    QCOMPARE(quits.count(), 1);
}

void TestService::withAWindowItStays()
{
    QVERIFY(m_platform->programs.receive({}));
    const auto letTimePass = [this] {
        m_platform->queue.advance(60);
        QTimer::singleShot(0, this, [] { QCoreApplication::exit(7); });
    };
    QMetaObject::invokeMethod(this, letTimePass, Qt::QueuedConnection);
    QCOMPARE(QGuiApplication::exec(), 7);
    QVERIFY(QGuiApplication::topLevelWindows().constFirst()->isVisible());
}

static int runService(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    char name[] = "corvane-settings";
    char flag[] = "--service";
    char *arguments[] = {name, flag};
    LaunchFlags::setArguments(2, arguments);
    return runTest<TestService>(argc, argv);
}

CORVANE_TEST_MAIN(runService)

#include "tst_service.moc"
