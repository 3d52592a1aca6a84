#include "AnimationClock.h"
#include "Colors.h"
#include "ContinuousRectangle.h"
#include "DemoView.h"
#include "EBKit.h"
#include "EBType.h"
#include "ShortcutVocabulary.h"
#include "TestProgram.h"

#include <QAccessible>

class TestShortcutChips : public QObject {
    Q_OBJECT

private slots:
    void everyShortcutHasItsKeysAndItsName_data();
    void everyShortcutHasItsKeysAndItsName();
    void whatIsNoShortcutHasNeither();

    void chipsStandInOrderTenPointsApart();
    void aChipIsACapAndANameFivePointsApart();
    void aLongKeyTextWidensItsCap();
    void textsAreSetInTheirRoles();
    void theChipOfTheFlashIsInverted();
    void onlyTheLaterOfTwoShortcutsIsLit();
    void theLightEasesInAndOut();
    void aChangeOfTheAppearanceShowsAtOnce();
    void aShortcutWithoutAChipLightsNothing();
    void anEmptyRowDrawsNothingAndShakesHarmlessly();
    void whatIsNoShortcutIsLeftOut();
    void theRowIsOneElementForAccessibility();
    void fromRightToLeftTheOrderTurns();

    void aNudgeShakesTheRow();
    void aNudgeDuringAShakeStartsFromWhereItIs();
    void withReducedMotionNothingMoves();
    void whetherItMovesIsAskedAtEachNudge();
    void whatItFindsWhenItIsMadeIsNoNudge();

private:
    static FoundItems<QQuickItem> chips(DemoView &view) { return view.typed("ShortcutChip"); }
    static ContinuousRectangle *cap(DemoView &view, QQuickItem *chip)
    {
        return view.all<ContinuousRectangle>(chip).constFirst();
    }
    static QColor color(QQuickItem *item) { return item->property("color").value<QColor>(); }
    /// The resting cap is a tint, the lit one is opaque.
    static bool isLit(DemoView &view, QQuickItem *chip)
    {
        return cap(view, chip)->property("color").value<QColor>().alphaF() > 0.5;
    }
    /// How far the row stands to the right of its place.
    static qreal offset(DemoView &view) { return view.root().property("offset").toReal(); }
};

static const QStringList practised = {"close", "minimize", "maximize"};

void TestShortcutChips::everyShortcutHasItsKeysAndItsName_data()
{
    QTest::addColumn<QString>("hotkey");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *hotkey, const char *keys, const char *name) {
        QTest::newRow(hotkey) << QString(hotkey) << QString(keys) << QString(name);
    };
    row("close", "⌘W", "Close");
    row("closeAll", "⌥⌘W", "Close all windows of the app");
    row("minimize", "⌘M", "Minimize");
    row("maximize", "⌘F", "Full screen");
    row("hide", "⌘H", "Hide app");
    row("hideOthers", "⌥⌘H", "Hide other apps");
    row("kill", "⌘Q", "Force-quit app");
}

void TestShortcutChips::everyShortcutHasItsKeysAndItsName()
{
    QFETCH(const QString, hotkey);
    QTEST(ShortcutVocabulary::keys(hotkey), "keys");
    QTEST(ShortcutVocabulary::name(hotkey), "name");
}

void TestShortcutChips::whatIsNoShortcutHasNeither()
{
    for (const char *text : {"", "Close", "nothing"}) {
        QVERIFY(ShortcutVocabulary::keys(text).isEmpty());
        QVERIFY(ShortcutVocabulary::name(text).isEmpty());
    }
}

void TestShortcutChips::chipsStandInOrderTenPointsApart()
{
    DemoView view("ShortcutChips", {{"shown", practised}});
    const auto all = chips(view);
    QCOMPARE(all.size(), 3);
    QStringList shown;
    for (qsizetype place = 0; place < all.size(); ++place) {
        shown.append(all.at(place)->property("hotkey").toString());
        if (place > 0)
            QCOMPARE(view.rectOf(all.at(place)).left() - view.rectOf(all.at(place - 1)).right(), 10.0);
        QCOMPARE(view.rectOf(all.at(place)).center().y(), view.rectOf(all.at(0)).center().y());
    }
    QCOMPARE(shown, practised);
    QCOMPARE(view.root().width(), view.rectOf(all.constLast()).right());
    QCOMPARE(view.root().height(), 20.0);
}

