#include "EndToEndTest.h"
#include "Processes.h"
#include "RootListener.h"
#include "TestProgram.h"

#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

/// On whose behalf a window manager is asked to bring a window to the front.
constexpr quint32 forItself = 1;
constexpr quint32 forThePerson = 2;

}

/// A role that is started twice has one window, and the second start brings it to the front.
class TestInstance : public EndToEndTest {
    Q_OBJECT

private:
    using Environment = QHash<QString, QString>;

    /// A further start beside the program, with more in its environment.
    std::unique_ptr<Program> another(const Environment &more = {}) const;

    /// Starts the program once more and waits for that start's end, which must be a good and silent one.
    void startAgain(const QStringList &arguments = {}, const Environment &more = {}) const;

    bool hasWindow(const Program &of) const { return !TopLevel::ofProcess(desktop().x(), of.processId()).isEmpty(); }

private slots:
    void aSecondStartBringsTheWindowToTheFront_data();
    void aSecondStartBringsTheWindowToTheFront();
    void theRolesDoNotStandForEachOther();
    void ofManyStartsAtOnceOneHasAWindow();
    void aStartBesideOneThatEndsHasAWindow();
    void withoutASessionBusEachStartHasAWindow();
    void aSecondStartGoesToThePageItNames_data();
    void aSecondStartGoesToThePageItNames();
    void theLaunchersRightToComeToTheFrontIsHandedOn_data();
    void theLaunchersRightToComeToTheFrontIsHandedOn();
    void showGuideBringsTheGuideThatRuns();
    void aGuideThatHidesComesBack();
    void nobodyHearsOfASecondStart();
};

std::unique_ptr<Program> TestInstance::another(const Environment &more) const
{
    QProcessEnvironment environment = desktop().environment();
    for (auto entry = more.cbegin(); entry != more.cend(); ++entry)
        environment.insert(entry.key(), entry.value());
    return std::make_unique<Program>(defaultExecutable(), environment);
}

void TestInstance::startAgain(const QStringList &arguments, const Environment &more) const
{
    const auto second = another(more);
    REQUIRE(second->start(arguments));
    REQUIRE(second->waitForExit());
    REQUIRE(second->exitCode() == 0);
    REQUIRE(second->standardError().isEmpty());
}

void TestInstance::aSecondStartBringsTheWindowToTheFront_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("settings") << QStringList();
    QTest::newRow("About") << QStringList{u"--about"_s};
    QTest::newRow("guide") << QStringList{u"--onboarding"_s};
}

void TestInstance::aSecondStartBringsTheWindowToTheFront()
{
    QFETCH(QStringList, arguments);
    QVERIFY(launch({.arguments = arguments}));
    RootListener requests(desktop().display());
    startAgain(arguments);
    QVERIFY(requests.waitForRequest(window()->id(), "_NET_ACTIVE_WINDOW", {forThePerson}));
    QCOMPARE(TopLevel::ofProcess(desktop().x(), program().processId()).size(), 1);
}

void TestInstance::theRolesDoNotStandForEachOther()
{
    QVERIFY(launch());
    const auto about = another();
    QVERIFY(about->start({u"--about"_s}));
    QTRY_VERIFY_WITH_TIMEOUT(hasWindow(*about), 20000);
    QVERIFY(window());
}

void TestInstance::ofManyStartsAtOnceOneHasAWindow()
{
    std::vector<std::unique_ptr<Program>> starts;
    for (int i = 0; i < 6; ++i)
        starts.push_back(another());
    for (const auto &start : starts)
        QVERIFY(start->start());
    const auto running = [&] {
        return std::count_if(starts.begin(), starts.end(), [](const auto &start) { return start->isRunning(); });
    };
    QTRY_COMPARE_WITH_TIMEOUT(running(), 1, 30000);
    for (const auto &start : starts) {
        QCOMPARE(start->standardError(), QStringList());
        if (!start->isRunning()) {
            QCOMPARE(start->exitCode(), 0);
            continue;
        }
        QTRY_COMPARE_WITH_TIMEOUT(TopLevel::ofProcess(desktop().x(), start->processId()).size(), 1, 20000);
        QTRY_VERIFY(TopLevel::ofProcess(desktop().x(), start->processId()).constFirst().isViewable());
    }
}

void TestInstance::aStartBesideOneThatEndsHasAWindow()
{
    QVERIFY(launch());
    const auto second = another();
    window()->close();
    QVERIFY(second->start());
    QTRY_VERIFY_WITH_TIMEOUT(hasWindow(*second), 20000);
    QVERIFY(program().waitForExit());
}

