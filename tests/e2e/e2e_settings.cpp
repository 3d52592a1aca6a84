#include "EndToEndTest.h"
#include "TestProgram.h"

#include <X11/keysym.h>

using namespace Qt::StringLiterals;

namespace {

/// A setting that is on or off.
struct Switch {
    QString name;
    QString key;
    bool initial;
    /// What is stored while the switch is on.
    bool onValue;
};

/// One of several values of a setting, which is not its default.
struct Choice {
    QString name;
    QString key;
    QVariant value;
    AtspiRole role = ATSPI_ROLE_RADIO_BUTTON;
};

struct Page {
    QList<Switch> switches;
    QList<Choice> choices;
    /// The keys of which the agent is told.
    QStringList told;
};

const QMap<QString, Page> pages = {
    {u"buttons"_s,
     {{{u"Minimize button"_s, u"showMinimizeButton"_s, false, true},
       {u"Full screen button"_s, u"showMaximizeButton"_s, false, true}},
      {{u"Soft look"_s, u"buttonTheme"_s, u"soft"_s, ATSPI_ROLE_RADIO_BUTTON},
       {u"Graphite look"_s, u"buttonTheme"_s, u"graphite"_s, ATSPI_ROLE_RADIO_BUTTON},
       {u"Mono look"_s, u"buttonTheme"_s, u"mono"_s, ATSPI_ROLE_RADIO_BUTTON},
       {u"No color look"_s, u"buttonTheme"_s, u"outline"_s, ATSPI_ROLE_RADIO_BUTTON},
       {u"Small"_s, u"buttonSizeOption"_s, u"small"_s},
       {u"Large"_s, u"buttonSizeOption"_s, u"large"_s},
       {u"Fill Screen"_s, u"maximizeMode"_s, u"fill"_s}},
      {u"showMinimizeButton"_s, u"showMaximizeButton"_s, u"buttonTheme"_s, u"buttonSizeOption"_s}}},
    {u"shortcuts"_s,
     {{{u"Close window"_s, u"hotkey.close.disabled"_s, true, false},
       {u"Close all windows of the app"_s, u"hotkey.closeAll.disabled"_s, true, false},
       {u"Minimize window"_s, u"hotkey.minimize.disabled"_s, true, false},
       {u"Full screen / maximize window"_s, u"hotkey.maximize.disabled"_s, true, false},
       {u"Hide app"_s, u"hotkey.hide.disabled"_s, true, false},
       {u"Hide other apps"_s, u"hotkey.hideOthers.disabled"_s, true, false},
       {u"Force-quit app"_s, u"hotkey.kill.disabled"_s, true, false}},
      {},
      {}}},
    {u"layouts"_s,
     {{{u"Layouts shelf"_s, u"layouts.shelf"_s, true, true},
       {u"Open apps that aren't running"_s, u"layouts.launchApps"_s, true, true},
       {u"Snap and arrange windows"_s, u"layouts.enabled"_s, true, true}},
      {{u"Large"_s, u"layouts.gap"_s, 12.0}},
      {}}},
};

}

/// Every setting of the Buttons, Shortcuts and Layouts pages in the running program, both ways: the store's value
/// shows, and acting on the control stores it, with as many commands as the setting asks for.
class TestSettings : public EndToEndTest {
    Q_OBJECT

private slots:
    void aPagesSettingsShowAndAreStored_data();
    void aPagesSettingsShowAndAreStored();
    void renamingAndDeletingRewriteTheSavedLayouts();
    void rowsThatDependOnSnappingAreDisabled();

private:
    bool openPage(const QString &page) { return open({.environment = {{u"CV_TAB"_s, page}}}); }
    void aSwitchShowsAndStores(const Switch &setting, int told);
    void aChoiceShowsAndStores(const Choice &choice, int told);
    /// The key has that value, no other has changed, and as many commands were posted meanwhile.
    void expect(const QString &key, const QVariant &value, int told);

    QVariantMap m_stored;
    qsizetype m_heard = 0;
};

void TestSettings::aPagesSettingsShowAndAreStored_data()
{
    QTest::addColumn<QString>("page");
    for (const QString &page : pages.keys())
        QTest::newRow(qPrintable(page)) << page;
}

void TestSettings::aPagesSettingsShowAndAreStored()
{
    QFETCH(QString, page);
    m_stored.clear();
    m_heard = 0;
    QVERIFY(openPage(page));
    const Accessible entry = find(ATSPI_ROLE_LIST_ITEM, page.first(1).toUpper() + page.sliced(1));
    QVERIFY(entry);
    QVERIFY(entry.has(ATSPI_STATE_SELECTED));
    for (const Switch &setting : pages[page].switches) {
        qInfo("%s", qPrintable(setting.name));
        aSwitchShowsAndStores(setting, pages[page].told.contains(setting.key));
    }
    for (const Choice &choice : pages[page].choices) {
        qInfo("%s", qPrintable(choice.name));
        aChoiceShowsAndStores(choice, pages[page].told.contains(choice.key));
    }
}

