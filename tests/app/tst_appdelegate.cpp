#include "FakePlatform.h"
#include "Fonts.h"
#include "NamedItems.h"
#include "SettingsAppDelegate.h"
#include "SettingsModel.h"
#include "TestProgram.h"
#include "Views.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QSignalSpy>

class TestAppDelegate : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { qunsetenv("CV_TAB"); }
    void withoutFlagsTheSettingsWindowOpens();
    void theTabVariableNamesTheFirstPage_data();
    void theTabVariableNamesTheFirstPage();
    void theWindowShowsTheShortVersionAlone();
    void closingTheLastWindowEndsTheProcess();
    void theGuideIsThisApplicationStartedAgain();

private:
    /// The one window there is.
    static QQuickWindow *window();

    FakePlatform *m_platform = nullptr;
};

void TestAppDelegate::init()
{
    m_platform = &FakePlatform::install();
    m_platform->main.url = QUrl::fromLocalFile("/apps/Corvane Settings.app");
    addFaces(m_platform->main);
}

QQuickWindow *TestAppDelegate::window()
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    return windows.size() == 1 ? qobject_cast<QQuickWindow *>(windows.constFirst()) : nullptr;
}

void TestAppDelegate::withoutFlagsTheSettingsWindowOpens()
{
    SettingsAppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    QVERIFY(window());
    QCOMPARE(window()->title(), "Corvane Settings");
    QVERIFY(window()->isVisible());
}

void TestAppDelegate::theTabVariableNamesTheFirstPage_data()
{
    QTest::addColumn<QByteArray>("tab");
    QTest::addColumn<QString>("selection");
    QTest::addColumn<QString>("heading");
    QTest::newRow("absent") << QByteArray() << "general"
                            << "General";
    QTest::newRow("general") << QByteArray("general") << "general"
                             << "General";
    QTest::newRow("buttons") << QByteArray("buttons") << "buttons"
                             << "Buttons";
    QTest::newRow("shortcuts") << QByteArray("shortcuts") << "shortcuts"
                               << "Shortcuts";
    QTest::newRow("layouts") << QByteArray("layouts") << "layouts"
                             << "Layouts";
    QTest::newRow("unknown") << QByteArray("nowhere") << "general"
                             << "General";
    QTest::newRow("capital letter") << QByteArray("Shortcuts") << "general"
                                    << "General";
    QTest::newRow("with space") << QByteArray("shortcuts ") << "general"
                                << "General";
}

void TestAppDelegate::theTabVariableNamesTheFirstPage()
{
    QFETCH(QByteArray, tab);
    QFETCH(QString, selection);
    QFETCH(QString, heading);
    if (!tab.isNull())
        qputenv("CV_TAB", tab);
    SettingsAppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    QVERIFY(window());
    const QQuickItem *root = Views::visible(window()->contentItem(), "SettingsRoot").constFirst();
    const auto *model = root->property("model").value<EBSettingsWindowController::Model *>();
    QVERIFY(model);
    QCOMPARE(model->selection(), selection);
    QVERIFY(NamedItems::first(window()->contentItem(), heading, QAccessible::Heading));
}

void TestAppDelegate::theWindowShowsTheShortVersionAlone()
{
    m_platform->main.info = QVariantMap{{"CFBundleShortVersionString", "1.4"}, {"CFBundleVersion", "212"}};
    SettingsAppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    QVERIFY(window());
    QVERIFY(NamedItems::first(window()->contentItem(), "Corvane\nVersion 1.4", QAccessible::StaticText));
}

void TestAppDelegate::closingTheLastWindowEndsTheProcess()
{
    QVERIFY(SettingsAppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const SettingsAppDelegate delegate;
    QVERIFY(QGuiApplication::quitOnLastWindowClosed());
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

CORVANE_TEST(TestAppDelegate, runInGui)
#include "tst_appdelegate.moc"