void TestShortcutChips::aChipIsACapAndANameFivePointsApart()
{
    DemoView view("ShortcutChips", {{"shown", practised}});
    QQuickItem *chip = chips(view).constFirst();
    const QRectF capRect = view.rectOf(cap(view, chip), chip);
    QQuickItem *keys = view.textItem("⌘W", chip);
    QVERIFY(keys);
    QCOMPARE(capRect.size(), QSizeF(std::max(30.0, keys->implicitWidth() + 12), 20));
    QCOMPARE(cap(view, chip)->property("radius").toReal(), 6.0);
    const QRectF nameRect = view.rectOf(view.textItem("Close", chip), chip);
    QCOMPARE(nameRect.left() - capRect.right(), 5.0);
    QVERIFY(std::abs(nameRect.center().y() - capRect.center().y()) <= 0.5);
    QVERIFY(std::abs(view.rectOf(keys, chip).center().x() - capRect.center().x()) <= 0.5);
}

void TestShortcutChips::aLongKeyTextWidensItsCap()
{
    DemoView view("ShortcutChips", {{"shown", QStringList{"hideOthers"}}});
    QQuickItem *chip = chips(view).constFirst();
    QQuickItem *keys = view.textItem("⌥⌘H", chip);
    QVERIFY(keys->implicitWidth() + 12 > 30);
    QCOMPARE(cap(view, chip)->width(), keys->implicitWidth() + 12);
}

void TestShortcutChips::textsAreSetInTheirRoles()
{
    DemoView view("ShortcutChips", {{"shown", practised}});
    const auto keys = view.textItem("⌘M")->property("font").value<QFont>();
    QCOMPARE(keys.pixelSize(), 12);
    QCOMPARE(keys.weight(), QFont::DemiBold);
    QCOMPARE(keys.letterSpacing(), 0.0);
    const auto name = view.textItem("Minimize")->property("font").value<QFont>();
    QCOMPARE(name.pixelSize(), 11);
    QCOMPARE(name.weight(), QFont::Normal);
    QCOMPARE(name.letterSpacing(), 0.0);
}

void TestShortcutChips::theChipOfTheFlashIsInverted()
{
    DemoView view("ShortcutChips", {{"shown", practised}});
    view.platform.look.setReduceMotion(true);
    QQuickItem *chip = chips(view).at(1);
    QQuickItem *keys = view.textItem("⌘M");
    QQuickItem *name = view.textItem("Minimize");
    for (const auto appearance : {AppearanceName::Aqua, AppearanceName::DarkAqua}) {
        view.platform.look.setName(appearance);
        QCOMPARE(cap(view, chip)->property("color").value<QColor>(), EBKit::chip().current());
        QVERIFY(isNear(color(keys), EBKit::ink().current(), 0));
        QVERIFY(isNear(color(name), EBKit::inkMuted().current(), 0));
        view.model().pulse(Hotkey::minimize);
        QCOMPARE(cap(view, chip)->property("color").value<QColor>(), EBKit::ink().current());
        QVERIFY(isNear(color(keys), EBKit::onInk().current(), 0));
        QVERIFY(isNear(color(name), EBKit::ink().current(), 0));
        view.platform.queue.advance(0.45);
    }
}

void TestShortcutChips::onlyTheLaterOfTwoShortcutsIsLit()
{
    DemoView view("ShortcutChips", {{"shown", practised}});
    view.platform.look.setReduceMotion(true);
    view.model().pulse(Hotkey::close);
    view.platform.queue.advance(0.2);
    view.model().pulse(Hotkey::maximize);
    QVERIFY(!isLit(view, chips(view).at(0)));
    QVERIFY(isLit(view, chips(view).at(2)));
    view.platform.queue.advance(0.449);
    QVERIFY(isLit(view, chips(view).at(2)));
    view.platform.queue.advance(0.001);
    QVERIFY(!isLit(view, chips(view).at(2)));
}

