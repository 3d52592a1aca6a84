#include "Accessibility.h"
#include "AnimationClock.h"
#include "Colors.h"
#include "ContinuousRectangle.h"
#include "DemoButton.h"
#include "DemoView.h"
#include "EBKit.h"
#include "Spring.h"
#include "TestProgram.h"
#include "WindowFace.h"

#include <QAccessible>

#include <numbers>

using State = DemoModel::State;
using Task = DemoModel::Task;

namespace {

constexpr std::int64_t keyW = 13, keyM = 46, keyF = 3, keyA = 0;

/// Counts the presses that nothing above it takes.
class Background : public QQuickItem {
public:
    explicit Background(QQuickItem *parent) : QQuickItem(parent)
    {
        setAcceptedMouseButtons(Qt::LeftButton);
        setSize({600, 420});
        setZ(-1);
    }

    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
};

const QVariantMap allButtons = {{"showMinimizeButton", true}, {"showMaximizeButton", true}};

}

class TestMissionControl : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void whatAShortcutDidIsReadOut();
    void theGridIsTwoRowsOfThreeInTheMiddle();
    void everyPlaceShowsTheWindowOfItsId();
    void aWindowShowsItsTextsAndItsGlyph();

    void theHoveredWindowHasARing();
    void theRingDoesNotShineThroughTheButtons();
    void aWindowThatIsNotVisibleShowsNeitherRingNorButtons_data();
    void aWindowThatIsNotVisibleShowsNeitherRingNorButtons();
    void aMinimizedWindowMovesDownAndFades();
    void aClosedOrHiddenWindowFadesInItsPlace_data();
    void aClosedOrHiddenWindowFadesInItsPlace();
    void aFullScreenWindowSaysSo();
    void hoveredAndFullWindowsAreDrawnAboveTheirNeighbours();

    void theButtonsHangOverTheCorner_data();
    void theButtonsHangOverTheCorner();
    void theButtonsAreThoseOfTheStore_data();
    void theButtonsAreThoseOfTheStore();
    void aChangeOfTheStoreShowsAtOnce();
    void anUnknownThemeReadsAsClassic();
    void theyAreNotDrawnOverOtherWindows();

    void aShortcutMovesWithItsSpring();
    void resettingMovesWithASpringOfItsOwn();
    void aMoveThatIsTakenOverStartsFromWhereItIs();
    void theButtonsGrowFromTheirLeadingEdge();
    void theButtonsShrinkAndFadeAgain();
    void withReducedMotionNothingMoves();

    void thePointerHoversAndLeaves();
    void movingStraightOnKeepsTheNewHover();
    void thePlaceOfAWindowThatIsGoneIsNotHovered_data();
    void thePlaceOfAWindowThatIsGoneIsNotHovered();
    void onlyResettingBringsAWindowBack_data();
    void onlyResettingBringsAWindowBack();
    void aWindowThatComesBackUnderThePointerIsHovered();
    void aViewThatGoesIsLeft();
    void aDisabledViewIsNeitherHoveredNorHears();
    void theButtonsBeyondTheCornerKeepTheHover();
    void theButtonsCoverTheNeighbour();
    void clickingAButtonActsOnItsWindow_data();
    void clickingAButtonActsOnItsWindow();
    void clickingBesideAButtonDoesNothing();
    void anotherMouseButtonDoesNothing();
    void aPressOnAWindowDoesNotReachTheWindowAround();
    void aFingerHoversByTouching();
    void aFingerPressesTheButtons();
    void closingByTheButtonTakesTheButtonsAway();
    void thePointerDoesNotEnterAWindowWhoseButtonItPressed();

    void aShortcutActsOnTheHoveredWindow();
    void theControlKeyServesAsCommand();
    void aShortcutWithoutAHoverNudges();
    void aHeldKeyDoesNothingMoreAndIsSwallowed();
    void otherKeysGoTheirWay_data();
    void otherKeysGoTheirWay();
    void minimizingTheHoveredWindowMakesTheNextShortcutNudge();
    void keysAreHeardWhileItIsOnTheScreenOnly();

    void aWindowIsOneElementWithAHint();
    void theNameSaysThatItIsFullScreen();
    void itsActionsWorkWithoutTheButtons_data();
    void itsActionsWorkWithoutTheButtons();
    void whatIsNotVisibleIsAbsentFromAccessibility();

    void theKeyboardFocusHovers();
    void thePointerThatLeavesGivesTheHoverBackToTheFocus();
    void theFocusThatLeavesGivesTheHoverBackToThePointer();
    void aViewThatGoesGivesNothingBackToTheFocus();
    void aShortcutOverTheWindowThatWasClosedNudgesInSpiteOfAFocus();
    void theFocusShowsARing();
    void theFocusGoesOnWhenItsWindowIsGone();
    void everythingCanBePractisedByKeyboardAlone();

    void fromRightToLeftTheRowsTurnAndTheButtonsStay();

private:
    static DemoView *make(const QVariantMap &stored = {}, bool reduceMotion = true)
    {
        auto *view = new DemoView("HandsOnMissionControl", {}, 504, stored);
        view->platform.look.setReduceMotion(reduceMotion);
        return view;
    }
    static QQuickItem *cell(DemoView &view, int id) { return view.typed("DemoCell").at(id); }
    static WindowFace *face(DemoView &view, int id)
    {
        const auto found = view.all<WindowFace>(cell(view, id));
        return found.isEmpty() ? nullptr : found.constFirst();
    }
    /// What moves and fades as one: the window and all that belongs to it.
    static QQuickItem *body(DemoView &view, int id)
    {
        auto bodies = view.visibleItems(cell(view, id));
        bodies.removeIf([](const QQuickItem *item) { return item->objectName() != "body"; });
        return bodies.constFirst();
    }
    static FoundItems<DemoButton> buttons(DemoView &view, int id) { return view.all<DemoButton>(cell(view, id)); }
    static QStringList kinds(DemoView &view, int id)
    {
        QStringList kinds;
        for (const DemoButton *button : buttons(view, id))
            kinds.append(button->property("kind").toString());
        return kinds;
    }
    /// The buttons whose pixels are blended, as they must be at any size but their own.
    static QStringList blended(DemoView &view, int id)
    {
        QStringList kinds;
        for (const DemoButton *button : buttons(view, id)) {
            if (button->property("isScaled").toBool())
                kinds.append(button->property("kind").toString());
        }
        return kinds;
    }
    static QPointF middle(QQuickItem *item) { return {item->width() / 2, item->height() / 2}; }
    /// Whether a line of ink runs along the inside of the window's edge, away from the buttons.
    static bool hasRing(DemoView &view, int id)
    {
        const auto isInk = [&](QPointF at) { return isNear(view.pixel(cell(view, id), at), EBKit::ink().current()); };
        return isInk({64, 72.5}) && isInk({64, 73.5}) && !isInk({64, 71.5}) && isInk({127.5, 50});
    }
    static void hover(DemoView &view, int id) { view.point(cell(view, id), {64, 60}); }
    /// Null while the window is not there.
    static QAccessibleInterface *elementOrNone(DemoView &view, int id)
    {
        const auto controls = view.all<QQuickItem>(cell(view, id));
        for (QQuickItem *item : controls) {
            QAccessibleInterface *found = QAccessible::queryAccessibleInterface(item);
            if (found && found->role() == QAccessible::Grouping)
                return found;
        }
        return nullptr;
    }
    static QAccessibleInterface *element(DemoView &view, int id)
    {
        QAccessibleInterface *found = elementOrNone(view, id);
        REQUIRE(found);
        return found;
    }
    static State state(DemoView &view, int id) { return view.model().wins().at(id).state; }
};

