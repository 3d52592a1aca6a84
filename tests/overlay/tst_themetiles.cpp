#include "ContinuousRectangle.h"
#include "DemoButton.h"
#include "EBEnvironment.h"
#include "EBKit.h"
#include "NamedItems.h"
#include "OverlayView.h"
#include "TestProgram.h"

#include <QFont>
#include <QRegularExpression>
#include <QSignalSpy>

/// Stands in for a page: records what is chosen and, if told, hands it back.
class Caller : public QObject {
    Q_OBJECT
public:
    QStringList chosen;
    QQuickItem *tiles = nullptr;
    bool follows = false;

public slots:
    void take(const QString &themeRaw)
    {
        chosen.append(themeRaw);
        if (follows)
            tiles->setProperty("themeRaw", themeRaw);
    }
};

class ThemeTilesTest : public QObject {
    Q_OBJECT
private slots:
    void init() { m_caller = std::make_unique<Caller>(); }
    void cleanup() { m_view.reset(); }
    void tilesShareTheWidth_data();
    void tilesShareTheWidth();
    void everyTileShowsItsThreeButtonsOnAStrip_data();
    void everyTileShowsItsThreeButtonsOnAStrip();
    void theChosenTileHasARingADotAndAStrongTitle();
    void inTheCompactFormTheChosenTileHasNoDot();
    void theDotHasTheColorOfTheProduct();
    void anUnknownThemeMarksNoTile();
    void aClickAnywhereOnATileChoosesItsTheme();
    void choosingTheMarkedTileSaysSoToo();
    void arrowKeysMoveTheChoiceAndStopAtTheEnds();
    void arrowKeysFollowTheLayoutDirection();
    void spaceAndReturnChooseTheFocusedTile();
    void tabStopsOnceAtTheMarkedTile();
    void withoutAMarkedTileTabStopsAtTheFirst();
    void theFocusOfTheKeyboardShowsAsARing();
    void everyTileIsOneRadioButton();
    void theDefaultActionChooses();

private:
    void show(const QVariantMap &properties = {}, qreal width = 354);
    QQuickItem *tile(int place) { return m_view->item(titles.at(place) + " look", QAccessible::RadioButton); }
    bool isChosen(int place) { return tile(place)->property("isChosen").toBool(); }
    /// The strip behind the buttons of a tile.
    ContinuousRectangle *strip(int place) { return shapes("strip").at(place); }
    /// The dots there are to see.
    FoundItems<ContinuousRectangle> dots() { return shapes("dot"); }
    FoundItems<ContinuousRectangle> shapes(const char *objectName);
    void key(Qt::Key key) { m_view->pressKey(key); }
    /// The place of the tile that has the focus.
    int focused() { return int(titles.indexOf(m_view->focused().chopped(5))); }

    const QStringList titles = {"Classic", "Soft", "Graphite", "Mono", "No color"};

    std::unique_ptr<OverlayView> m_view;
    std::unique_ptr<Caller> m_caller;
};

void ThemeTilesTest::show(const QVariantMap &properties, qreal width)
{
    m_view.reset();
    QVariantMap shown = {{"themeRaw", "classic"}};
    shown.insert(properties);
    m_view = std::make_unique<OverlayView>("ThemeTiles", shown, width);
    m_caller->tiles = &m_view->root();
    connect(&m_view->root(), SIGNAL(chosen(QString)), m_caller.get(), SLOT(take(QString)));
}

FoundItems<ContinuousRectangle> ThemeTilesTest::shapes(const char *objectName)
{
    auto found = m_view->all<ContinuousRectangle>();
    found.removeIf([objectName](const QQuickItem *shape) { return shape->objectName() != objectName; });
    return found;
}

void ThemeTilesTest::tilesShareTheWidth_data()
{
    QTest::addColumn<bool>("compact");
    QTest::addColumn<qreal>("spacing");
    QTest::newRow("full") << false << 8.0;
    QTest::newRow("compact") << true << 6.0;
}

void ThemeTilesTest::tilesShareTheWidth()
{
    QFETCH(const bool, compact);
    QFETCH(const qreal, spacing);
    show({{"compact", compact}});
    const qreal width = (354 - 4 * spacing) / 5;
    for (int place = 0; place < 5; ++place) {
        QVERIFY(std::abs(tile(place)->width() - width) < 1e-6);
        QVERIFY(std::abs(tile(place)->x() - place * (width + spacing)) < 1e-6);
    }
}

void ThemeTilesTest::everyTileShowsItsThreeButtonsOnAStrip_data()
{
    QTest::addColumn<bool>("compact");
    QTest::addColumn<qreal>("diameter");
    QTest::newRow("full") << false << 14.0;
    QTest::newRow("compact") << true << 12.0;
}

