#include "EndToEndTest.h"
#include "TestProgram.h"

using namespace Qt::StringLiterals;

/// Every setting of the Buttons, Shortcuts and Layouts pages in the running program, both ways: the store's value
/// shows, and acting on the control stores it, with as many commands as the setting asks for.
class TestSettings : public EndToEndTest {
    Q_OBJECT

private slots:
    void aSwitchShowsAndStores_data();
    void aSwitchShowsAndStores();
    void aChoiceShowsAndStores_data();
    void aChoiceShowsAndStores();
    void renamingAndDeletingRewriteTheSavedLayouts();
    void rowsThatDependOnSnappingAreDisabled();

private:
    bool openPage(const QString &page) { return open({.environment = {{u"CV_TAB"_s, page}}}); }
};

void TestSettings::aSwitchShowsAndStores_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("initial");
    /// What is stored while the switch is on.
    QTest::addColumn<bool>("onValue");
    QTest::addColumn<int>("told");
    const auto row = [](const char *page, const char *name, const char *key, bool initial, bool onValue, int told) {
        QTest::newRow(name) << QString::fromLatin1(page) << QString::fromLatin1(name) << QString::fromLatin1(key)
                            << initial << onValue << told;
    };
    row("buttons", "Minimize button", "showMinimizeButton", false, true, 1);
    row("buttons", "Full screen button", "showMaximizeButton", false, true, 1);
    row("shortcuts", "Close window", "hotkey.close.disabled", true, false, 0);
    row("shortcuts", "Close all windows of the app", "hotkey.closeAll.disabled", true, false, 0);
    row("shortcuts", "Minimize window", "hotkey.minimize.disabled", true, false, 0);
    row("shortcuts", "Full screen / maximize window", "hotkey.maximize.disabled", true, false, 0);
    row("shortcuts", "Hide app", "hotkey.hide.disabled", true, false, 0);
    row("shortcuts", "Hide other apps", "hotkey.hideOthers.disabled", true, false, 0);
    row("shortcuts", "Force-quit app", "hotkey.kill.disabled", true, false, 0);
    row("layouts", "Layouts shelf", "layouts.shelf", true, true, 0);
    row("layouts", "Open apps that aren't running", "layouts.launchApps", true, true, 0);
    row("layouts", "Snap and arrange windows", "layouts.enabled", true, true, 0);
}

void TestSettings::aSwitchShowsAndStores()
{
    QFETCH(QString, page);
    QFETCH(QString, name);
    QFETCH(QString, key);
    QFETCH(bool, initial);
    QFETCH(bool, onValue);
    QFETCH(int, told);
    QVERIFY(openPage(page));
    const Accessible control = find(ATSPI_ROLE_CHECK_BOX, name);
    QVERIFY(control);
    QCOMPARE(control.has(ATSPI_STATE_CHECKED), initial);

    QVERIFY(control.doAction(u"Toggle"_s));
    QVERIFY(becomes(control, ATSPI_STATE_CHECKED, !initial));
    settle();
    const bool stored = initial ? !onValue : onValue;
    const QVariantMap expected = {{key, stored}};
    QCOMPARE(store().readAll(), expected);
    QCOMPARE(commands().heard().size(), told);

    store().write(key, !stored);
    QVERIFY(becomes(control, ATSPI_STATE_CHECKED, initial));
    settle();
    // A change is announced whoever made it.
    QCOMPARE(commands().heard().size(), 2 * told);
}