void TestMissionControl::initTestCase()
{
    FakePlatform::install();
    installKitAccessibility();
    QAccessible::setActive(true);
}

void TestMissionControl::whatAShortcutDidIsReadOut()
{
    const std::unique_ptr<DemoView> view(make());
    view->model().enter(1);
    QVERIFY(view->press(keyW));
    QVERIFY(view->item("Sketches closed", QAccessible::Notification));
    QVERIFY(view->press(keyM));
    QVERIFY(view->item("Point at a window first.", QAccessible::Notification));
}

void TestMissionControl::theGridIsTwoRowsOfThreeInTheMiddle()
{
    const std::unique_ptr<DemoView> view(make());
    QCOMPARE(view->root().implicitWidth(), 14 + 3 * 128 + 2 * 12 + 14.0);
    QCOMPARE(view->root().height(), 4 + 74 + 12 + 74 + 14.0);
    const auto cells = view->typed("DemoCell");
    QCOMPARE(cells.size(), 6);
    for (int id = 0; id < 6; ++id) {
        const qreal left = (504 - (3 * 128 + 2 * 12)) / 2.0;
        QCOMPARE(view->rectOf(cells.at(id)), QRectF(left + id % 3 * (128 + 12), 4 + id / 3 * (74 + 12), 128, 74));
        QCOMPARE(view->rectOf(face(*view, id)), view->rectOf(cells.at(id)));
    }
    DemoView wide("HandsOnMissionControl");
    QCOMPARE(wide.root().width(), 600.0);
}

void TestMissionControl::everyPlaceShowsTheWindowOfItsId()
{
    const std::unique_ptr<DemoView> view(make());
    for (const DemoModel::Win &win : view->model().wins()) {
        QVERIFY2(view->textItem(win.app.toUpper(), cell(*view, win.id)), qPrintable(win.app));
        QVERIFY2(view->textItem(win.title, cell(*view, win.id)), qPrintable(win.title));
    }
}

void TestMissionControl::aWindowShowsItsTextsAndItsGlyph()
{
    const std::unique_ptr<DemoView> view(make());
    QVERIFY(face(*view, 3)->property("compact").toBool());
    QQuickItem *title = view->textItem("zsh", cell(*view, 3));
    QCOMPARE(title->property("font").value<QFont>().weight(), QFont::DemiBold);
    for (const DemoModel::Win &win : view->model().wins()) {
        QStringList glyphs;
        for (QQuickItem *item : view->visibleItems(cell(*view, win.id))) {
            if (item->inherits("Glyph"))
                glyphs.append(item->property("name").toString());
        }
        QCOMPARE(glyphs, QStringList(GlyphNames::rawValue(win.glyph)));
    }
}

void TestMissionControl::theHoveredWindowHasARing()
{
    const std::unique_ptr<DemoView> view(make());
    QVERIFY(!hasRing(*view, 4));
    view->model().enter(4);
    QVERIFY(hasRing(*view, 4));
    QVERIFY(!hasRing(*view, 3));
    view->platform.look.setName(AppearanceName::DarkAqua);
    QVERIFY(hasRing(*view, 4));
    view->model().leave(4);
    QVERIFY(!hasRing(*view, 4));
    view->model().apply(Hotkey::maximize, 4);
    view->model().enter(4);
    QVERIFY(hasRing(*view, 4));
    // Its corners follow those of the window.
    QVERIFY(!isNear(view->pixel(cell(*view, 4), {126.5, 72.5}), EBKit::ink().current()));
}

void TestMissionControl::theRingDoesNotShineThroughTheButtons()
{
    QVariantMap stored = allButtons;
    stored.insert("buttonTheme", "outline");
    const std::unique_ptr<DemoView> view(make(stored));
    view->model().enter(4);
    const QColor disc = view->pixel(buttons(*view, 4).at(1), {10, 5});
    // The ring passes below the bar of the second button, from one edge of its disc to the other.
    for (const qreal x : {4.5, 6.5, 10.5, 13.5, 15.5})
        QCOMPARE(view->pixel(buttons(*view, 4).at(1), {x, 13.5}), disc);
}

void TestMissionControl::aWindowThatIsNotVisibleShowsNeitherRingNorButtons_data()
{
    QTest::addColumn<Hotkey>("hotkey");
    QTest::newRow("closed") << Hotkey::close;
    QTest::newRow("minimized") << Hotkey::minimize;
    QTest::newRow("hidden") << Hotkey::hide;
}

void TestMissionControl::aWindowThatIsNotVisibleShowsNeitherRingNorButtons()
{
    QFETCH(const Hotkey, hotkey);
    const std::unique_ptr<DemoView> view(make(allButtons));
    view->model().apply(hotkey, 1);
    view->model().enter(1);
    QCOMPARE(view->model().hovered(), std::optional(1));
    QVERIFY(!hasRing(*view, 1));
    QVERIFY(buttons(*view, 1).isEmpty());
    QCOMPARE(cell(*view, 1)->z(), 1.0);
}