void TestInstance::withoutASessionBusEachStartHasAWindow()
{
    const Environment noBus = {{u"DBUS_SESSION_BUS_ADDRESS"_s, u"disabled:"_s}};
    QVERIFY(launch({.environment = noBus}));
    const auto second = another(noBus);
    QVERIFY(second->start());
    QTRY_VERIFY_WITH_TIMEOUT(hasWindow(*second), 20000);
    QVERIFY(window());
}

void TestInstance::aSecondStartGoesToThePageItNames_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("shown");
    QTest::newRow("another page") << u"layouts"_s << u"Settings · 04"_s;
    QTest::newRow("no such page") << u"nowhere"_s << u"Settings · 02"_s;
    QTest::newRow("none") << QString() << u"Settings · 02"_s;
}

void TestInstance::aSecondStartGoesToThePageItNames()
{
    QFETCH(QString, page);
    QFETCH(QString, shown);
    QVERIFY(open({.environment = {{u"CV_TAB"_s, u"buttons"_s}}}));
    QVERIFY(shows(u"Settings · 02"_s));
    startAgain({}, {{u"CV_TAB"_s, page}});
    QVERIFY(shows(shown));
}

void TestInstance::theLaunchersRightToComeToTheFrontIsHandedOn_data()
{
    QTest::addColumn<QString>("variable");
    QTest::newRow("startup notification") << u"DESKTOP_STARTUP_ID"_s;
    QTest::newRow("activation token") << u"XDG_ACTIVATION_TOKEN"_s;
}

void TestInstance::theLaunchersRightToComeToTheFrontIsHandedOn()
{
    QFETCH(QString, variable);
    QVERIFY(launch());
    RootListener requests(desktop().display());
    startAgain({}, {{variable, u"launcher-4711_TIME123456789"_s}});
    // The start is over, which the launcher shows until then.
    QVERIFY(requests.waitForRequest(window()->id(), "_NET_STARTUP_INFO_BEGIN", {qFromLittleEndian<quint32>("remo")}));
    QVERIFY(requests.waitForRequest(window()->id(), "_NET_ACTIVE_WINDOW", {forItself, 123456789}));
}

void TestInstance::showGuideBringsTheGuideThatRuns()
{
    QVERIFY(open());
    const auto guide = another();
    QVERIFY(guide->start({u"--onboarding"_s}));
    QTRY_VERIFY_WITH_TIMEOUT(hasWindow(*guide), 20000);
    FIND(button, ATSPI_ROLE_PUSH_BUTTON, "Show Guide");
    RootListener requests(desktop().display());
    QVERIFY(button.doAction(u"Press"_s));
    QVERIFY(program().waitForExit());
    QTRY_COMPARE_WITH_TIMEOUT(Processes::instancesOf(defaultExecutable()).size(), 1, 20000);
    QVERIFY(guide->isRunning());
    const TopLevel window = TopLevel::ofProcess(desktop().x(), guide->processId()).constFirst();
    QVERIFY(requests.waitForRequest(window.id(), "_NET_ACTIVE_WINDOW", {forThePerson}));
}

void TestInstance::aGuideThatHidesComesBack()
{
    QVERIFY(open({.arguments = {u"--onboarding"_s}, .environment = {{u"CV_STEP"_s, u"2"_s}}}));
    FIND(allow, ATSPI_ROLE_PUSH_BUTTON, "Open System Settings");
    QVERIFY(allow.doAction(u"Press"_s));
    const auto guideIsShown = [this] {
        const QList<TopLevel> windows = TopLevel::ofProcess(desktop().x(), program().processId());
        return std::any_of(windows.begin(), windows.end(), [](const TopLevel &window) {
            return window.isViewable() && window.title() == u"Welcome to Corvane"_s;
        });
    };
    QTRY_VERIFY(!guideIsShown());
    startAgain({u"--onboarding"_s});
    QTRY_VERIFY(guideIsShown());
}

void TestInstance::nobodyHearsOfASecondStart()
{
    QVERIFY(launch({.arguments = {u"--onboarding"_s}}));
    startAgain({u"--onboarding"_s, u"--replay"_s});
    settle();
    QCOMPARE(commands().heard().size(), 0);
    QCOMPARE(store().readAll(), QVariantMap());
}

CORVANE_TEST(TestInstance, runInCore)
#include "e2e_instance.moc"