void ThemeTilesTest::everyTileShowsItsThreeButtonsOnAStrip()
{
    QFETCH(const bool, compact);
    QFETCH(const qreal, diameter);
    show({{"compact", compact}});
    const QStringList themes = {"classic", "soft", "graphite", "mono", "outline"};
    for (int place = 0; place < 5; ++place) {
        QCOMPARE(strip(place)->property("radius").toReal(), 10.0);
        const QRectF ground = m_view->rectOf(strip(place));
        QCOMPARE(ground.width(), tile(place)->width());
        QCOMPARE(ground.height(), 34.0);
        QCOMPARE(strip(place)->property("color").value<QColor>(), EBKit::chip().current());

        const auto buttons = m_view->all<DemoButton>(tile(place));
        QCOMPARE(buttons.size(), 3);
        const QStringList kinds = {buttons.at(0)->property("kind").toString(),
                                   buttons.at(1)->property("kind").toString(),
                                   buttons.at(2)->property("kind").toString()};
        QCOMPARE(kinds, QStringList({"close", "minimize", "maximize"}));
        for (int button = 0; button < 3; ++button) {
            QCOMPARE(buttons.at(button)->property("size").toReal(), diameter);
            QCOMPARE(buttons.at(button)->property("theme").toString(), themes.at(place));
            QVERIFY(!buttons.at(button)->property("dim").toBool());
            QCOMPARE(buttons.at(button)->x() - buttons.at(0)->x(), button * (diameter + 3));
        }
        const QPointF middle = m_view->rectOf(buttons.at(1)).center() - ground.center();
        QVERIFY(std::abs(middle.x()) <= 0.5 && std::abs(middle.y()) <= 0.5);

        QQuickItem *title = m_view->textItem(titles.at(place), tile(place));
        QCOMPARE(m_view->rectOf(title).top(), ground.bottom() + 6);
        QCOMPARE(title->property("font").value<QFont>().pixelSize(), 11);
        QCOMPARE(title->property("lineCount").toInt(), 1);
    }
}

void ThemeTilesTest::theChosenTileHasARingADotAndAStrongTitle()
{
    show({{"themeRaw", "soft"}});
    for (int place = 0; place < 5; ++place) {
        const bool chosen = place == 1;
        QCOMPARE(strip(place)->property("strokeWidth").toReal(), chosen ? 1.5 : 0.0);
        QCOMPARE(isChosen(place), chosen);
    }
    QCOMPARE(strip(1)->property("strokeColor").value<QColor>(), EBKit::ink().current());
    QVERIFY(isNear(m_view->pixel(strip(1), {30, 0}), EBKit::ink().current()));
    QVERIFY(isNear(m_view->pixel(strip(0), {30, 0}), over(EBKit::chip().current(), EBKit::paper().current())));

    QQuickItem *title = m_view->textItem("Soft");
    QCOMPARE(title->property("font").value<QFont>().weight(), QFont::DemiBold);
    QVERIFY(isNear(title->property("color").value<QColor>(), EBKit::ink().current()));
    QQuickItem *other = m_view->textItem("Mono");
    QCOMPARE(other->property("font").value<QFont>().weight(), QFont::Normal);
    QVERIFY(isNear(other->property("color").value<QColor>(), EBKit::inkMuted().current()));

    QCOMPARE(dots().size(), 1);
    const QRectF dot = m_view->rectOf(dots().constFirst());
    QCOMPARE(dot.size(), QSizeF(5, 5));
    QVERIFY(std::abs(m_view->rectOf(title).left() - dot.right() - 4) < 1e-6);

    m_view->root().setProperty("themeRaw", "mono");
    QCOMPARE(strip(1)->property("strokeWidth").toReal(), 0.0);
    QCOMPARE(strip(3)->property("strokeWidth").toReal(), 1.5);
}

void ThemeTilesTest::inTheCompactFormTheChosenTileHasNoDot()
{
    show({{"compact", true}});
    QVERIFY(dots().isEmpty());
    QCOMPARE(strip(0)->property("strokeWidth").toReal(), 1.5);
    QCOMPARE(m_view->textItem("Classic")->property("font").value<QFont>().weight(), QFont::DemiBold);
}

void ThemeTilesTest::theDotHasTheColorOfTheProduct()
{
    show();
    QCOMPARE(dots().constFirst()->property("color").value<QColor>(), EBKit::indigo().current());
    EBEnvironment::of(&m_view->root())->setEbApp(EBApp::quiller);
    QCOMPARE(dots().constFirst()->property("color").value<QColor>(), EBKit::coral().current());
    EBEnvironment::of(&m_view->root())->setEbApp(EBApp::parcelo);
    QCOMPARE(dots().constFirst()->property("color").value<QColor>(), EBKit::teal().current());
}