void TestMissionControl::aMinimizedWindowMovesDownAndFades()
{
    const std::unique_ptr<DemoView> view(make());
    view->model().apply(Hotkey::minimize, 1);
    QCOMPARE(body(*view, 1)->position(), QPointF(0, 120));
    QCOMPARE(body(*view, 1)->opacity(), 0.0);
    view->model().reset();
    QCOMPARE(body(*view, 1)->position(), QPointF(0, 0));
    QCOMPARE(body(*view, 1)->opacity(), 1.0);
}

void TestMissionControl::aClosedOrHiddenWindowFadesInItsPlace_data()
{
    QTest::addColumn<Hotkey>("hotkey");
    QTest::newRow("closed") << Hotkey::close;
    QTest::newRow("hidden") << Hotkey::hide;
}

void TestMissionControl::aClosedOrHiddenWindowFadesInItsPlace()
{
    QFETCH(const Hotkey, hotkey);
    const std::unique_ptr<DemoView> view(make());
    view->model().apply(hotkey, 1);
    QCOMPARE(body(*view, 1)->position(), QPointF(0, 0));
    QCOMPARE(body(*view, 1)->opacity(), 0.0);
    QCOMPARE(body(*view, 0)->opacity(), 1.0);
}

void TestMissionControl::aFullScreenWindowSaysSo()
{
    const std::unique_ptr<DemoView> view(make());
    QVERIFY(!view->textItem("Full screen"));
    view->model().apply(Hotkey::maximize, 2);
    QQuickItem *words = view->textItem("Full screen", cell(*view, 2));
    QVERIFY(words);
    QVERIFY(view->rectOf(cell(*view, 2)).contains(view->rectOf(words->parentItem())));
    QCOMPARE(view->rectOf(face(*view, 2)), view->rectOf(cell(*view, 2)));
    QCOMPARE(body(*view, 2)->opacity(), 1.0);
    view->model().apply(Hotkey::maximize, 2);
    QVERIFY(!view->textItem("Full screen"));
}

void TestMissionControl::hoveredAndFullWindowsAreDrawnAboveTheirNeighbours()
{
    const std::unique_ptr<DemoView> view(make());
    view->model().enter(4);
    view->model().apply(Hotkey::maximize, 0);
    QList<qreal> heights;
    for (QQuickItem *item : view->typed("DemoCell"))
        heights.append(item->z());
    QCOMPARE(heights, QList<qreal>({2, 1, 1, 1, 2, 1}));
}

void TestMissionControl::theButtonsHangOverTheCorner_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<QPointF>("offset");
    QTest::addColumn<qreal>("diameter");
    QTest::newRow("small") << "small" << QPointF(-11, -10) << 16.0;
    QTest::newRow("medium") << "medium" << QPointF(-13, -12) << 20.0;
    QTest::newRow("large") << "large" << QPointF(-15.8, -14.8) << 25.6;
    QTest::newRow("an unknown size") << "huge" << QPointF(-13, -12) << 20.0;
}

void TestMissionControl::theButtonsHangOverTheCorner()
{
    QFETCH(const QString, size);
    QFETCH(const QPointF, offset);
    QFETCH(const qreal, diameter);
    QVariantMap stored = allButtons;
    stored.insert("buttonSizeOption", size);
    const std::unique_ptr<DemoView> view(make(stored));
    view->model().enter(4);
    const auto shown = buttons(*view, 4);
    QCOMPARE(shown.size(), 3);
    for (DemoButton *button : shown)
        QCOMPARE(button->property("size").toReal(), diameter);
    const QRectF first = view->rectOf(shown.at(0), cell(*view, 4));
    QVERIFY(std::abs(first.left() - offset.x()) < 1e-9);
    QVERIFY(std::abs(first.top() - offset.y()) < 1e-9);
    for (int place : {1, 2}) {
        const qreal gap = view->rectOf(shown.at(place)).left() - view->rectOf(shown.at(place - 1)).right();
        QVERIFY2(std::abs(gap - 3) <= 0.5, qPrintable(QString::number(gap)));
    }
}

void TestMissionControl::theButtonsAreThoseOfTheStore_data()
{
    QTest::addColumn<QVariantMap>("stored");
    QTest::addColumn<QStringList>("kinds");
    QTest::newRow("nothing stored") << QVariantMap() << QStringList{"close"};
    QTest::newRow("minimize") << QVariantMap{{"showMinimizeButton", true}} << QStringList{"close", "minimize"};
    QTest::newRow("maximize") << QVariantMap{{"showMaximizeButton", true}} << QStringList{"close", "maximize"};
    QTest::newRow("both") << allButtons << QStringList{"close", "minimize", "maximize"};
}

void TestMissionControl::theButtonsAreThoseOfTheStore()
{
    QFETCH(const QVariantMap, stored);
    const std::unique_ptr<DemoView> view(make(stored));
    QVERIFY(view->all<DemoButton>().isEmpty());
    view->model().enter(2);
    QTEST(kinds(*view, 2), "kinds");
    QCOMPARE(view->all<DemoButton>().size(), kinds(*view, 2).size());
    for (const DemoButton *button : buttons(*view, 2)) {
        QCOMPARE(button->property("theme").toString(), "classic");
        QVERIFY(!button->property("dim").toBool());
    }
}

void TestMissionControl::aChangeOfTheStoreShowsAtOnce()
{
    const std::unique_ptr<DemoView> view(make());
    view->model().enter(2);
    view->store.setValue("buttonTheme", "graphite");
    view->store.setValue("buttonSizeOption", "large");
    view->store.setValue("showMaximizeButton", true);
    QCOMPARE(kinds(*view, 2), QStringList({"close", "maximize"}));
    for (const DemoButton *button : buttons(*view, 2)) {
        QCOMPARE(button->property("theme").toString(), "graphite");
        QCOMPARE(button->property("size").toReal(), 25.6);
    }
    // It only reads.
    QCOMPARE(view->store.values.size(), 3);
    QVERIFY(view->platform.notifications.posts.isEmpty());
}

void TestMissionControl::anUnknownThemeReadsAsClassic()
{
    const std::unique_ptr<DemoView> view(make({{"buttonTheme", "neon"}}));
    view->model().enter(2);
    DemoButton *close = buttons(*view, 2).constFirst();
    QVERIFY(isNear(view->pixel(close, {10, 4}), QColor("#EC4640")));
}

