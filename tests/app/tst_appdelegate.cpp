#include "FakePlatform.h"
#include "Fonts.h"
#include "NamedItems.h"
#include "SettingsAppDelegate.h"
#include "SettingsModel.h"
#include "StoreCopy.h"
#include "StoreKeeper.h"
#include "TestProgram.h"
#include "Views.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace std::chrono_literals;

class TestAppDelegate : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void withoutFlagsTheSettingsWindowOpens();
    void theTabVariableNamesTheFirstPage_data();
    void theTabVariableNamesTheFirstPage();
    void theWindowShowsTheShortVersionAlone();
    void theWindowTellsWhyChangesAreNotSaved();
    void theWindowOffersToRestoreLostSettings_data();
    void theWindowOffersToRestoreLostSettings();
    void settingsAreCopiedOnceTheStartHasGivenItsMemoryBack();
    void whatHasChangedAtTheEndIsCopied();
    void closingTheLastWindowEndsTheProcess();
    void theGuideIsThisApplicationStartedAgain();
    void aRequestGoesToThePageItNames_data();
    void aRequestGoesToThePageItNames();
    void anotherRoleIsAnotherProcess_data();
    void anotherRoleIsAnotherProcess();
    void aClosedWindowComesToNoFront();
    void theAgentIsStartedAfterTheFirstFrame();
    void outsideOfAnAgentNoneIsStarted();

private:
    /// The one window there is.
    static QQuickWindow *window();
    static QString selection();

    FakePlatform *m_platform = nullptr;
};

void TestAppDelegate::init()
{
    m_platform = &FakePlatform::install();
    m_platform->main.url = QUrl::fromLocalFile("/apps/Corvane Settings.app");
    addFaces(m_platform->main);
}

void TestAppDelegate::cleanup()
{
    qunsetenv("CV_TAB");
    QGuiApplication::setWindowIcon({});
}

QQuickWindow *TestAppDelegate::window()
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    return windows.size() == 1 ? qobject_cast<QQuickWindow *>(windows.constFirst()) : nullptr;
}

QString TestAppDelegate::selection()
{
    const QQuickItem *root = Views::visible(window()->contentItem(), "EBSettingsView").constFirst();
    return root->property("model").value<EBSettingsWindowController::Model *>()->selection();
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
    QCOMPARE(TestAppDelegate::selection(), selection);
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

void TestAppDelegate::theWindowTellsWhyChangesAreNotSaved()
{
    using Trouble = UserDefaults::Trouble;
    const QHash<Trouble, QString> texts = {
        {Trouble::noStore, "Changes last only until you close this window: there is nothing to save them in."},
        {Trouble::noAnswer, "Changes can't be saved: the settings service doesn't answer."},
        {Trouble::noRoom, "Changes can't be saved: the disk is full or read-only."},
        {Trouble::locked, "This can't be changed: your administrator has locked it."},
        {Trouble::unknown, "Changes can't be saved: the settings service stores them elsewhere."},
    };
    SettingsAppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    FakeUserDefaults &store = m_platform->suite("com.vexmoor.corvane");
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        store.obstacle = text.key();
        store.setValue("showMinimizeButton", true);
        QTRY_VERIFY(!NamedItems::all(window()->contentItem(), *text).isEmpty());
        store.obstacle = Trouble::none;
        store.setValue("layouts.gap", store.value("layouts.gap").toDouble() + 1);
        QTRY_VERIFY(NamedItems::all(window()->contentItem(), *text).isEmpty());
        store.setValue("showMinimizeButton", QVariant());
    }
}

void TestAppDelegate::theWindowOffersToRestoreLostSettings_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QVariantMap>("values");
    const QVariantMap lost = {{"layouts.gap", 6.0}, {"showMinimizeButton", true}};
    QTest::newRow("restore") << "Restore" << lost;
    QTest::newRow("start fresh") << "Start Fresh" << QVariantMap();
}

void TestAppDelegate::theWindowOffersToRestoreLostSettings()
{
    QFETCH(QString, answer);
    QFETCH(QVariantMap, values);
    const QTemporaryDir state;
    m_platform->main.info = QVariantMap{{"CFBundleShortVersionString", "1.4"}};
    m_platform->state = state.path();
    FakeUserDefaults &store = m_platform->suite("com.vexmoor.corvane");
    store.values = {{"layouts.gap", 6.0}, {"showMinimizeButton", true}};
    {
        StoreKeeper keeper;
        keeper.finish(5s);
    }
    store.values.clear();
    SettingsAppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    const QString offer = "Your settings are gone.";
    QQuickItem *content = window()->contentItem();
    QTRY_VERIFY(NamedItems::first(content, offer, QAccessible::Notification));
    // Whatever keeps changes from being saved comes first.
    store.obstacle = UserDefaults::Trouble::noRoom;
    store.setValue("showMinimizeButton", true);
    QTRY_VERIFY(!NamedItems::first(content, offer, QAccessible::Notification));
    store.obstacle = UserDefaults::Trouble::none;
    store.setValue("showMinimizeButton", QVariant());
    QQuickItem *button = nullptr;
    QTRY_VERIFY(button = NamedItems::first(content, answer, QAccessible::Button));
    QAccessible::queryAccessibleInterface(button)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
    QTRY_VERIFY(!NamedItems::first(content, offer, QAccessible::Notification));
    QCOMPARE(store.values, values);
    QVERIFY(NamedItems::first(content, "Corvane\nVersion 1.4", QAccessible::StaticText));
}