void TestShortcutChips::theLightEasesInAndOut()
{
    AnimationClock clock;
    DemoView view("ShortcutChips", {{"shown", practised}});
    ContinuousRectangle *first = cap(view, chips(view).constFirst());
    const QColor dark = first->property("color").value<QColor>();
    view.model().pulse(Hotkey::close);
    clock.advance(50);
    const qreal share = (first->property("color").value<QColor>().alphaF() - dark.alphaF()) / (1 - dark.alphaF());
    // Ease-out: faster than evenly at first.
    QVERIFY2(share > 50.0 / 150 && share < 0.9, qPrintable(QString::number(share)));
    clock.advance(99);
    QVERIFY(first->property("color").value<QColor>() != EBKit::ink().current());
    clock.advance(1);
    QCOMPARE(first->property("color").value<QColor>(), EBKit::ink().current());
    view.platform.queue.advance(0.45);
    clock.advance(149);
    QVERIFY(first->property("color").value<QColor>() != dark);
    clock.advance(1);
    QCOMPARE(first->property("color").value<QColor>(), dark);
}

void TestShortcutChips::aChangeOfTheAppearanceShowsAtOnce()
{
    const AnimationClock clock;
    DemoView view("ShortcutChips", {{"shown", practised}});
    view.platform.look.setName(AppearanceName::DarkAqua);
    QCOMPARE(cap(view, chips(view).constFirst())->property("color").value<QColor>(), EBKit::chip().current());
    QVERIFY(isNear(color(view.textItem("⌘W")), EBKit::ink().current(), 0));
}

void TestShortcutChips::aShortcutWithoutAChipLightsNothing()
{
    DemoView view("ShortcutChips", {{"shown", practised}});
    view.platform.look.setReduceMotion(true);
    view.model().apply(Hotkey::hide, 0);
    QCOMPARE(view.model().wins().at(0).state, DemoModel::State::hidden);
    for (QQuickItem *chip : chips(view))
        QVERIFY(!isLit(view, chip));
}

void TestShortcutChips::anEmptyRowDrawsNothingAndShakesHarmlessly()
{
    AnimationClock clock;
    DemoView view("ShortcutChips", {{"shown", QStringList()}});
    QVERIFY(chips(view).isEmpty());
    const QImage before = view.picture();
    view.model().press(Hotkey::close);
    clock.advance(50);
    QCOMPARE(offset(view), 6.0);
    QCOMPARE(view.picture(), before);
    const auto *element = QAccessible::queryAccessibleInterface(&view.root());
    QVERIFY(!element || element->text(QAccessible::Name).isEmpty());
}

void TestShortcutChips::whatIsNoShortcutIsLeftOut()
{
    DemoView view("ShortcutChips", {{"shown", QStringList{"close", "nothing", "", "kill"}}});
    QCOMPARE(chips(view).size(), 2);
}

void TestShortcutChips::theRowIsOneElementForAccessibility()
{
    QAccessible::setActive(true);
    DemoView view("ShortcutChips", {{"shown", QStringList{"close", "hideOthers"}}});
    const auto *element = QAccessible::queryAccessibleInterface(&view.root());
    QVERIFY(element);
    QCOMPARE(element->role(), QAccessible::StaticText);
    QCOMPARE(element->text(QAccessible::Name), "Ctrl+W, Close, Ctrl+Alt+H, Hide other apps");
    QCOMPARE(element->childCount(), 0);
}

void TestShortcutChips::fromRightToLeftTheOrderTurns()
{
    DemoView view("ShortcutChips", {{"shown", practised}});
    const auto all = chips(view);
    view.mirror();
    QVERIFY(view.rectOf(all.at(0)).left() > view.rectOf(all.at(1)).right());
}

