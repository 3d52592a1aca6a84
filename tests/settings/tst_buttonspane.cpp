#include "Accessibility.h"
#include "ButtonsPage.h"
#include "DemoButton.h"
#include "PaneWindow.h"
#include "TestProgram.h"
#include "WindowFace.h"

#include <memory>

class TestButtonsPane : public QObject {
    Q_OBJECT

private slots:
    void init() { open({}, true); }
    void cleanup() { m_pane.reset(); }

    void anEmptyStoreShowsTheDefaults();
    void theStoreIsShownWhoeverWroteIt();
    void thePreviewIsAScaledWindow_data();
    void thePreviewIsAScaledWindow();
    void thePageOpensWithoutMotion();
    void theChoosersAreNamed();
    void choosingAThemeStoresItAndTellsTheAgent_data();
    void choosingAThemeStoresItAndTellsTheAgent();
    void choosingASizeStoresItAndTellsTheAgent_data();
    void choosingASizeStoresItAndTellsTheAgent();
    void flippingASwitchStoresItAndTellsTheAgent_data();
    void flippingASwitchStoresItAndTellsTheAgent();
    void choosingTheFullScreenModeTellsNobody();
    void everyChoiceIsToldOnceAndAfterItIsStored();
    void choosingWhatIsChosenAlreadyStoresItAndTellsNobody();
    void theArrowKeysChooseToo();
    void changesOfOthersAreAnnouncedToo();
    void onceThePageIsLeftNothingIsAnnounced();
    void anUnknownThemeShowsClassicAndIsKeptUntilATileIsPicked();
    void anUnknownSizeShowsMediumAndIsKept();
    void anUnknownFullScreenModeMarksNeitherSegment();
    void valuesOfAnotherTypeShowTheirDefaultsAndStay();
    void thereIsNoSwitchForClose();

private:
    void open(const QVariantMap &stored, bool reduceMotion);
    QQuickItem *control(const QString &name, QAccessible::Role role) { return m_pane->item(name, role); }
    bool isShown(const QString &text) { return m_pane->isShown(text); }
    bool isOn(const QString &name) { return m_pane->isChecked(name); }
    bool isSegmentOn(const QString &name) { return m_pane->isChecked(name, QAccessible::RadioButton); }
    bool isTileChosen(const QString &title) { return m_pane->state(title + " look", QAccessible::RadioButton).checked; }
    void press(QQuickItem *item) { m_pane->click(item); }
    /// The buttons of the preview.
    FoundItems<DemoButton> previewed()
    {
        return m_pane->all<DemoButton>(m_pane->item("Preview of the buttons", QAccessible::Graphic));
    }
    QStringList commands() const;

    std::unique_ptr<PaneWindow> m_pane;
    FakeUserDefaults *m_store = nullptr;
};

void TestButtonsPane::open(const QVariantMap &stored, bool reduceMotion)
{
    m_pane.reset();
    m_pane = std::make_unique<PaneWindow>(buttonsPage().content.toString(), stored, reduceMotion);
    m_store = &m_pane->store;
}

QStringList TestButtonsPane::commands() const
{
    QStringList found;
    for (const auto &post : m_pane->posts()) {
        // A command without a value has no other entry.
        found.append(post.name + ' ' + QStringList(post.userInfo.keys()).join(',') + ' '
                     + post.userInfo.value("command").toString());
    }
    return found;
}

static const QStringList onceApplySettings = {"com.vexmoor.corvane.command command applySettings"};

void TestButtonsPane::anEmptyStoreShowsTheDefaults()
{
    QVERIFY(isTileChosen("Classic"));
    QVERIFY(isShown("The familiar macOS red, yellow and green."));
    QVERIFY(isSegmentOn("Medium"));
    QVERIFY(!isOn("Minimize button"));
    QVERIFY(!isOn("Full screen button"));
    QVERIFY(isSegmentOn("Own Space"));
    QVERIFY(isShown("Next to Close, which is always there."));
    QVERIFY(isShown("For the full-screen button and Ctrl+F."));
    QCOMPARE(previewed().size(), 1);
    QCOMPARE(previewed().constFirst()->property("kind").toString(), "close");
    QVERIFY(m_store->values.isEmpty());
    QVERIFY(commands().isEmpty());
}