void TestMissionControl::theyAreNotDrawnOverOtherWindows()
{
    const std::unique_ptr<DemoView> view(make());
    view->model().enter(0);
    view->model().enter(1);
    QVERIFY(buttons(*view, 0).isEmpty());
    QCOMPARE(buttons(*view, 1).size(), 1);
}

void TestMissionControl::aShortcutMovesWithItsSpring()
{
    AnimationClock clock;
    const std::unique_ptr<DemoView> view(make({}, false));
    view->model().apply(Hotkey::minimize, 1);
    for (int time = 20; time <= 400; time += 20) {
        clock.advance(20);
        const qreal share = sprung(0.45, 0.78, time / 1000.0);
        QVERIFY2(std::abs(body(*view, 1)->y() - 120 * share) < 1, qPrintable(QString::number(time)));
        QVERIFY(std::abs(body(*view, 1)->opacity() - std::clamp(1 - share, 0.0, 1.0)) < 0.01);
    }
    clock.advance(2000);
    QCOMPARE(body(*view, 1)->y(), 120.0);
    QCOMPARE(body(*view, 1)->opacity(), 0.0);
}

void TestMissionControl::resettingMovesWithASpringOfItsOwn()
{
    AnimationClock clock;
    const std::unique_ptr<DemoView> view(make({}, true));
    view->model().apply(Hotkey::minimize, 1);
    view->platform.look.setReduceMotion(false);
    view->model().reset();
    for (int time = 20; time <= 400; time += 20) {
        clock.advance(20);
        const qreal expected = 120 * (1 - sprung(0.5, 0.8, time / 1000.0));
        QVERIFY2(std::abs(body(*view, 1)->y() - expected) < 1, qPrintable(QString::number(time)));
    }
    clock.advance(2000);
    QCOMPARE(body(*view, 1)->y(), 0.0);
}

void TestMissionControl::aMoveThatIsTakenOverStartsFromWhereItIs()
{
    AnimationClock clock;
    const std::unique_ptr<DemoView> view(make({}, false));
    view->model().apply(Hotkey::minimize, 1);
    clock.advance(120);
    const qreal reached = body(*view, 1)->y();
    QVERIFY(reached > 20 && reached < 110);
    view->model().reset();
    QCOMPARE(body(*view, 1)->y(), reached);
    clock.advance(20);
    QVERIFY(body(*view, 1)->y() < reached);
    QVERIFY(body(*view, 1)->y() > reached * 0.8);
    clock.advance(2000);
    QCOMPARE(body(*view, 1)->y(), 0.0);
}

void TestMissionControl::theButtonsGrowFromTheirLeadingEdge()
{
    AnimationClock clock;
    const std::unique_ptr<DemoView> view(make(allButtons, false));
    view->model().enter(4);
    for (int time = 20; time <= 300; time += 20) {
        clock.advance(20);
        const qreal share = sprung(0.45, 0.78, time / 1000.0);
        QQuickItem *cluster = buttons(*view, 4).constFirst()->parentItem();
        QVERIFY2(std::abs(cluster->scale() - (0.3 + 0.7 * share)) < 0.01, qPrintable(QString::number(time)));
        QVERIFY(std::abs(cluster->opacity() - std::clamp(share, 0.0, 1.0)) < 0.01);
        const QRectF shown = view->rectOf(cluster, cell(*view, 4));
        QVERIFY(std::abs(shown.left() + 13) < 1e-6);
        QVERIFY(std::abs(shown.center().y() + 2) < 1e-6);
        QCOMPARE(blended(*view, 4), QStringList({"close", "minimize", "maximize"}));
    }
    clock.advance(2000);
    QCOMPARE(buttons(*view, 4).constFirst()->parentItem()->scale(), 1.0);
    QCOMPARE(blended(*view, 4), QStringList());
}

void TestMissionControl::theButtonsShrinkAndFadeAgain()
{
    AnimationClock clock;
    const std::unique_ptr<DemoView> view(make({}, true));
    view->model().enter(4);
    view->platform.look.setReduceMotion(false);
    QQuickItem *cluster = buttons(*view, 4).constFirst()->parentItem();
    view->model().leave(4);
    clock.advance(60);
    QVERIFY(cluster->isVisible());
    const qreal share = 1 - sprung(0.45, 0.78, 0.06);
    QVERIFY(std::abs(cluster->scale() - (0.3 + 0.7 * share)) < 0.01);
    QVERIFY(std::abs(cluster->opacity() - share) < 0.01);
    clock.advance(2000);
    QVERIFY(!cluster->isVisible());
}

void TestMissionControl::withReducedMotionNothingMoves()
{
    const AnimationClock clock;
    const std::unique_ptr<DemoView> view(make());
    view->model().enter(0);
    QCOMPARE(buttons(*view, 0).constFirst()->parentItem()->scale(), 1.0);
    QVERIFY(hasRing(*view, 0));
    view->model().apply(Hotkey::minimize, 0);
    QCOMPARE(body(*view, 0)->y(), 120.0);
    QVERIFY(view->all<DemoButton>().isEmpty());
    view->model().reset();
    QCOMPARE(body(*view, 0)->y(), 0.0);
}

void TestMissionControl::thePointerHoversAndLeaves()
{
    const std::unique_ptr<DemoView> view(make());
    QVERIFY(!view->model().hovered());
    hover(*view, 3);
    QCOMPARE(view->model().hovered(), std::optional(3));
    QCOMPARE(view->model().done(), QSet{Task::hover});
    view->point(cell(*view, 3), {134, 37});
    QVERIFY(!view->model().hovered());
    hover(*view, 3);
    view->pointAway();
    QVERIFY(!view->model().hovered());
}

void TestMissionControl::movingStraightOnKeepsTheNewHover()
{
    const std::unique_ptr<DemoView> view(make());
    hover(*view, 2);
    hover(*view, 5);
    QCOMPARE(view->model().hovered(), std::optional(5));
    hover(*view, 0);
    QCOMPARE(view->model().hovered(), std::optional(0));
}

void TestMissionControl::thePlaceOfAWindowThatIsGoneIsNotHovered_data()
{
    QTest::addColumn<Hotkey>("hotkey");
    QTest::newRow("closed") << Hotkey::close;
    QTest::newRow("minimized") << Hotkey::minimize;
    QTest::newRow("hidden") << Hotkey::hide;
}

