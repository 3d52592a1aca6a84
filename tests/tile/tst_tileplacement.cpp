#include "TestProgram.h"
#include "TilePlacement.h"

using TilePlacement::Screen;

namespace {

constexpr QSizeF tile(330, 76);
const Screen left{{0, 0, 1000, 800}, {0, 40, 1000, 730}};
const Screen right{{1000, -200, 1600, 1200}, {1000, -180, 1600, 1150}};

}

class TilePlacementTest : public QObject {
    Q_OBJECT
private slots:
    void theTileHangsTwelvePointsBelowTheMiddleOfTheWindow();
    void whereThereIsNoRoomItStandsInsideTheWindow_data();
    void whereThereIsNoRoomItStandsInsideTheWindow();
    void theScreenIsTheFirstThatShowsSomeOfTheWindow_data();
    void theScreenIsTheFirstThatShowsSomeOfTheWindow();
    void withoutAnyScreenTheVisibleFrameIsEmpty();
    void flippingTurnsTopDownIntoBottomUpAndBack_data();
    void flippingTurnsTopDownIntoBottomUpAndBack();
};

void TilePlacementTest::theTileHangsTwelvePointsBelowTheMiddleOfTheWindow()
{
    const QRectF visible(0, 0, 1000, 800);
    QCOMPARE(TilePlacement::origin({200, 300, 500, 400}, tile, visible), QPointF(285, 212));
    QCOMPARE(TilePlacement::origin({201, 300, 500, 400}, tile, visible), QPointF(286, 212));
    QCOMPARE(TilePlacement::origin({200, 300, 501, 400}, tile, visible), QPointF(285.5, 212));
    // Narrower than the tile, at the screen's edge: the middle decides alone.
    QCOMPARE(TilePlacement::origin({0, 300, 310, 400}, tile, visible), QPointF(-10, 212));
}

void TilePlacementTest::whereThereIsNoRoomItStandsInsideTheWindow_data()
{
    QTest::addColumn<qreal>("windowBottom");
    QTest::addColumn<qreal>("visibleBottom");
    QTest::addColumn<qreal>("tileBottom");
    QTest::newRow("room to spare") << 300.0 << 40.0 << 212.0;
    QTest::newRow("just enough room") << 132.0 << 40.0 << 44.0;
    QTest::newRow("half a point too little") << 131.5 << 40.0 << 147.5;
    QTest::newRow("at the lower edge") << 40.0 << 40.0 << 56.0;
    QTest::newRow("below the lower edge") << -100.0 << 40.0 << -84.0;
    QTest::newRow("screen below the first one") << -60.0 << -152.0 << -148.0;
    QTest::newRow("no screen at all, room") << 92.0 << 0.0 << 4.0;
    QTest::newRow("no screen at all, no room") << 91.0 << 0.0 << 107.0;
}

void TilePlacementTest::whereThereIsNoRoomItStandsInsideTheWindow()
{
    QFETCH(qreal, windowBottom);
    QFETCH(qreal, visibleBottom);
    QFETCH(qreal, tileBottom);
    const QRectF window(200, windowBottom, 500, 300);
    QCOMPARE(TilePlacement::origin(window, tile, {0, visibleBottom, 1000, 700}), QPointF(285, tileBottom));
}

void TilePlacementTest::theScreenIsTheFirstThatShowsSomeOfTheWindow_data()
{
    QTest::addColumn<QRectF>("window");
    QTest::addColumn<QRectF>("visibleFrame");
    QTest::newRow("on the first") << QRectF(10, 10, 500, 400) << left.visibleFrame;
    QTest::newRow("on the second") << QRectF(1500, 10, 500, 400) << right.visibleFrame;
    QTest::newRow("mostly on the second") << QRectF(999, 10, 500, 400) << left.visibleFrame;
    QTest::newRow("beside the first") << QRectF(1000, 10, 500, 400) << right.visibleFrame;
    QTest::newRow("on none") << QRectF(0, 5000, 500, 400) << QRectF(7, 8, 9, 10);
    QTest::newRow("empty") << QRectF(10, 10, 0, 0) << QRectF(7, 8, 9, 10);
}

void TilePlacementTest::theScreenIsTheFirstThatShowsSomeOfTheWindow()
{
    QFETCH(QRectF, window);
    QFETCH(QRectF, visibleFrame);
    const Screen main{{0, 0, 1, 1}, {7, 8, 9, 10}};
    QCOMPARE(TilePlacement::visibleFrame(window, {left, right}, main), visibleFrame);
}

void TilePlacementTest::withoutAnyScreenTheVisibleFrameIsEmpty()
{
    QCOMPARE(TilePlacement::visibleFrame({10, 10, 500, 400}, {}, {}), QRectF());
}

void TilePlacementTest::flippingTurnsTopDownIntoBottomUpAndBack_data()
{
    QTest::addColumn<QRectF>("down");
    QTest::addColumn<qreal>("height");
    QTest::addColumn<QRectF>("up");
    QTest::newRow("at the top") << QRectF(10, 0, 500, 300) << 800.0 << QRectF(10, 500, 500, 300);
    QTest::newRow("at the bottom") << QRectF(10, 500, 500, 300) << 800.0 << QRectF(10, 0, 500, 300);
    QTest::newRow("above the first screen") << QRectF(10, -400, 500, 300) << 800.0 << QRectF(10, 900, 500, 300);
    QTest::newRow("no screen") << QRectF(10, 100, 500, 300) << 0.0 << QRectF(10, -400, 500, 300);
}

void TilePlacementTest::flippingTurnsTopDownIntoBottomUpAndBack()
{
    QFETCH(QRectF, down);
    QFETCH(qreal, height);
    QFETCH(QRectF, up);
    QCOMPARE(TilePlacement::flipped(down, height), up);
    QCOMPARE(TilePlacement::flipped(up, height), down);
}

CORVANE_TEST(TilePlacementTest, runBare)

#include "tst_tileplacement.moc"