void ThemeTilesTest::anUnknownThemeMarksNoTile()
{
    show({{"themeRaw", "neon"}});
    for (int place = 0; place < 5; ++place)
        QVERIFY(!isChosen(place));
    QVERIFY(dots().isEmpty());
}

void ThemeTilesTest::aClickAnywhereOnATileChoosesItsTheme()
{
    show();
    const QStringList themes = {"classic", "soft", "graphite", "mono", "outline"};
    for (int place = 4; place >= 0; --place) {
        const QSizeF size = tile(place)->size();
        m_view->click(tile(place), {1, 1});
        m_view->click(tile(place), {size.width() - 2, size.height() - 2});
        QCOMPARE(m_caller->chosen, QStringList({themes.at(place), themes.at(place)}));
        m_caller->chosen.clear();
    }
    // It shows what its caller says, and the caller has said nothing.
    QVERIFY(isChosen(0));
}

void ThemeTilesTest::choosingTheMarkedTileSaysSoToo()
{
    show();
    m_view->click(tile(0), {20, 20});
    QCOMPARE(m_caller->chosen, QStringList("classic"));
}

void ThemeTilesTest::arrowKeysMoveTheChoiceAndStopAtTheEnds()
{
    show({{"themeRaw", "mono"}});
    m_caller->follows = true;
    tile(3)->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Right);
    QCOMPARE(focused(), 4);
    key(Qt::Key_Right);
    key(Qt::Key_Left);
    key(Qt::Key_Up);
    key(Qt::Key_Down);
    key(Qt::Key_Home);
    key(Qt::Key_Left);
    QCOMPARE(focused(), 0);
    key(Qt::Key_End);
    QCOMPARE(m_caller->chosen, QStringList({"outline", "mono", "graphite", "mono", "classic", "outline"}));
    QCOMPARE(focused(), 4);
}

void ThemeTilesTest::arrowKeysFollowTheLayoutDirection()
{
    show({{"themeRaw", "graphite"}});
    m_caller->follows = true;
    m_view->mirror();
    QVERIFY(tile(0)->x() > tile(4)->x());
    tile(2)->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Right);
    QCOMPARE(m_caller->chosen, QStringList("soft"));
}

void ThemeTilesTest::spaceAndReturnChooseTheFocusedTile()
{
    show({{"themeRaw", "neon"}});
    tile(0)->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    key(Qt::Key_Return);
    key(Qt::Key_Enter);
    QCOMPARE(m_caller->chosen, QStringList({"classic", "classic", "classic"}));
}

void ThemeTilesTest::tabStopsOnceAtTheMarkedTile()
{
    show({{"themeRaw", "mono"}});
    int stops = 0;
    for (int place = 0; place < 5; ++place)
        stops += tile(place)->activeFocusOnTab() ? 1 : 0;
    QCOMPARE(stops, 1);
    key(Qt::Key_Tab);
    QCOMPARE(focused(), 3);
    m_view->root().setProperty("themeRaw", "soft");
    QCOMPARE(focused(), 3);
}

void ThemeTilesTest::withoutAMarkedTileTabStopsAtTheFirst()
{
    show({{"themeRaw", "neon"}});
    key(Qt::Key_Tab);
    QCOMPARE(focused(), 0);
}

void ThemeTilesTest::theFocusOfTheKeyboardShowsAsARing()
{
    show();
    const QPointF above(30, -3);
    QVERIFY(isNear(m_view->pixel(strip(0), above), EBKit::paper().current()));
    key(Qt::Key_Tab);
    QVERIFY(isNear(m_view->pixel(strip(0), above), EBKit::indigo().current()));
    m_view->click(tile(1), {20, 20});
    QCOMPARE(focused(), 1);
    QVERIFY(isNear(m_view->pixel(strip(1), above), EBKit::paper().current()));
}

void ThemeTilesTest::everyTileIsOneRadioButton()
{
    show({{"themeRaw", "graphite"}});
    for (int place = 0; place < 5; ++place) {
        const auto *element = QAccessible::queryAccessibleInterface(tile(place));
        QVERIFY(element->state().checkable);
        QCOMPARE(bool(element->state().checked), place == 2);
        QVERIFY(element->state().selectable);
        QCOMPARE(bool(element->state().selected), place == 2);
        QCOMPARE(element->childCount(), 0);
    }
}

void ThemeTilesTest::theDefaultActionChooses()
{
    show();
    auto *element = QAccessible::queryAccessibleInterface(tile(4));
    QVERIFY(element->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    element->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(m_caller->chosen, QStringList("outline"));
}

CORVANE_TEST(ThemeTilesTest, runInGui)
#include "tst_themetiles.moc"