void TestMissionControl::thePlaceOfAWindowThatIsGoneIsNotHovered()
{
    QFETCH(const Hotkey, hotkey);
    const std::unique_ptr<DemoView> view(make());
    view->model().apply(hotkey, 2);
    hover(*view, 2);
    QVERIFY(!view->model().hovered());
    QVERIFY(!view->model().done().contains(Task::hover));
    view->click(cell(*view, 2), {64, 37});
    QVERIFY(!view->model().hovered());
    hover(*view, 1);
    QCOMPARE(view->model().hovered(), std::optional(1));
}

void TestMissionControl::onlyResettingBringsAWindowBack_data()
{
    QTest::addColumn<std::int64_t>("gone");
    QTest::addColumn<std::int64_t>("pressed");
    for (const std::int64_t gone : {keyW, keyM}) {
        for (const std::int64_t pressed : {keyW, keyM, keyF})
            QTest::addRow("%d then %d", int(gone), int(pressed)) << gone << pressed;
    }
}

void TestMissionControl::onlyResettingBringsAWindowBack()
{
    QFETCH(const std::int64_t, gone);
    QFETCH(const std::int64_t, pressed);
    const std::unique_ptr<DemoView> view(make());
    hover(*view, 0);
    view->press(gone);
    const QList<DemoModel::Win> wins = view->model().wins();
    const QSet<Task> done = view->model().done();
    // Both where the pointer stayed and where it comes back.
    for (const int nudges : {1, 2}) {
        QVERIFY(view->press(pressed));
        QCOMPARE(view->model().wins(), wins);
        QCOMPARE(view->model().done(), done);
        QCOMPARE(view->model().nudge(), nudges);
        view->pointAway();
        hover(*view, 0);
    }
    view->model().reset();
    QCOMPARE(state(*view, 0), State::normal);
}

void TestMissionControl::aWindowThatComesBackUnderThePointerIsHovered()
{
    const std::unique_ptr<DemoView> view(make());
    hover(*view, 2);
    view->press(keyW);
    QVERIFY(!view->model().hovered());
    view->model().reset();
    QCOMPARE(view->model().hovered(), std::optional(2));
}

void TestMissionControl::aViewThatGoesIsLeft()
{
    const std::unique_ptr<DemoView> view(make());
    hover(*view, 2);
    view->root().setVisible(false);
    QVERIFY(!view->model().hovered());
    view->root().setVisible(true);
    hover(*view, 3);
    QCOMPARE(view->model().hovered(), std::optional(3));
    view->discard();
    QVERIFY(!view->model().hovered());
}

void TestMissionControl::aDisabledViewIsNeitherHoveredNorHears()
{
    const std::unique_ptr<DemoView> view(make(allButtons));
    view->point(cell(*view, 4), {4, 4});
    QCOMPARE(view->model().hovered(), std::optional(4));
    view->root().setEnabled(false);
    QVERIFY(!view->model().hovered());
    hover(*view, 2);
    QVERIFY(!view->model().hovered());
    QVERIFY(!view->press(keyW));
    QCOMPARE(view->platform.keyMonitorCount(), 0);
    view->root().setEnabled(true);
    QCOMPARE(view->platform.keyMonitorCount(), 1);
    hover(*view, 3);
    QCOMPARE(view->model().hovered(), std::optional(3));
}

void TestMissionControl::theButtonsBeyondTheCornerKeepTheHover()
{
    const std::unique_ptr<DemoView> view(make(allButtons));
    view->point(cell(*view, 4), {4, 4});
    QCOMPARE(view->model().hovered(), std::optional(4));
    for (const QPointF at : {QPointF(-1, -1), QPointF(-11, -3), QPointF(40, -6), QPointF(20, 3), QPointF(60, 40)}) {
        view->point(cell(*view, 4), at);
        QVERIFY2(view->model().hovered() == std::optional(4), qPrintable(QString::number(at.x())));
    }
    view->point(cell(*view, 4), {-6, 40});
    QVERIFY(!view->model().hovered());
    // Without the buttons there is nothing beyond the corner.
    view->point(cell(*view, 4), {-6, -3});
    QVERIFY(!view->model().hovered());
}

void TestMissionControl::theButtonsCoverTheNeighbour()
{
    QVariantMap stored = allButtons;
    stored.insert("buttonSizeOption", "large");
    const std::unique_ptr<DemoView> view(make(stored));
    hover(*view, 4);
    // The large buttons reach 3.8 points into the window to the left and the one above.
    for (const QPointF at : {QPointF(-13.5, 4), QPointF(26, -13.5)}) {
        view->point(cell(*view, 4), at);
        QCOMPARE(view->model().hovered(), std::optional(4));
    }
    view->click(cell(*view, 4), {-13.5, 4});
    QCOMPARE(state(*view, 4), State::closed);
    QCOMPARE(state(*view, 3), State::normal);
}

void TestMissionControl::clickingAButtonActsOnItsWindow_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<State>("state");
    QTest::newRow("close") << 0 << State::closed;
    QTest::newRow("minimize") << 1 << State::minimized;
    QTest::newRow("maximize") << 2 << State::full;
}

void TestMissionControl::clickingAButtonActsOnItsWindow()
{
    QFETCH(const int, place);
    const std::unique_ptr<DemoView> view(make(allButtons));
    hover(*view, 4);
    QQuickItem *button = buttons(*view, 4).at(place);
    view->click(button, middle(button));
    QTEST(state(*view, 4), "state");
    for (int id : {0, 1, 2, 3, 5})
        QCOMPARE(state(*view, id), State::normal);
    QVERIFY(view->model().flash().has_value());
}

void TestMissionControl::clickingBesideAButtonDoesNothing()
{
    const std::unique_ptr<DemoView> view(make(allButtons));
    hover(*view, 4);
    QQuickItem *close = buttons(*view, 4).constFirst();
    view->click(close, {close->width() + 1.5, close->height() / 2});
    view->click(cell(*view, 4), {64, 50});
    QCOMPARE(view->window().activeFocusItem(), view->window().contentItem());
    QCOMPARE(state(*view, 4), State::normal);
    QVERIFY(!view->model().flash());
    // Let go elsewhere.
    view->point(close, middle(close));
    QTest::mousePress(&view->window(), Qt::LeftButton, {}, close->mapToScene(middle(close)).toPoint());
    view->pointAway();
    QTest::mouseRelease(&view->window(), Qt::LeftButton, {}, {590, 410});
    QCOMPARE(state(*view, 4), State::normal);
}

