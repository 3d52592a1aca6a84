#include "ContinuousRect.h"
#include "FakePlatform.h"
#include "MarkGeometry.h"
#include "MarkShape.h"
#include "TestProgram.h"

#include <limits>

namespace {

QPainterPath gridPath(EBApp app)
{
    QPainterPath path;
    MarkGeometry::fill(path, app);
    return path;
}

/// The bounds of each part, in drawing order.
QList<QRectF> partsOf(const QPainterPath &path)
{
    QList<QRectF> bounds;
    QPainterPath part;
    const auto close = [&] {
        if (!part.isEmpty())
            bounds.append(part.boundingRect());
        part = {};
    };
    for (int i = 0; i < path.elementCount(); ++i) {
        const auto &element = path.elementAt(i);
        if (element.isMoveTo()) {
            close();
            part.moveTo(element);
        } else if (element.isLineTo()) {
            part.lineTo(element);
        } else {
            part.cubicTo(element, path.elementAt(i + 1), path.elementAt(i + 2));
            i += 2;
        }
    }
    close();
    return bounds;
}

bool isNear(const QRectF &a, const QRectF &b)
{
    return std::abs(a.left() - b.left()) < 1e-6 && std::abs(a.top() - b.top()) < 1e-6
        && std::abs(a.right() - b.right()) < 1e-6 && std::abs(a.bottom() - b.bottom()) < 1e-6;
}

const qreal notANumber = std::numeric_limits<qreal>::quiet_NaN();

}

class TestMarks : public QObject {
    Q_OBJECT

private slots:
    void init() { FakePlatform::install(); }

    void aMarkConsistsOfItsParts_data();
    void aMarkConsistsOfItsParts();
    void thePartsAreAppendedToThePath();
    void pillsHaveContinuousCornersAndCirclesAreRound();
    void neighbouringPartsAreFourUnitsApart();
    void theBlocksAreCentredOnTheGrid();
    void parceloIsTheBlockWithTheCircleStandingOut();

    void size64ShowsAUnitAPoint();
    void aMarkIsScaledByTheShortSideAndCentred_data();
    void aMarkIsScaledByTheShortSideAndCentred();
    void aRectangleWithoutAreaCollapsesTheMark();
    void aRectangleThatIsNoNumberGivesAnEmptyMark();
};

void TestMarks::aMarkConsistsOfItsParts_data()
{
    QTest::addColumn<EBApp>("app");
    QTest::addColumn<QList<QRectF>>("parts");
    QTest::newRow("quiller") << EBApp::quiller
                             << QList<QRectF>{{33.5, 52.5, 15, 15}, {52.5, 33.5, 15, 53}, {71.5, 43, 15, 34}};
    QTest::newRow("corvane") << EBApp::corvane
                             << QList<QRectF>{{33.5, 33.5, 15, 53}, {52.5, 33.5, 34, 15}, {52.5, 52.5, 34, 34}};
    QTest::newRow("parcelo") << EBApp::parcelo
                             << QList<QRectF>{{52.5, 30.5, 15, 15},
                                              {33.5, 33.5, 15, 34},
                                              {71.5, 33.5, 15, 34},
                                              {33.5, 71.5, 53, 15}};
}

void TestMarks::aMarkConsistsOfItsParts()
{
    QFETCH(EBApp, app);
    QFETCH(QList<QRectF>, parts);
    const QList<QRectF> drawn = partsOf(gridPath(app));
    QCOMPARE(drawn.size(), parts.size());
    for (qsizetype i = 0; i < parts.size(); ++i)
        QVERIFY(isNear(drawn[i], parts[i]));
}

void TestMarks::thePartsAreAppendedToThePath()
{
    QPainterPath path;
    path.addRect(0, 0, 5, 5);
    MarkGeometry::fill(path, EBApp::corvane);
    QCOMPARE(partsOf(path).size(), 4);
    QCOMPARE(partsOf(path).constFirst(), QRectF(0, 0, 5, 5));
}