void TestSettings::aChoiceShowsAndStores_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<int>("role");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("told");
    const auto row = [](const char *page, const char *name, const char *key, const QVariant &value, int told,
                        AtspiRole role = ATSPI_ROLE_RADIO_BUTTON) {
        QTest::newRow(name) << QString::fromLatin1(page) << int(role) << QString::fromLatin1(name)
                            << QString::fromLatin1(key) << value << told;
    };
    row("buttons", "Soft look", "buttonTheme", u"soft"_s, 1, ATSPI_ROLE_PUSH_BUTTON);
    row("buttons", "Graphite look", "buttonTheme", u"graphite"_s, 1, ATSPI_ROLE_PUSH_BUTTON);
    row("buttons", "Mono look", "buttonTheme", u"mono"_s, 1, ATSPI_ROLE_PUSH_BUTTON);
    row("buttons", "No color look", "buttonTheme", u"outline"_s, 1, ATSPI_ROLE_PUSH_BUTTON);
    row("buttons", "Small", "buttonSizeOption", u"small"_s, 1);
    row("buttons", "Large", "buttonSizeOption", u"large"_s, 1);
    row("buttons", "Fill Screen", "maximizeMode", u"fill"_s, 0);
    row("layouts", "Large", "layouts.gap", 12.0, 0);
}

void TestSettings::aChoiceShowsAndStores()
{
    QFETCH(QString, page);
    QFETCH(int, role);
    QFETCH(QString, name);
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(int, told);
    const AtspiStateType chosen = role == ATSPI_ROLE_RADIO_BUTTON ? ATSPI_STATE_CHECKED : ATSPI_STATE_SELECTED;
    QVERIFY(openPage(page));
    const Accessible control = find(AtspiRole(role), name);
    QVERIFY(control);
    QVERIFY(!control.has(chosen));

    QVERIFY(control.doAction(u"Press"_s));
    QVERIFY(becomes(control, chosen));
    settle();
    const QVariantMap expected = {{key, value}};
    QCOMPARE(store().readAll(), expected);
    QCOMPARE(commands().heard().size(), told);

    // An unknown value shows the default, and stays.
    const QVariant unknown = value.typeId() == QMetaType::QString ? QVariant(u"neon"_s) : QVariant(7.0);
    store().write(key, unknown);
    QVERIFY(becomes(control, chosen, false));
    settle();
    QCOMPARE(store().readAll().value(key), unknown);
    QCOMPARE(commands().heard().size(), 2 * told);
}

void TestSettings::renamingAndDeletingRewriteTheSavedLayouts()
{
    const QString stored = u"[{\"created\":1,\"id\":\"11111111-1111-4111-8111-111111111111\",\"name\":\"Work\","
                           "\"windows\":[]},{\"created\":2,\"id\":\"22222222-2222-4222-8222-222222222222\","
                           "\"name\":\"Play\",\"windows\":[]}]"_s;
    store().write(u"layouts.saved"_s, stored);
    QVERIFY(openPage(u"layouts"_s));
    const Accessible button = find(ATSPI_ROLE_PUSH_BUTTON, u"Delete Work"_s);
    QVERIFY(button);
    QVERIFY(button.doAction(u"Press"_s));
    QVERIFY(disappears(ATSPI_ROLE_PUSH_BUTTON, u"Delete Work"_s));
    settle();
    const QString left = u"[{\"created\":2,\"id\":\"22222222-2222-4222-8222-222222222222\",\"name\":\"Play\","
                         "\"windows\":[]}]"_s;
    QCOMPARE(store().readAll().value(u"layouts.saved"_s).toString(), left);
    QVERIFY(find(ATSPI_ROLE_PUSH_BUTTON, u"Delete Play"_s));
    QCOMPARE(commands().heard().size(), 0);
}

void TestSettings::rowsThatDependOnSnappingAreDisabled()
{
    store().write(u"layouts.enabled"_s, false);
    QVERIFY(openPage(u"layouts"_s));
    const Accessible shelf = find(ATSPI_ROLE_CHECK_BOX, u"Layouts shelf"_s);
    QVERIFY(shelf);
    QVERIFY(becomes(shelf, ATSPI_STATE_ENABLED, false));
    store().write(u"layouts.enabled"_s, true);
    QVERIFY(becomes(shelf, ATSPI_STATE_ENABLED));
}

CORVANE_TEST(TestSettings, runInCore)
#include "e2e_settings.moc"