void TestAppDelegate::settingsAreCopiedOnceTheStartHasGivenItsMemoryBack()
{
    const QTemporaryDir state;
    m_platform->state = state.path();
    FakeUserDefaults &store = m_platform->suite("com.vexmoor.corvane");
    store.values = {{"showMinimizeButton", true}};
    {
        StoreKeeper keeper;
        keeper.finish(5s);
    }
    store.values.clear();
    SettingsAppDelegate delegate;
    // Whoever looks after the copy puts one of lost settings aside first of all.
    bool isUntouched = false;
    connect(&delegate, &SettingsAppDelegate::opened, this,
            [&] { isUntouched = QFile::exists(state.filePath("settings.copy")); });
    delegate.applicationDidFinishLaunching();
    QTRY_VERIFY(QFile::exists(state.filePath("settings.lost")));
    QVERIFY(isUntouched);
    delegate.finish(5s);
}

void TestAppDelegate::whatHasChangedAtTheEndIsCopied()
{
    const QTemporaryDir state;
    m_platform->state = state.path();
    SettingsAppDelegate delegate;
    QSignalSpy opened(&delegate, &SettingsAppDelegate::opened);
    delegate.applicationDidFinishLaunching();
    QTRY_COMPARE(opened.size(), 1);
    m_platform->suite("com.vexmoor.corvane").setValue("showMinimizeButton", true);
    delegate.finish(5s);
    QFile copy(state.filePath("settings.copy"));
    QVERIFY(copy.open(QFile::ReadOnly));
    QCOMPARE(StoreCopy::decode(copy.readAll()), (QVariantMap{{"showMinimizeButton", true}}));
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

void TestAppDelegate::aRequestGoesToThePageItNames_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("shown");
    QTest::newRow("a page") << "page"
                            << "layouts"
                            << "layouts";
    QTest::newRow("no such page") << "page"
                                  << "nowhere"
                                  << "buttons";
    QTest::newRow("no page") << "page"
                             << ""
                             << "buttons";
    QTest::newRow("nothing but the window") << ""
                                            << ""
                                            << "buttons";
    QTest::newRow("an unknown action") << "fly"
                                       << "layouts"
                                       << "buttons";
}

void TestAppDelegate::aRequestGoesToThePageItNames()
{
    QFETCH(QString, action);
    QFETCH(QString, page);
    QFETCH(QString, shown);
    qputenv("CV_TAB", "buttons");
    SettingsAppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    QVERIFY(m_platform->programs.receive({action, page}));
    QCOMPARE(selection(), shown);
    QCOMPARE(m_platform->space.broughtToFront, QList<QWindow *>{window()});
}

void TestAppDelegate::anotherRoleIsAnotherProcess_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("About") << "about" << QStringList{"--about"};
    QTest::newRow("the guide") << "guide" << QStringList{"--onboarding", "--replay"};
}

void TestAppDelegate::anotherRoleIsAnotherProcess()
{
    QFETCH(QString, action);
    QFETCH(QStringList, arguments);
    SettingsAppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    QVERIFY(m_platform->programs.receive({action, {}}));
    QCOMPARE(m_platform->space.openedApplications.size(), 1);
    const auto opened = m_platform->space.openedApplications.constFirst();
    QCOMPARE(opened.bundleURL, QUrl::fromLocalFile("/apps/Corvane Settings.app"));
    QCOMPARE(opened.arguments, arguments);
    QVERIFY(window());
}

void TestAppDelegate::aClosedWindowComesToNoFront()
{
    SettingsAppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    window()->close();
    QVERIFY(!m_platform->programs.receive({}));
    QVERIFY(!window()->isVisible());
}

void TestAppDelegate::theAgentIsStartedAfterTheFirstFrame()
{
    m_platform->main.url = QUrl::fromLocalFile("/apps/Corvane.app/Contents/Helpers/Corvane Settings.app");
    FakeBundle agent;
    agent.url = QUrl::fromLocalFile("/apps/Corvane.app");
    m_platform->bundles = {agent};
    SettingsAppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    QCOMPARE(m_platform->programs.started, QStringList());
    QTRY_COMPARE(m_platform->programs.started, QStringList{"com.vexmoor.corvane"});
    QSignalSpy frames(window(), &QQuickWindow::frameSwapped);
    window()->update();
    QVERIFY(frames.wait());
    QCoreApplication::processEvents();
    QCOMPARE(m_platform->programs.started.size(), 1);
}

void TestAppDelegate::outsideOfAnAgentNoneIsStarted()
{
    SettingsAppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    QTRY_VERIFY(!QGuiApplication::windowIcon().isNull());
    QCoreApplication::processEvents();
    QCOMPARE(m_platform->programs.started, QStringList());
}

CORVANE_TEST(TestAppDelegate, runInGui)
#include "tst_appdelegate.moc"