void TestButtonsPane::theStoreIsShownWhoeverWroteIt()
{
    m_store->setValue("buttonTheme", "graphite");
    m_store->setValue("buttonSizeOption", "small");
    m_store->setValue("showMinimizeButton", true);
    m_store->setValue("showMaximizeButton", true);
    m_store->setValue("maximizeMode", "fill");
    QVERIFY(isTileChosen("Graphite"));
    QVERIFY(!isTileChosen("Classic"));
    QVERIFY(isShown("Shades of grey. Tell them apart by shape."));
    QVERIFY(isSegmentOn("Small"));
    QVERIFY(!isSegmentOn("Medium"));
    QVERIFY(isOn("Minimize button"));
    QVERIFY(isOn("Full screen button"));
    QVERIFY(isSegmentOn("Fill Screen"));
    const auto buttons = previewed();
    QCOMPARE(buttons.size(), 3);
    for (const DemoButton *button : buttons)
        QCOMPARE(button->property("theme").toString(), "graphite");
}

void TestButtonsPane::thePreviewIsAScaledWindow_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<qreal>("diameter");
    QTest::newRow("small") << "small" << 23.0;
    QTest::newRow("medium") << "medium" << 28.75;
    QTest::newRow("large") << "large" << 36.8;
}

void TestButtonsPane::thePreviewIsAScaledWindow()
{
    QFETCH(const QString, size);
    m_store->setValue("buttonSizeOption", size);
    QTEST(previewed().constFirst()->property("size").toReal(), "diameter");
    const auto windows = m_pane->all<WindowFace>();
    QCOMPARE(windows.size(), 1);
    QCOMPARE(windows.constFirst()->size(), QSizeF(200, 112));
}

void TestButtonsPane::thePageOpensWithoutMotion()
{
    open({{"buttonSizeOption", "large"}, {"showMinimizeButton", true}, {"showMaximizeButton", true}}, false);
    QCOMPARE(previewed().size(), 3);
    for (const DemoButton *button : previewed()) {
        QCOMPARE(button->property("size").toReal(), 36.8);
        QCOMPARE(button->opacity(), 1.0);
    }
    QVERIFY(commands().isEmpty());
}

void TestButtonsPane::theChoosersAreNamed()
{
    for (const char *name : {"Size", "Full screen"}) {
        int groupings = 0;
        for (QQuickItem *item : m_pane->named(name))
            groupings += QAccessible::queryAccessibleInterface(item)->role() == QAccessible::Grouping;
        // The row, and the chooser in it.
        QCOMPARE(groupings, 2);
    }
}

void TestButtonsPane::choosingAThemeStoresItAndTellsTheAgent_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("description");
    QTest::newRow("soft") << "Soft"
                          << "soft"
                          << "The same colors, calmer and less bright.";
    QTest::newRow("graphite") << "Graphite"
                              << "graphite"
                              << "Shades of grey. Tell them apart by shape.";
    QTest::newRow("mono") << "Mono"
                          << "mono"
                          << "Pure black and white.";
    QTest::newRow("no color") << "No color"
                              << "outline"
                              << "Clear outlines, nothing colored.";
}

void TestButtonsPane::choosingAThemeStoresItAndTellsTheAgent()
{
    QFETCH(const QString, title);
    QFETCH(const QString, stored);
    QFETCH(const QString, description);
    press(control(title + " look", QAccessible::RadioButton));
    QCOMPARE(m_store->value("buttonTheme"), QVariant(stored));
    QCOMPARE(commands(), onceApplySettings);
    QVERIFY(isTileChosen(title));
    QVERIFY(isShown(description));
    QCOMPARE(previewed().constFirst()->property("theme").toString(), stored);
}

