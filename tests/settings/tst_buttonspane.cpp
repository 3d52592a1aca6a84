#include "Accessibility.h"
#include "ButtonsPage.h"
#include "DemoButton.h"
#include "FakePlatform.h"
#include "Shared.h"
#include "TestProgram.h"
#include "ViewEngine.h"
#include "WindowFace.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QSignalSpy>

#include <memory>

namespace {

QList<QQuickItem *> visibleItems(QQuickItem *item)
{
    QList<QQuickItem *> found;
    if (!item->isVisible())
        return found;
    found.append(item);
    for (QQuickItem *child : item->childItems())
        found.append(visibleItems(child));
    return found;
}

}

class TestButtonsPane : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void thePageIsFoundByItsWords();
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
    QList<QQuickItem *> named(const QString &name);
    QQuickItem *control(const QString &name, QAccessible::Role role);
    bool isShown(const QString &text) { return !named(text).isEmpty(); }
    QAccessible::State state(const QString &name, QAccessible::Role role);
    bool isOn(const QString &name) { return state(name, QAccessible::CheckBox).checked; }
    bool isSegmentOn(const QString &name) { return state(name, QAccessible::RadioButton).checked; }
    bool isTileChosen(const QString &title) { return state(title + " look", QAccessible::Button).selected; }
    void press(QQuickItem *item);
    /// The buttons of the preview.
    QList<DemoButton *> previewed();
    QStringList commands() const;

    FakePlatform *m_platform = nullptr;
    FakeUserDefaults *m_store = nullptr;
    std::unique_ptr<ViewEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;
};

void TestButtonsPane::init()
{
    QTest::failOnWarning(QRegularExpression(".*"));
    installKitAccessibility();
    QAccessible::setActive(true);
    open({}, true);
}

void TestButtonsPane::open(const QVariantMap &stored, bool reduceMotion)
{
    m_platform = &FakePlatform::install();
    m_platform->look.setReduceMotion(reduceMotion);
    m_store = &m_platform->suite(Shared::suiteName);
    m_store->values = stored;
    m_engine = std::make_unique<ViewEngine>();
    m_window = std::make_unique<QQuickWindow>();
    m_window->resize(386, 560);
    auto *pane = ViewEngine::make(*m_engine, buttonsPage().content.toString());
    pane->setParent(m_window.get());
    pane->setParentItem(m_window->contentItem());
    m_window->show();
    m_window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestButtonsPane::cleanup()
{
    m_window.reset();
    m_engine.reset();
}

QList<QQuickItem *> TestButtonsPane::named(const QString &name)
{
    QList<QQuickItem *> found;
    for (QQuickItem *item : visibleItems(m_window->contentItem())) {
        const auto *accessible = QAccessible::queryAccessibleInterface(item);
        if (accessible && accessible->text(QAccessible::Name) == name)
            found.append(item);
    }
    return found;
}

QQuickItem *TestButtonsPane::control(const QString &name, QAccessible::Role role)
{
    for (QQuickItem *item : named(name)) {
        if (QAccessible::queryAccessibleInterface(item)->role() == role)
            return item;
    }
    qFatal("there is no \"%s\"", qPrintable(name));
}

QAccessible::State TestButtonsPane::state(const QString &name, QAccessible::Role role)
{
    return QAccessible::queryAccessibleInterface(control(name, role))->state();
}

void TestButtonsPane::press(QQuickItem *item)
{
    // What has just changed is laid out with the next frame.
    QSignalSpy frames(m_window.get(), &QQuickWindow::frameSwapped);
    m_window->update();
    QTRY_VERIFY(!frames.isEmpty());
    const QPointF middle = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, middle.toPoint());
}

QList<DemoButton *> TestButtonsPane::previewed()
{
    QList<DemoButton *> found;
    for (QQuickItem *item : visibleItems(named("Preview of the buttons").constFirst())) {
        if (auto *button = qobject_cast<DemoButton *>(item))
            found.append(button);
    }
    return found;
}