void TestShortcutChips::aNudgeShakesTheRow()
{
    AnimationClock clock;
    DemoView view("ShortcutChips", {{"shown", practised}});
    const qreal place = view.rectOf(chips(view).constFirst()).left();
    view.model().press(Hotkey::close);
    // Five swings of 0.05 seconds, then still until 0.3, and back.
    const QList<std::pair<int, qreal>> course = {{25, 3}, {25, 6}, {25, 3}, {25, 0}, {50, 6}, {50, 0},
                                                 {25, 3}, {25, 6}, {25, 6}, {24, 6}, {26, 3}, {25, 0}};
    int time = 0;
    for (const auto &[milliseconds, expected] : course) {
        clock.advance(milliseconds);
        time += milliseconds;
        QVERIFY2(std::abs(offset(view) - expected) < 0.2,
                 qPrintable(QStringLiteral("%1 ms: %2").arg(time).arg(offset(view))));
        QCOMPARE(view.rectOf(chips(view).constFirst()).left(), place + offset(view));
    }
    QCOMPARE(offset(view), 0.0);
}

void TestShortcutChips::aNudgeDuringAShakeStartsFromWhereItIs()
{
    AnimationClock clock;
    DemoView view("ShortcutChips", {{"shown", practised}});
    view.model().press(Hotkey::close);
    clock.advance(75);
    QCOMPARE(offset(view), 3.0);
    view.model().press(Hotkey::close);
    QCOMPARE(offset(view), 3.0);
    clock.advance(25);
    QVERIFY(offset(view) >= 3 && offset(view) <= 6);
    clock.advance(1000);
    QCOMPARE(offset(view), 0.0);
}

void TestShortcutChips::withReducedMotionNothingMoves()
{
    DemoView view("ShortcutChips", {{"shown", practised}});
    view.platform.look.setReduceMotion(true);
    qreal furthest = 0;
    auto *inside = chips(view).constFirst()->parentItem()->parentItem();
    QObject::connect(inside, &QQuickItem::xChanged, this, [&] { furthest = std::max(furthest, inside->x()); });
    view.model().press(Hotkey::close);
    QCoreApplication::processEvents();
    QCOMPARE(view.model().nudge(), 1);
    QCOMPARE(furthest, 0.0);
    QCOMPARE(offset(view), 0.0);
}

void TestShortcutChips::whetherItMovesIsAskedAtEachNudge()
{
    FakePlatform &platform = FakePlatform::install();
    platform.look.setReduceMotion(true);
    AnimationClock clock;
    ViewEngine engine;
    DemoModel model;
    const std::unique_ptr<QQuickItem> chips(ViewEngine::make(
        engine, "qrc:/Corvane/Demo/ShortcutChips.qml", {{"model", QVariant::fromValue(&model)}, {"shown", practised}}));
    for (const bool isReduced : {false, true, false}) {
        platform.look.setReduceMotion(isReduced);
        model.press(Hotkey::close);
        QCOMPARE(chips->property("isShaking").toBool(), !isReduced);
        if (isReduced)
            continue;
        clock.advance(0);
        clock.advance(25);
        const qreal offset = chips->property("offset").toReal();
        QVERIFY2(std::abs(offset - 3) < 0.2, qPrintable(QString::number(offset)));
        clock.advance(1000);
        QCOMPARE(chips->property("offset").toReal(), 0.0);
    }
}

void TestShortcutChips::whatItFindsWhenItIsMadeIsNoNudge()
{
    DemoView first("ShortcutChips", {{"shown", practised}});
    first.model().press(Hotkey::close);
    ViewEngine engine;
    const std::unique_ptr<QQuickItem> again(
        ViewEngine::make(engine, "qrc:/Corvane/Demo/ShortcutChips.qml",
                         {{"model", QVariant::fromValue(&first.model())}, {"shown", practised}}));
    QVERIFY(!again->property("isShaking").toBool());
    first.model().press(Hotkey::close);
    QVERIFY(again->property("isShaking").toBool());
}

CORVANE_TEST(TestShortcutChips, runInGui)
#include "tst_shortcutchips.moc"
