#include "DragTileController.h"
#include "DragTilePanel.h"
#include "FakePlatform.h"
#include "TestProgram.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryFile>

namespace {

constexpr QRect first(0, 0, 1000, 800);
// To the right of the first one, and reaching further down.
constexpr QRect second(1000, 200, 1600, 1200);
constexpr QSizeF windowSize(500, 300);

}

/// The controller on a desktop with two screens.
class TileScreensTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void theScreenOfTheWindowDecidesWhereThereIsRoom_data();
    void theScreenOfTheWindowDecidesWhereThereIsRoom();
    void forAWindowOnNoScreenThatWithTheKeyboardDecides();

private:
    /// Where the tile is, for a window with that corner.
    QPoint tileBeside(QPointF topLeft);

    FakePlatform *m_platform = nullptr;
    std::unique_ptr<DragTileController> m_tile;
};

void TileScreensTest::initTestCase()
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    QCOMPARE(screens.size(), 2);
    QCOMPARE(screens.at(0)->availableGeometry(), first);
    QCOMPARE(screens.at(1)->availableGeometry(), second);
}

void TileScreensTest::init()
{
    m_platform = &FakePlatform::install();
    m_platform->look.setReduceMotion(true);
    m_tile = std::make_unique<DragTileController>();
}

void TileScreensTest::cleanup()
{
    m_tile.reset();
}

QPoint TileScreensTest::tileBeside(QPointF topLeft)
{
    m_platform->windows.windows = {{0, true, QRectF(topLeft, windowSize)}};
    m_tile->show();
    m_tile->reposition();
    return m_tile->panel()->tile().topLeft();
}

void TileScreensTest::theScreenOfTheWindowDecidesWhereThereIsRoom_data()
{
    QTest::addColumn<QPointF>("window");
    QTest::addColumn<QPoint>("tile");
    QTest::newRow("on the first") << QPointF(100, 100) << QPoint(185, 412);
    QTest::newRow("at the foot of the first") << QPointF(100, 409) << QPoint(185, 617);
    QTest::newRow("on the second, beside the foot of the first") << QPointF(1200, 500) << QPoint(1285, 812);
    QTest::newRow("on the second, just enough room") << QPointF(1200, 1008) << QPoint(1285, 1320);
    QTest::newRow("at the foot of the second") << QPointF(1200, 1009) << QPoint(1285, 1217);
    QTest::newRow("on both") << QPointF(900, 500) << QPoint(985, 708);
}

void TileScreensTest::theScreenOfTheWindowDecidesWhereThereIsRoom()
{
    QFETCH(QPointF, window);
    QFETCH(QPoint, tile);
    QCOMPARE(tileBeside(window), tile);
}

void TileScreensTest::forAWindowOnNoScreenThatWithTheKeyboardDecides()
{
    QCOMPARE(tileBeside({5000, 500}), QPoint(5085, 708));
    QWindow focused;
    focused.setGeometry({second.topLeft(), QSize(200, 200)});
    focused.show();
    focused.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&focused));
    QCOMPARE(focused.screen()->geometry(), second);
    QCOMPARE(tileBeside({5000, 500}), QPoint(5085, 812));
}

static int runTileScreens(int argc, char **argv)
{
    QTemporaryFile screens;
    if (!screens.open())
        return 1;
    screens.write(R"({"screens": [
        {"name": "first", "x": 0, "y": 0, "width": 1000, "height": 800, "logicalDpi": 96, "dpr": 1},
        {"name": "second", "x": 1000, "y": 200, "width": 1600, "height": 1200, "logicalDpi": 96, "dpr": 1}
    ]})");
    screens.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
    const QGuiApplication application(argc, argv);
    return runTest<TileScreensTest>(argc, argv);
}

CORVANE_TEST_MAIN(runTileScreens)

#include "tst_tilescreens.moc"