void TestMissionControl::anotherMouseButtonDoesNothing()
{
    const std::unique_ptr<DemoView> view(make(allButtons));
    hover(*view, 4);
    QQuickItem *close = buttons(*view, 4).constFirst();
    view->click(close, middle(close), Qt::RightButton);
    QCOMPARE(state(*view, 4), State::normal);
}

void TestMissionControl::aPressOnAWindowDoesNotReachTheWindowAround()
{
    const std::unique_ptr<DemoView> view(make());
    // A window that moves by its background has something like this below all.
    const Background around(view->window().contentItem());
    const auto reachesIt = [&](QPointF at) {
        const int before = around.presses;
        QTest::mouseClick(&view->window(), Qt::LeftButton, {}, cell(*view, 4)->mapToScene(at).toPoint());
        return around.presses > before;
    };
    QVERIFY(reachesIt({-3, -2}));
    for (const QPointF at : {QPointF(2, 40), QPointF(126, 72), QPointF(64, 37)})
        QVERIFY2(!reachesIt(at), qPrintable(QString::number(at.x())));
    hover(*view, 4);
    QVERIFY(!reachesIt({64, 50}));
    QCOMPARE(state(*view, 4), State::normal);
    // The buttons reach beyond it.
    QVERIFY(!reachesIt({-3, -2}));
    QCOMPARE(state(*view, 4), State::closed);
    QVERIFY(reachesIt({-3, -2}));
    const std::unique_ptr<QPointingDevice> finger(QTest::createTouchDevice());
    const int before = around.presses;
    const QPoint at = cell(*view, 5)->mapToScene({64, 37}).toPoint();
    QTest::touchEvent(&view->window(), finger.get()).press(0, at, &view->window());
    QTest::touchEvent(&view->window(), finger.get()).release(0, at, &view->window());
    QCOMPARE(around.presses, before);
}

void TestMissionControl::aFingerHoversByTouching()
{
    const std::unique_ptr<DemoView> view(make());
    const std::unique_ptr<QPointingDevice> finger(QTest::createTouchDevice());
    const auto tap = [&](int id) {
        const QPoint at = cell(*view, id)->mapToScene({64, 50}).toPoint();
        QTest::touchEvent(&view->window(), finger.get()).press(0, at, &view->window());
        QTest::touchEvent(&view->window(), finger.get()).release(0, at, &view->window());
    };
    tap(1);
    QCOMPARE(view->model().hovered(), std::optional(1));
    // The pointer's last place becomes the finger's when a picture is drawn.
    view->picture();
    QCoreApplication::processEvents();
    QCOMPARE(view->model().hovered(), std::optional(1));
    QCOMPARE(buttons(*view, 1).size(), 1);
    tap(5);
    QCOMPARE(view->model().hovered(), std::optional(5));
    QVERIFY(buttons(*view, 1).isEmpty());
    QCOMPARE(view->model().done(), QSet{Task::hover});
    QVERIFY(view->press(keyM));
    QCOMPARE(state(*view, 5), State::minimized);
    tap(5);
    QVERIFY(!view->model().hovered());
}

void TestMissionControl::aFingerPressesTheButtons()
{
    const std::unique_ptr<DemoView> view(make(allButtons));
    const std::unique_ptr<QPointingDevice> finger(QTest::createTouchDevice());
    const auto tap = [&](QPointF scene) {
        const QPoint at = scene.toPoint();
        QTest::touchEvent(&view->window(), finger.get()).press(0, at, &view->window());
        QTest::touchEvent(&view->window(), finger.get()).release(0, at, &view->window());
    };
    // Where the first button is going to be: a window shows its buttons before one of them can be pressed.
    tap(cell(*view, 4)->mapToScene({4, 4}));
    QCOMPARE(state(*view, 4), State::normal);
    view->picture();
    QCoreApplication::processEvents();
    QQuickItem *maximize = buttons(*view, 4).at(2);
    tap(maximize->mapToScene(middle(maximize)));
    QCOMPARE(state(*view, 4), State::full);
    QCOMPARE(view->model().hovered(), std::optional(4));
    QQuickItem *close = buttons(*view, 4).at(0);
    tap(close->mapToScene({2, 10}));
    QCOMPARE(state(*view, 4), State::closed);
    QVERIFY(!view->model().hovered());
}

void TestMissionControl::closingByTheButtonTakesTheButtonsAway()
{
    const std::unique_ptr<DemoView> view(make());
    hover(*view, 4);
    QQuickItem *close = buttons(*view, 4).constFirst();
    view->click(close, middle(close));
    QVERIFY(view->all<DemoButton>().isEmpty());
    QVERIFY(!view->model().hovered());
    // What has faded away takes no click.
    view->click(cell(*view, 4), {-3, -2});
    QCOMPARE(view->model().done(), QSet({Task::hover, Task::close}));
    view->model().reset();
    hover(*view, 4);
    QCOMPARE(view->model().hovered(), std::optional(4));
    view->pointAway();
    QVERIFY(!view->model().hovered());
}

void TestMissionControl::thePointerDoesNotEnterAWindowWhoseButtonItPressed()
{
    const std::unique_ptr<DemoView> view(make());
    // The part of Close that lies over the window.
    view->click(cell(*view, 4), {4, 4});
    QCOMPARE(state(*view, 4), State::closed);
    for (const QPointF at : {QPointF(6, 6), QPointF(40, 40)}) {
        view->point(cell(*view, 4), at);
        QVERIFY(!view->model().hovered());
    }
    view->press(keyM);
    QCOMPARE(state(*view, 4), State::closed);
    QCOMPARE(view->model().nudge(), 1);
}

void TestMissionControl::aShortcutActsOnTheHoveredWindow()
{
    const std::unique_ptr<DemoView> view(make());
    hover(*view, 3);
    QVERIFY(view->press(keyF));
    QCOMPARE(state(*view, 3), State::full);
    QCOMPARE(view->model().hovered(), std::optional(3));
    QVERIFY(view->press(keyF));
    QCOMPARE(state(*view, 3), State::normal);
    QVERIFY(view->press(keyW, Hotkeys::commandFlag | Hotkeys::optionFlag));
    QCOMPARE(state(*view, 3), State::closed);
    QCOMPARE(view->model().nudge(), 0);
}