QStringList TestButtonsPane::commands() const
{
    QStringList found;
    for (const auto &post : std::as_const(m_platform->notifications.posts)) {
        // A command without a value has no other entry.
        found.append(post.name + ' ' + QStringList(post.userInfo.keys()).join(',') + ' '
                     + post.userInfo.value("command").toString());
    }
    return found;
}

static const QStringList onceApplySettings = {"com.vexmoor.corvane.command command applySettings"};

void TestButtonsPane::thePageIsFoundByItsWords()
{
    const EBSettingsPage page = buttonsPage();
    QCOMPARE(page.id, "buttons");
    QCOMPARE(page.title, "Buttons");
    QCOMPARE(page.glyph, GlyphName::wins);
    const QStringList keywords = {"look", "theme", "colour", "color", "size", "minimize", "full screen", "maximize"};
    QCOMPARE(page.keywords, keywords);
}

void TestButtonsPane::anEmptyStoreShowsTheDefaults()
{
    QVERIFY(isTileChosen("Classic"));
    QVERIFY(isShown("The familiar macOS red, yellow and green."));
    QVERIFY(isSegmentOn("Medium"));
    QVERIFY(!isOn("Minimize button"));
    QVERIFY(!isOn("Full screen button"));
    QVERIFY(isSegmentOn("Own Space"));
    QVERIFY(isShown("Next to Close, which is always there."));
    QVERIFY(isShown("For the full-screen button and ⌘F."));
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
    int windows = 0;
    for (QQuickItem *item : visibleItems(m_window->contentItem())) {
        if (!qobject_cast<WindowFace *>(item))
            continue;
        ++windows;
        QCOMPARE(item->size(), QSizeF(200, 112));
    }
    QCOMPARE(windows, 1);
}

void TestButtonsPane::thePageOpensWithoutMotion()
{
    cleanup();
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
        for (QQuickItem *item : named(name))
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
    press(control(title + " look", QAccessible::Button));
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
    m_platform->notifications.observe("com.vexmoor.corvane.command", this, [&](const QVariantMap &) {
        stored = {m_store->value("buttonTheme"), m_store->value("buttonSizeOption"),
                  m_store->value("showMinimizeButton"), m_store->value("showMaximizeButton")};
    });
    press(control("Soft look", QAccessible::Button));
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
    press(control("Classic look", QAccessible::Button));
    press(control("Medium", QAccessible::RadioButton));
    press(control("Own Space", QAccessible::RadioButton));
    const QVariantMap stored = {
        {"buttonTheme", "classic"}, {"buttonSizeOption", "medium"}, {"maximizeMode", "fullscreen"}};
    QCOMPARE(m_store->values, stored);
    QVERIFY(commands().isEmpty());
}

void TestButtonsPane::theArrowKeysChooseToo()
{
    control("Classic look", QAccessible::Button)->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(m_window.get(), Qt::Key_Right);
    QTest::keyClick(m_window.get(), Qt::Key_Right);
    QCOMPARE(m_store->value("buttonTheme"), QVariant("graphite"));
    QCOMPARE(m_window->activeFocusItem(), control("Graphite look", QAccessible::Button));
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
    cleanup();
    m_store->setValue("buttonTheme", "mono");
    m_store->setValue("showMinimizeButton", true);
    QVERIFY(commands().isEmpty());
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
    press(control("Classic look", QAccessible::Button));
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
    press(control("Classic look", QAccessible::Button));
    QCOMPARE(m_store->value("buttonTheme"), QVariant("classic"));
}

void TestButtonsPane::thereIsNoSwitchForClose()
{
    int switches = 0;
    for (QQuickItem *item : visibleItems(m_window->contentItem())) {
        const auto *accessible = QAccessible::queryAccessibleInterface(item);
        switches += accessible && accessible->role() == QAccessible::CheckBox ? 1 : 0;
    }
    QCOMPARE(switches, 2);
}

CORVANE_TEST(TestButtonsPane, runInGui)
#include "tst_buttonspane.moc"