void TestSettings::expect(const QString &key, const QVariant &value, int told)
{
    settle();
    m_stored.insert(key, value);
    m_heard += told;
    REQUIRE_SOON(store().readAll() == m_stored);
    REQUIRE_SOON(commands().heard().size() == m_heard);
}

void TestSettings::aSwitchShowsAndStores(const Switch &setting, int told)
{
    const Accessible control = find(ATSPI_ROLE_CHECK_BOX, setting.name);
    REQUIRE(control);
    REQUIRE(control.has(ATSPI_STATE_CHECKED) == setting.initial);

    REQUIRE(control.doAction(u"Toggle"_s));
    REQUIRE(becomes(control, ATSPI_STATE_CHECKED, !setting.initial));
    expect(setting.key, setting.initial ? !setting.onValue : setting.onValue, told);

    store().write(setting.key, setting.initial ? setting.onValue : !setting.onValue);
    REQUIRE(becomes(control, ATSPI_STATE_CHECKED, setting.initial));
    // A change is announced whoever made it.
    expect(setting.key, setting.initial ? setting.onValue : !setting.onValue, told);
}

void TestSettings::aChoiceShowsAndStores(const Choice &choice, int told)
{
    const AtspiStateType chosen = choice.role == ATSPI_ROLE_RADIO_BUTTON ? ATSPI_STATE_CHECKED : ATSPI_STATE_SELECTED;
    const Accessible control = find(choice.role, choice.name);
    REQUIRE(control);
    REQUIRE(!control.has(chosen));

    REQUIRE(control.doAction(u"Press"_s));
    REQUIRE(becomes(control, chosen));
    expect(choice.key, choice.value, told);

    // An unknown value shows the default, and stays.
    const QVariant unknown = choice.value.typeId() == QMetaType::QString ? QVariant(u"neon"_s) : QVariant(7.0);
    store().write(choice.key, unknown);
    REQUIRE(becomes(control, chosen, false));
    expect(choice.key, unknown, told);
}

void TestSettings::renamingAndDeletingRewriteTheSavedLayouts()
{
    const QString work = u"{\"created\":1,\"id\":\"11111111-1111-4111-8111-111111111111\",\"name\":\"Work\","
                         "\"windows\":[]}"_s;
    const QString play = u"{\"created\":2,\"id\":\"22222222-2222-4222-8222-222222222222\",\"name\":\"Play\","
                         "\"windows\":[]}"_s;
    const auto list = [](const QStringList &layouts) -> QString { return u'[' + layouts.join(u',') + u']'; };
    const auto stored = [this] { return store().readAll().value(u"layouts.saved"_s).toString(); };
    store().write(u"layouts.saved"_s, list({work, play}));
    QVERIFY(openPage(u"layouts"_s));
    QTRY_VERIFY(window()->hasInputFocus());

    FIND(field, ATSPI_ROLE_TEXT, "Name of layout 2");
    pointer().click(field.extents().center());
    QVERIFY(becomes(field, ATSPI_STATE_FOCUSED));
    keyboard().press(XK_a, {XK_Control_L});
    keyboard().type(u"My Games"_s);
    FIND(save, ATSPI_ROLE_PUSH_BUTTON, "Save name");
    QCOMPARE(stored(), list({work, play}));
    keyboard().press(XK_Return);
    QVERIFY(disappears(ATSPI_ROLE_PUSH_BUTTON, u"Save name"_s));
    settle();
    const QString games = QString(play).replace(u"Play"_s, u"My Games"_s);
    QCOMPARE(stored(), list({work, games}));

    FIND(button, ATSPI_ROLE_PUSH_BUTTON, "Delete Work");
    QVERIFY(button.doAction(u"Press"_s));
    QVERIFY(disappears(ATSPI_ROLE_PUSH_BUTTON, u"Delete Work"_s));
    settle();
    QCOMPARE(stored(), list({games}));
    QVERIFY(find(ATSPI_ROLE_NOTIFICATION, u"Deleted “Work”."_s));
    FIND(undo, ATSPI_ROLE_PUSH_BUTTON, "Undo");
    QVERIFY(undo.doAction(u"Press"_s));
    QVERIFY(disappears(ATSPI_ROLE_PUSH_BUTTON, u"Undo"_s));
    settle();
    QCOMPARE(stored(), list({work, games}));
    QVERIFY(find(ATSPI_ROLE_PUSH_BUTTON, u"Delete Work"_s));
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