void TestMissionControl::theControlKeyServesAsCommand()
{
    const std::unique_ptr<DemoView> view(make());
    hover(*view, 3);
    QVERIFY(view->press(keyF, Hotkeys::controlFlag));
    QCOMPARE(state(*view, 3), State::full);
    QVERIFY(view->press(keyW, Hotkeys::controlFlag | Hotkeys::optionFlag));
    QCOMPARE(state(*view, 3), State::closed);
    QCOMPARE(view->model().flash(), std::optional(Hotkey::closeAll));
}

void TestMissionControl::aShortcutWithoutAHoverNudges()
{
    const std::unique_ptr<DemoView> view(make());
    QVERIFY(view->press(keyW));
    QCOMPARE(view->model().nudge(), 1);
    QCOMPARE(view->model().flash(), std::optional(Hotkey::close));
    for (int id = 0; id < 6; ++id)
        QCOMPARE(state(*view, id), State::normal);
}

void TestMissionControl::aHeldKeyDoesNothingMoreAndIsSwallowed()
{
    const std::unique_ptr<DemoView> view(make());
    view->press(keyW);
    view->platform.queue.advance(1);
    for (int repeat = 0; repeat < 3; ++repeat)
        QVERIFY(view->press(keyW, Hotkeys::commandFlag, true));
    QCOMPARE(view->model().nudge(), 1);
    QVERIFY(!view->model().flash());
    hover(*view, 0);
    QVERIFY(view->press(keyM, Hotkeys::commandFlag, true));
    QCOMPARE(state(*view, 0), State::normal);
}

void TestMissionControl::otherKeysGoTheirWay_data()
{
    QTest::addColumn<std::int64_t>("keyCode");
    QTest::addColumn<std::uint64_t>("flags");
    QTest::newRow("a letter") << keyW << std::uint64_t(0);
    QTest::newRow("a letter with shift") << keyW << Hotkeys::shiftFlag;
    QTest::newRow("select all") << keyA << Hotkeys::commandFlag;
    QTest::newRow("one modifier too many") << keyM << (Hotkeys::commandFlag | Hotkeys::shiftFlag);
    QTest::newRow("control beside command") << keyW << (Hotkeys::commandFlag | Hotkeys::controlFlag);
    QTest::newRow("a key without a position") << std::int64_t(-1) << Hotkeys::commandFlag;
}

void TestMissionControl::otherKeysGoTheirWay()
{
    QFETCH(const std::int64_t, keyCode);
    QFETCH(const std::uint64_t, flags);
    const std::unique_ptr<DemoView> view(make());
    hover(*view, 0);
    QVERIFY(!view->press(keyCode, flags));
    QVERIFY(!view->press(keyCode, flags, true));
    QCOMPARE(state(*view, 0), State::normal);
    QVERIFY(!view->model().flash());
    QCOMPARE(view->model().nudge(), 0);
}

void TestMissionControl::minimizingTheHoveredWindowMakesTheNextShortcutNudge()
{
    const std::unique_ptr<DemoView> view(make(allButtons));
    hover(*view, 1);
    view->press(keyM);
    QVERIFY(!view->model().hovered());
    QVERIFY(view->all<DemoButton>().isEmpty());
    view->press(keyM);
    QCOMPARE(view->model().nudge(), 1);
    QCOMPARE(state(*view, 1), State::minimized);
}

void TestMissionControl::keysAreHeardWhileItIsOnTheScreenOnly()
{
    const std::unique_ptr<DemoView> view(make());
    const FakePlatform &platform = view->platform;
    QCOMPARE(platform.keyMonitorCount(), 1);
    view->root().setVisible(false);
    QCOMPARE(platform.keyMonitorCount(), 0);
    QVERIFY(!view->press(keyW));
    QCOMPARE(view->model().nudge(), 0);
    view->root().setVisible(true);
    QCOMPARE(platform.keyMonitorCount(), 1);
    view->window().hide();
    QCOMPARE(platform.keyMonitorCount(), 0);
    view->window().show();
    QTRY_COMPARE(platform.keyMonitorCount(), 1);
    view->root().setParentItem(nullptr);
    QCOMPARE(platform.keyMonitorCount(), 0);
    view->root().setParentItem(view->window().contentItem());
    QCOMPARE(platform.keyMonitorCount(), 1);
    view->discard();
    QCOMPARE(platform.keyMonitorCount(), 0);
}

void TestMissionControl::aWindowIsOneElementWithAHint()
{
    const std::unique_ptr<DemoView> view(make(allButtons));
    view->model().enter(5);
    const auto *docs = element(*view, 5);
    QVERIFY(docs);
    QCOMPARE(docs->text(QAccessible::Name), "Browser window, Docs");
    QCOMPARE(docs->text(QAccessible::Description), "Use the actions to close, minimize or full-screen it.");
    QCOMPARE(docs->childCount(), 0);
    QVERIFY(docs->state().focusable);
    const auto *window = QAccessible::queryAccessibleInterface(&view->window());
    QCOMPARE(window->childCount(), 6);
}

void TestMissionControl::theNameSaysThatItIsFullScreen()
{
    const std::unique_ptr<DemoView> view(make());
    view->model().apply(Hotkey::maximize, 5);
    QCOMPARE(element(*view, 5)->text(QAccessible::Name), "Browser window, Docs, full screen");
    QCOMPARE(element(*view, 0)->text(QAccessible::Name), "Browser window, Start page");
}

void TestMissionControl::itsActionsWorkWithoutTheButtons_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<State>("state");
    QTest::newRow("close") << "Close" << State::closed;
    QTest::newRow("minimize") << "Minimize" << State::minimized;
    QTest::newRow("full screen") << "Full screen" << State::full;
}

void TestMissionControl::itsActionsWorkWithoutTheButtons()
{
    QFETCH(const QString, action);
    const std::unique_ptr<DemoView> view(make());
    auto *actions = element(*view, 2)->actionInterface();
    QVERIFY(actions);
    QStringList names = actions->actionNames();
    names.removeAll(QAccessibleActionInterface::setFocusAction());
    QCOMPARE(names, QStringList({"Close", "Minimize", "Full screen"}));
    actions->doAction(action);
    QTEST(state(*view, 2), "state");
    QVERIFY(view->model().flash().has_value());
}

