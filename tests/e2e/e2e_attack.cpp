#include "EndToEndTest.h"
#include "TestProgram.h"

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

/// In the switch "Minimize button", in points of the window on the Buttons page.
constexpr QPoint minimizeSwitch(562, 448);

}

/// A short form of what attacks on the application are made of.
class TestAttack : public EndToEndTest {
    Q_OBJECT

private slots:
    void killsWhileItWritesLoseNothing();
    void valuesOfAnyTypeInAnyKeyAreLivedWith();
};

void TestAttack::killsWhileItWritesLoseNothing()
{
    const QString key = u"showMinimizeButton"_s;
    store().write(u"buttonTheme"_s, u"graphite"_s);
    QProcessEnvironment environment = desktop().environment();
    environment.insert(u"CV_TAB"_s, u"buttons"_s);
    for (int flips = 1; flips <= 3; ++flips) {
        Program victim(defaultExecutable(), environment);
        QVERIFY(victim.start());
        QTRY_VERIFY(!TopLevel::ofProcess(desktop().x(), victim.processId()).isEmpty());
        const TopLevel window = TopLevel::ofProcess(desktop().x(), victim.processId()).constLast();
        QTRY_VERIFY(window.isViewable());
        const QVariant before = store().read(key);
        // The first one is waited for, and into the others the kill falls.
        pointer().click(window.frame().topLeft() + minimizeSwitch);
        QTRY_VERIFY(store().read(key) != before);
        for (int more = 1; more < flips; ++more)
            pointer().click(window.frame().topLeft() + minimizeSwitch);
        QCOMPARE(kill(pid_t(victim.processId()), SIGKILL), 0);
        QVERIFY(victim.waitForExit());
        QCOMPARE(store().read(key).typeId(), QMetaType::Bool);
        QCOMPARE(store().read(u"buttonTheme"_s), u"graphite"_s);
    }
    QVERIFY(open({.environment = {{u"CV_TAB"_s, u"buttons"_s}}}));
    FIND(control, ATSPI_ROLE_CHECK_BOX, "Minimize button");
    QVERIFY(becomes(control, ATSPI_STATE_CHECKED, store().read(key).toBool()));
}

void TestAttack::valuesOfAnyTypeInAnyKeyAreLivedWith()
{
    const QVariantList values = {true, -1e308, u"[[[[[["_s, QString(200'000, u'x'), u"<b>%s%n$(id)\u202e"_s};
    const QStringList keys = {u"showMinimizeButton"_s, u"buttonTheme"_s,   u"buttonSizeOption"_s,
                              u"maximizeMode"_s,       u"layouts.gap"_s,   u"layouts.enabled"_s,
                              u"layouts.saved"_s,      u"agent.version"_s, u"agent.launchAtLogin"_s};
    QVERIFY(open({.environment = {{u"CV_TAB"_s, u"layouts"_s}}}));
    for (const QVariant &value : values) {
        for (const QString &key : keys)
            store().write(key, value);
        settle();
    }
    store().removeAll();
    store().write(u"layouts.enabled"_s, false);
    FIND(control, ATSPI_ROLE_CHECK_BOX, "Snap and arrange windows");
    QVERIFY(becomes(control, ATSPI_STATE_CHECKED, false));
}

CORVANE_TEST(TestAttack, runInCore)
#include "e2e_attack.moc"