void TestButtonsPane::choosingASizeStoresItAndTellsTheAgent_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("stored");
    QTest::newRow("small") << "Small"
                           << "small";
    QTest::newRow("large") << "Large"
                           << "large";
}

void TestButtonsPane::choosingASizeStoresItAndTellsTheAgent()
{
    QFETCH(const QString, title);
    press(control(title, QAccessible::RadioButton));
    QTEST(m_store->value("buttonSizeOption").toString(), "stored");
    QCOMPARE(commands(), onceApplySettings);
    QVERIFY(isSegmentOn(title));
}

void TestButtonsPane::flippingASwitchStoresItAndTellsTheAgent_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("kind");
    QTest::newRow("minimize") << "Minimize button"
                              << "showMinimizeButton"
                              << "minimize";
    QTest::newRow("full screen") << "Full screen button"
                                 << "showMaximizeButton"
                                 << "maximize";
}

void TestButtonsPane::flippingASwitchStoresItAndTellsTheAgent()
{
    QFETCH(const QString, title);
    QFETCH(const QString, key);
    press(control(title, QAccessible::CheckBox));
    QCOMPARE(m_store->value(key), QVariant(true));
    QCOMPARE(commands(), onceApplySettings);
    QVERIFY(isOn(title));
    QCOMPARE(previewed().size(), 2);
    QTEST(previewed().constLast()->property("kind").toString(), "kind");

    press(control(title, QAccessible::CheckBox));
    QCOMPARE(m_store->value(key), QVariant(false));
    QCOMPARE(commands(), onceApplySettings + onceApplySettings);
    QCOMPARE(previewed().size(), 1);
}

void TestButtonsPane::choosingTheFullScreenModeTellsNobody()
{
    press(control("Fill Screen", QAccessible::RadioButton));
    QCOMPARE(m_store->value("maximizeMode"), QVariant("fill"));
    QVERIFY(isSegmentOn("Fill Screen"));
    press(control("Own Space", QAccessible::RadioButton));
    QCOMPARE(m_store->value("maximizeMode"), QVariant("fullscreen"));
    QVERIFY(commands().isEmpty());
}

void TestButtonsPane::everyChoiceIsToldOnceAndAfterItIsStored()
{
    QVariantList stored;
    m_pane->platform.notifications.observe("com.vexmoor.corvane.command", this, [&](const QVariantMap &) {
        stored = {m_store->value("buttonTheme"), m_store->value("buttonSizeOption"),
                  m_store->value("showMinimizeButton"), m_store->value("showMaximizeButton")};
    });
    press(control("Soft look", QAccessible::RadioButton));
    QCOMPARE(stored.at(0), QVariant("soft"));
    press(control("Large", QAccessible::RadioButton));
    QCOMPARE(stored.at(1), QVariant("large"));
    press(control("Minimize button", QAccessible::CheckBox));
    QCOMPARE(stored.at(2), QVariant(true));
    press(control("Full screen button", QAccessible::CheckBox));
    QCOMPARE(stored.at(3), QVariant(true));
    QCOMPARE(commands().size(), 4);
}

void TestButtonsPane::choosingWhatIsChosenAlreadyStoresItAndTellsNobody()
{
    press(control("Classic look", QAccessible::RadioButton));
    press(control("Medium", QAccessible::RadioButton));
    press(control("Own Space", QAccessible::RadioButton));
    const QVariantMap stored = {
        {"buttonTheme", "classic"}, {"buttonSizeOption", "medium"}, {"maximizeMode", "fullscreen"}};
    QCOMPARE(m_store->values, stored);
    QVERIFY(commands().isEmpty());
}

void TestButtonsPane::theArrowKeysChooseToo()
{
    control("Classic look", QAccessible::RadioButton)->forceActiveFocus(Qt::TabFocusReason);
    m_pane->pressKey(Qt::Key_Right);
    m_pane->pressKey(Qt::Key_Right);
    QCOMPARE(m_store->value("buttonTheme"), QVariant("graphite"));
    QCOMPARE(m_pane->focused(), "Graphite look");
    QCOMPARE(commands(), onceApplySettings + onceApplySettings);
}