void TestMissionControl::whatIsNotVisibleIsAbsentFromAccessibility()
{
    const std::unique_ptr<DemoView> view(make());
    for (const Hotkey hotkey : {Hotkey::close, Hotkey::minimize, Hotkey::hide}) {
        view->model().apply(hotkey, 3);
        QVERIFY(!elementOrNone(*view, 3));
        view->model().reset();
        QVERIFY(elementOrNone(*view, 3));
    }
}

void TestMissionControl::theKeyboardFocusHovers()
{
    const std::unique_ptr<DemoView> view(make());
    for (int id = 0; id < 6; ++id) {
        QTest::keyClick(&view->window(), Qt::Key_Tab);
        QCOMPARE(view->model().hovered(), std::optional(id));
        QCOMPARE(buttons(*view, id).size(), 1);
    }
    QCOMPARE(view->model().done(), QSet{Task::hover});
    QTest::keyClick(&view->window(), Qt::Key_Backtab);
    QCOMPARE(view->model().hovered(), std::optional(4));
}

void TestMissionControl::thePointerThatLeavesGivesTheHoverBackToTheFocus()
{
    const std::unique_ptr<DemoView> view(make());
    QTest::keyClick(&view->window(), Qt::Key_Tab);
    hover(*view, 0);
    view->pointAway();
    QCOMPARE(view->model().hovered(), std::optional(0));
    hover(*view, 4);
    QCOMPARE(view->model().hovered(), std::optional(4));
    hover(*view, 5);
    QCOMPARE(view->model().hovered(), std::optional(5));
    view->pointAway();
    QCOMPARE(view->model().hovered(), std::optional(0));
    QVERIFY(view->press(keyM));
    QCOMPARE(state(*view, 0), State::minimized);
    hover(*view, 4);
    view->pointAway();
    QVERIFY(!view->model().hovered());
}

void TestMissionControl::theFocusThatLeavesGivesTheHoverBackToThePointer()
{
    const std::unique_ptr<DemoView> view(make());
    const auto takeTheFocusAway = [&] { view->root().forceActiveFocus(); };
    QTest::keyClick(&view->window(), Qt::Key_Tab);
    hover(*view, 0);
    takeTheFocusAway();
    QCOMPARE(view->model().hovered(), std::optional(0));
    QTest::keyClick(&view->window(), Qt::Key_Tab);
    QTest::keyClick(&view->window(), Qt::Key_Tab);
    QCOMPARE(view->model().hovered(), std::optional(1));
    takeTheFocusAway();
    QCOMPARE(view->model().hovered(), std::optional(0));
    view->pointAway();
    QVERIFY(!view->model().hovered());
    // Not when the window with the focus goes: the next shortcut must not meet another one.
    hover(*view, 4);
    QTest::keyClick(&view->window(), Qt::Key_Tab);
    QCOMPARE(view->model().hovered(), std::optional(0));
    view->press(keyM);
    QVERIFY(!view->model().hovered());
    view->press(keyM);
    QCOMPARE(view->model().nudge(), 1);
    QCOMPARE(state(*view, 4), State::normal);
}

void TestMissionControl::aViewThatGoesGivesNothingBackToTheFocus()
{
    const std::unique_ptr<DemoView> view(make());
    for (const char *property : {"enabled", "visible"}) {
        QTest::keyClick(&view->window(), Qt::Key_Tab);
        hover(*view, 4);
        view->root().setProperty(property, false);
        QVERIFY2(!view->model().hovered(), property);
        view->root().setProperty(property, true);
        view->pointAway();
    }
}

void TestMissionControl::aShortcutOverTheWindowThatWasClosedNudgesInSpiteOfAFocus()
{
    const std::unique_ptr<DemoView> view(make());
    QTest::keyClick(&view->window(), Qt::Key_Tab);
    hover(*view, 4);
    view->press(keyM);
    QVERIFY(!view->model().hovered());
    view->press(keyM);
    QCOMPARE(view->model().nudge(), 1);
    QCOMPARE(state(*view, 0), State::normal);
}

void TestMissionControl::theFocusShowsARing()
{
    const std::unique_ptr<DemoView> view(make());
    QVERIFY(view->typed("FocusRing").isEmpty());
    QTest::keyClick(&view->window(), Qt::Key_Tab);
    const auto rings = view->typed("FocusRing");
    QCOMPARE(rings.size(), 1);
    QCOMPARE(view->rectOf(rings.constFirst()), view->rectOf(cell(*view, 0)).adjusted(-4, -4, 4, 4));
}

void TestMissionControl::theFocusGoesOnWhenItsWindowIsGone()
{
    const std::unique_ptr<DemoView> view(make());
    QTest::keyClick(&view->window(), Qt::Key_Tab);
    QTest::keyClick(&view->window(), Qt::Key_Tab);
    view->press(keyW);
    QCOMPARE(state(*view, 1), State::closed);
    QVERIFY(!view->model().hovered());
    QVERIFY(view->typed("FocusRing").isEmpty());
    QTest::keyClick(&view->window(), Qt::Key_Tab);
    QCOMPARE(view->model().hovered(), std::optional(2));
    view->press(keyM);
    QTest::keyClick(&view->window(), Qt::Key_Backtab);
    QCOMPARE(view->model().hovered(), std::optional(0));
}

void TestMissionControl::everythingCanBePractisedByKeyboardAlone()
{
    const std::unique_ptr<DemoView> view(make());
    for (const std::int64_t key : {keyF, keyW}) {
        QTest::keyClick(&view->window(), Qt::Key_Tab);
        view->press(key);
    }
    QTest::keyClick(&view->window(), Qt::Key_Tab);
    view->press(keyM);
    QCOMPARE(view->model().done(), QSet({Task::hover, Task::close, Task::minimize, Task::fullscreen}));
}

void TestMissionControl::fromRightToLeftTheRowsTurnAndTheButtonsStay()
{
    const std::unique_ptr<DemoView> view(make());
    view->mirror();
    view->model().enter(0);
    QVERIFY(view->rectOf(cell(*view, 0)).left() > view->rectOf(cell(*view, 2)).right());
    QCOMPARE(view->rectOf(buttons(*view, 0).constFirst(), cell(*view, 0)).topLeft(), QPointF(-13, -12));
}

CORVANE_TEST(TestMissionControl, runInGui)
#include "tst_missioncontrol.moc"