void TestMarks::pillsHaveContinuousCornersAndCirclesAreRound()
{
    QPainterPath expected;
    expected.addPath(continuousRect({33.5, 33.5, 15, 53}, 7.5));
    expected.addPath(continuousRect({52.5, 33.5, 34, 15}, 7.5));
    expected.addEllipse(QRectF(52.5, 52.5, 34, 34));
    QCOMPARE(gridPath(EBApp::corvane), expected);
}

void TestMarks::neighbouringPartsAreFourUnitsApart()
{
    for (const EBApp app : EBApps::allCases) {
        const auto parts = MarkGeometry::parts(app);
        for (const QRectF &part : parts) {
            qreal nearest = std::numeric_limits<qreal>::infinity();
            for (const QRectF &other : parts) {
                if (&other == &part)
                    continue;
                QVERIFY(!part.intersects(other));
                const qreal dx = std::max({other.left() - part.right(), part.left() - other.right(), 0.0});
                const qreal dy = std::max({other.top() - part.bottom(), part.top() - other.bottom(), 0.0});
                nearest = std::min(nearest, dx + dy);
            }
            QCOMPARE(nearest, MarkGeometry::gap);
        }
    }
}

void TestMarks::theBlocksAreCentredOnTheGrid()
{
    QCOMPARE(MarkGeometry::block, QRectF(33.5, 33.5, 53, 53));
    QCOMPARE(MarkGeometry::block.center(), QPointF(60, 60));
    for (const EBApp app : {EBApp::quiller, EBApp::corvane})
        QVERIFY(isNear(gridPath(app).boundingRect(), MarkGeometry::block));
}

void TestMarks::parceloIsTheBlockWithTheCircleStandingOut()
{
    QVERIFY(isNear(gridPath(EBApp::parcelo).boundingRect(), MarkGeometry::block.adjusted(0, -3, 0, 0)));
}

void TestMarks::size64ShowsAUnitAPoint()
{
    const QRectF square(0, 0, 64, 64);
    QVERIFY(isNear(MarkShape{EBApp::corvane}.path(square).boundingRect(), QRectF(5.5, 5.5, 53, 53)));
    QCOMPARE(MarkShape{EBApp::corvane}.path(square), gridPath(EBApp::corvane).translated(-28, -28));
}

void TestMarks::aMarkIsScaledByTheShortSideAndCentred_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QRectF>("block");
    QTest::newRow("wide") << QRectF(10, 20, 200, 64) << QRectF(83.5, 25.5, 53, 53);
    QTest::newRow("tall") << QRectF(10, 20, 64, 200) << QRectF(15.5, 93.5, 53, 53);
    QTest::newRow("twice the size") << QRectF(0, 0, 128, 128) << QRectF(11, 11, 106, 106);
    QTest::newRow("drawn from its far corner") << QRectF(64, 64, -64, -64) << QRectF(5.5, 5.5, 53, 53);
}

void TestMarks::aMarkIsScaledByTheShortSideAndCentred()
{
    QFETCH(QRectF, rect);
    QFETCH(QRectF, block);
    QVERIFY(isNear(MarkShape{EBApp::corvane}.path(rect).boundingRect(), block));
    QVERIFY(isNear(MarkShape{EBApp::quiller}.path(rect).boundingRect(), block));
}

void TestMarks::aRectangleWithoutAreaCollapsesTheMark()
{
    const QPainterPath collapsed = MarkShape{EBApp::corvane}.path({7, 9, 0, 20});
    QVERIFY(collapsed.elementCount() > 0);
    for (int i = 0; i < collapsed.elementCount(); ++i)
        QCOMPARE(QPointF(collapsed.elementAt(i)), QPointF(7, 19));
}

void TestMarks::aRectangleThatIsNoNumberGivesAnEmptyMark()
{
    QVERIFY(MarkShape{EBApp::corvane}.path({notANumber, 0, 64, 64}).isEmpty());
    QVERIFY(MarkShape{EBApp::corvane}.path({0, 0, notANumber, 64}).isEmpty());
    QVERIFY(MarkShape{EBApp::corvane}.path({0, 0, 64, notANumber}).isEmpty());
}

CORVANE_TEST(TestMarks, runInCore)
#include "tst_marks.moc"
