#include "DconfService.h"
#include "EndToEndTest.h"
#include "TestProgram.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace {

const QString noRoom = u"Changes can't be saved: the disk is full or read-only."_s;
const QString noAnswer = u"Changes can't be saved: the settings service doesn't answer."_s;

}

/// What a person sees, and the agent hears, while changes cannot be saved.
class TestUnsaved : public EndToEndTest {
    Q_OBJECT

private slots:
    void cleanup();

    void aFlipThatIsNotStoredIsTakenBackAndToldUntilItIs_data();
    void aFlipThatIsNotStoredIsTakenBackAndToldUntilItIs();
    void theWindowGoesOnWhileTheServiceHangs();
    void theProcessEndsSoonWhileTheServiceHangs();
    void theGuidesCustomizeStepTells();
    void aLockedSettingIsDisabled();
    void lostSettingsAreRestoredWhenThePersonSaysSo();
};

void TestUnsaved::cleanup()
{
    DconfService::setHangs(false);
    DconfService::setHasRoom(true);
    EndToEndTest::cleanup();
}

void TestUnsaved::aFlipThatIsNotStoredIsTakenBackAndToldUntilItIs_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("name");
    QTest::newRow("announced by its page") << u"general"_s << u"Show in the menu bar"_s;
    QTest::newRow("announced at each change") << u"buttons"_s << u"Minimize button"_s;
}

void TestUnsaved::aFlipThatIsNotStoredIsTakenBackAndToldUntilItIs()
{
    QFETCH(QString, page);
    QFETCH(QString, name);
    store().write(u"layouts.gap"_s, 6.0);
    QVERIFY(open({.environment = {{u"CV_TAB"_s, page}}}));
    const Accessible control = find(ATSPI_ROLE_CHECK_BOX, name);
    QVERIFY(control);
    const bool initial = control.has(ATSPI_STATE_CHECKED);
    const int height = window()->geometry().height();
    DconfService::setHasRoom(false);
    QVERIFY(control.doAction(u"Toggle"_s));
    QVERIFY(shows(noRoom));
    QVERIFY(becomes(control, ATSPI_STATE_CHECKED, initial));
    settle();
    QCOMPARE(commands().heard().size(), 0);
    QCOMPARE(store().readAll().size(), 1);
    QCOMPARE(window()->geometry().height(), height);

    DconfService::setHasRoom(true);
    // The sign of life of whoever stores the settings.
    store().write(u"layouts.gap"_s, 12.0);
    QVERIFY(becomes(control, ATSPI_STATE_CHECKED, !initial));
    QVERIFY(doesNotShow(noRoom));
    settle();
    QCOMPARE(commands().heard().size(), 1);
    QCOMPARE(commands().heard().first().stored.size(), 2);
}

void TestUnsaved::theWindowGoesOnWhileTheServiceHangs()
{
    QVERIFY(open({.environment = {{u"CV_TAB"_s, u"buttons"_s}}}));
    const Accessible minimize = find(ATSPI_ROLE_CHECK_BOX, u"Minimize button"_s);
    const Accessible fullScreen = find(ATSPI_ROLE_CHECK_BOX, u"Full screen button"_s);
    DconfService::setHangs(true);
    QElapsedTimer time;
    time.start();
    QVERIFY(minimize.doAction(u"Toggle"_s));
    QVERIFY(becomes(minimize, ATSPI_STATE_CHECKED));
    QVERIFY(fullScreen.doAction(u"Toggle"_s));
    QVERIFY(becomes(fullScreen, ATSPI_STATE_CHECKED));
    QVERIFY(time.elapsed() < 1500);
    QVERIFY(shows(noAnswer));
    QVERIFY(becomes(minimize, ATSPI_STATE_CHECKED, false));
    QCOMPARE(commands().heard().size(), 0);
    DconfService::setHangs(false);
    QVERIFY(becomes(minimize, ATSPI_STATE_CHECKED));
    QVERIFY(becomes(fullScreen, ATSPI_STATE_CHECKED));
    QVERIFY(doesNotShow(noAnswer));
    QVERIFY(store().waitFor(u"showMaximizeButton"_s, true));
    QVERIFY(commands().waitForCount(1));
}

void TestUnsaved::theProcessEndsSoonWhileTheServiceHangs()
{
    QVERIFY(open({.arguments = {u"--onboarding"_s}}));
    const Accessible skip = find(ATSPI_ROLE_PUSH_BUTTON, u"Skip setup"_s);
    QVERIFY(skip);
    DconfService::setHangs(true);
    QVERIFY(skip.doAction(u"Press"_s));
    QElapsedTimer time;
    time.start();
    QVERIFY(QTest::qWaitFor([this] { return !window(); }, 1000));
    QVERIFY(program().waitForExit(4000));
    QVERIFY(time.elapsed() > 1000);
    QCOMPARE(program().exitCode(), 0);
}

void TestUnsaved::theGuidesCustomizeStepTells()
{
    store().write(u"layouts.gap"_s, 6.0);
    QVERIFY(open({.arguments = {u"--onboarding"_s}, .environment = {{u"CV_STEP"_s, u"3"_s}}}));
    DconfService::setHasRoom(false);
    const Accessible control = find(ATSPI_ROLE_CHECK_BOX, u"Minimize button"_s);
    QVERIFY(control);
    QVERIFY(control.doAction(u"Toggle"_s));
    QVERIFY(shows(noRoom));
    QVERIFY(becomes(control, ATSPI_STATE_CHECKED, false));
}

void TestUnsaved::aLockedSettingIsDisabled()
{
    const QTemporaryDir folder;
    const QString profile = DconfService::makeLock(u"/com/vexmoor/corvane/showMinimizeButton"_s, folder.path());
    QVERIFY(open({.environment = {{u"CV_TAB"_s, u"buttons"_s}, {u"DCONF_PROFILE"_s, profile}}}));
    const Accessible minimize = find(ATSPI_ROLE_CHECK_BOX, u"Minimize button"_s);
    const Accessible fullScreen = find(ATSPI_ROLE_CHECK_BOX, u"Full screen button"_s);
    QVERIFY(becomes(minimize, ATSPI_STATE_ENABLED, false));
    QVERIFY(fullScreen.has(ATSPI_STATE_ENABLED));
}

void TestUnsaved::lostSettingsAreRestoredWhenThePersonSaysSo()
{
    store().write(u"layouts.gap"_s, 6.0);
    QVERIFY(open());
    QTRY_VERIFY(QFile::exists(desktop().session().stateFolder() + u"/corvane-settings/settings.copy"_s));
    closeWindow();
    QVERIFY(program().waitForExit());
    store().removeAll();

    QVERIFY(open());
    const QString question = u"Your settings are gone."_s;
    QVERIFY(shows(question));
    QCOMPARE(store().readAll(), QVariantMap());
    FIND(restore, ATSPI_ROLE_PUSH_BUTTON, "Restore");
    QVERIFY(restore.doAction(u"Press"_s));
    QVERIFY(doesNotShow(question));
    QCOMPARE(store().readAll(), (QVariantMap{{u"layouts.gap"_s, 6.0}}));
    QVERIFY(commands().waitForCount(1));
    QCOMPARE(commands().heard().constFirst().command, u"applySettings"_s);
    QCOMPARE(commands().heard().constFirst().stored.size(), 1);
}

CORVANE_TEST(TestUnsaved, runInCore)
#include "e2e_unsaved.moc"