void TestButtonsPane::changesOfOthersAreAnnouncedToo()
{
    m_store->setValue("buttonTheme", "mono");
    m_store->setValue("buttonSizeOption", "large");
    m_store->setValue("showMinimizeButton", true);
    m_store->setValue("showMaximizeButton", true);
    QCOMPARE(previewed().size(), 3);
    QCOMPARE(commands().size(), 4);
    m_store->setValue("maximizeMode", "fill");
    QCOMPARE(commands().size(), 4);
}

void TestButtonsPane::onceThePageIsLeftNothingIsAnnounced()
{
    const FakePlatform &platform = m_pane->platform;
    cleanup();
    m_store->setValue("buttonTheme", "mono");
    m_store->setValue("showMinimizeButton", true);
    QVERIFY(platform.notifications.posts.isEmpty());
}

void TestButtonsPane::anUnknownThemeShowsClassicAndIsKeptUntilATileIsPicked()
{
    m_store->setValue("buttonTheme", "neon");
    QVERIFY(isTileChosen("Classic"));
    QVERIFY(isShown("The familiar macOS red, yellow and green."));
    QCOMPARE(previewed().constFirst()->property("theme").toString(), "classic");
    QCOMPARE(m_store->value("buttonTheme"), QVariant("neon"));
    press(control("Large", QAccessible::RadioButton));
    QCOMPARE(m_store->value("buttonTheme"), QVariant("neon"));
    press(control("Classic look", QAccessible::RadioButton));
    QCOMPARE(m_store->value("buttonTheme"), QVariant("classic"));
    QCOMPARE(commands(), onceApplySettings + onceApplySettings + onceApplySettings);
}

void TestButtonsPane::anUnknownSizeShowsMediumAndIsKept()
{
    m_store->setValue("buttonSizeOption", "huge");
    QVERIFY(isSegmentOn("Medium"));
    QCOMPARE(previewed().constFirst()->property("size").toReal(), 28.75);
    QCOMPARE(m_store->value("buttonSizeOption"), QVariant("huge"));
    press(control("Medium", QAccessible::RadioButton));
    QCOMPARE(m_store->value("buttonSizeOption"), QVariant("medium"));
    QCOMPARE(commands(), onceApplySettings + onceApplySettings);
}

void TestButtonsPane::anUnknownFullScreenModeMarksNeitherSegment()
{
    m_store->setValue("maximizeMode", "half");
    QVERIFY(!isSegmentOn("Own Space"));
    QVERIFY(!isSegmentOn("Fill Screen"));
    QCOMPARE(m_store->value("maximizeMode"), QVariant("half"));
}

void TestButtonsPane::valuesOfAnotherTypeShowTheirDefaultsAndStay()
{
    m_store->setValue("buttonTheme", true);
    m_store->setValue("showMinimizeButton", "yes");
    QVERIFY(isTileChosen("Classic"));
    QVERIFY(!isOn("Minimize button"));
    QCOMPARE(m_store->value("buttonTheme"), QVariant(true));
    QCOMPARE(m_store->value("showMinimizeButton"), QVariant("yes"));
    press(control("Classic look", QAccessible::RadioButton));
    QCOMPARE(m_store->value("buttonTheme"), QVariant("classic"));
}

void TestButtonsPane::thereIsNoSwitchForClose()
{
    int switches = 0;
    for (QQuickItem *item : m_pane->visibleItems()) {
        const auto *accessible = QAccessible::queryAccessibleInterface(item);
        switches += accessible && accessible->role() == QAccessible::CheckBox ? 1 : 0;
    }
    QCOMPARE(switches, 2);
}

CORVANE_TEST(TestButtonsPane, runInGui)
#include "tst_buttonspane.moc"
