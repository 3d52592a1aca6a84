#include "ContinuousRect.h"
#include "TestProgram.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

namespace {

constexpr qreal notANumber = std::numeric_limits<qreal>::quiet_NaN();
constexpr qreal infinity = std::numeric_limits<qreal>::infinity();

// One piece of an outline as a cubic; a straight line has its controls on its thirds.
struct Piece {
    std::array<QPointF, 4> p;
    bool straight = false;

    QPointF at(qreal t) const
    {
        const qreal s = 1 - t;
        return s * s * s * p[0] + 3 * s * s * t * p[1] + 3 * s * t * t * p[2] + t * t * t * p[3];
    }

    QPointF velocity(qreal t) const
    {
        const qreal s = 1 - t;
        return 3 * s * s * (p[1] - p[0]) + 6 * s * t * (p[2] - p[1]) + 3 * t * t * (p[3] - p[2]);
    }

    qreal curvature(qreal t) const
    {
        const QPointF v = velocity(t);
        const QPointF a = 6 * (1 - t) * (p[2] - 2 * p[1] + p[0]) + 6 * t * (p[3] - 2 * p[2] + p[1]);
        return (v.x() * a.y() - v.y() * a.x()) / std::pow(std::hypot(v.x(), v.y()), 3);
    }
};

std::vector<Piece> pieces(const QPainterPath &path)
{
    std::vector<Piece> result;
    QPointF from;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPointF to = path.elementAt(i);
        switch (path.elementAt(i).type) {
        case QPainterPath::MoveToElement:
            from = to;
            break;
        case QPainterPath::LineToElement:
            result.push_back({{from, from + (to - from) / 3, from + (to - from) * 2 / 3, to}, true});
            from = to;
            break;
        case QPainterPath::CurveToElement:
            result.push_back({{from, to, path.elementAt(i + 1), path.elementAt(i + 2)}});
            from = path.elementAt(i + 2);
            break;
        case QPainterPath::CurveToDataElement:
            break;
        }
    }
    return result;
}

qreal heading(QPointF v)
{
    return std::atan2(v.y(), v.x());
}

// How far from the vertex the corners of this rectangle begin.
qreal cornerReach(const QRectF &rect, qreal radius)
{
    return rect.right() - QPointF(continuousRect(rect, radius).elementAt(0)).x();
}

}

class TestContinuousRect : public QObject {
    Q_OBJECT

private slots:
    void degenerateRectanglesGiveAnEmptyPath_data()
    {
        QTest::addColumn<QRectF>("rect");
        QTest::newRow("null") << QRectF();
        QTest::newRow("no width") << QRectF(1, 2, 0, 10);
        QTest::newRow("no height") << QRectF(1, 2, 10, 0);
        QTest::newRow("negative width") << QRectF(1, 2, -10, 10);
        QTest::newRow("x is no number") << QRectF(notANumber, 0, 10, 10);
        QTest::newRow("y is no number") << QRectF(0, notANumber, 10, 10);
        QTest::newRow("width is no number") << QRectF(0, 0, notANumber, 10);
        QTest::newRow("height is no number") << QRectF(0, 0, 10, notANumber);
        QTest::newRow("infinite width") << QRectF(0, 0, infinity, 10);
    }

    void degenerateRectanglesGiveAnEmptyPath()
    {
        QFETCH(QRectF, rect);
        QVERIFY(continuousRect(rect, 4).isEmpty());
    }

    void noRadiusGivesThePlainRectangle_data()
    {
        QTest::addColumn<qreal>("radius");
        QTest::newRow("zero") << 0.0;
        QTest::newRow("negative") << -3.0;
        QTest::newRow("no number") << notANumber;
    }

    void noRadiusGivesThePlainRectangle()
    {
        QFETCH(qreal, radius);
        QPainterPath plain;
        plain.addRect(QRectF(1, 2, 30, 20));
        QCOMPARE(continuousRect(QRectF(1, 2, 30, 20), radius), plain);
    }

    void theRadiusIsHeldToHalfTheShortSide()
    {
        const QRectF rect(5, 6, 60, 20);
        QCOMPARE(continuousRect(rect, 11), continuousRect(rect, 10));
        QCOMPARE(continuousRect(rect, infinity), continuousRect(rect, 10));
    }

    void theOutlineFillsTheRectangleExactly_data()
    {
        QTest::addColumn<QRectF>("rect");
        QTest::addColumn<qreal>("radius");
        QTest::newRow("card") << QRectF(10, 20, 300, 120) << 16.0;
        QTest::newRow("tight") << QRectF(-4, 3, 34, 36) << 16.0;
        QTest::newRow("wide pill") << QRectF(52.5, 33.5, 34, 15) << 7.5;
        QTest::newRow("tall pill") << QRectF(33.5, 33.5, 15, 53) << 7.5;
        QTest::newRow("circle") << QRectF(0, 0, 9, 9) << 4.5;
    }

    void theOutlineFillsTheRectangleExactly()
    {
        QFETCH(QRectF, rect);
        QFETCH(qreal, radius);
        const QRectF bounds = continuousRect(rect, radius).boundingRect();
        QVERIFY(std::abs(bounds.left() - rect.left()) < 1e-9);
        QVERIFY(std::abs(bounds.top() - rect.top()) < 1e-9);
        QVERIFY(std::abs(bounds.right() - rect.right()) < 1e-9);
        QVERIFY(std::abs(bounds.bottom() - rect.bottom()) < 1e-9);
    }

    void theSubpathIsClosed()
    {
        QPainterPath path = continuousRect(QRectF(0, 0, 40, 30), 8);
        QCOMPARE(QPointF(path.elementAt(0)), path.currentPosition());
        const int count = path.elementCount();
        path.lineTo(100, 100);
        // A line after a closed subpath begins a new one: a move and a line.
        QCOMPARE(path.elementCount(), count + 2);
    }

    void halfTheShortSideEndsInTrueHalfCircles_data()
    {
        QTest::addColumn<QRectF>("rect");
        QTest::newRow("wide") << QRectF(52.5, 33.5, 34, 15);
        QTest::newRow("tall") << QRectF(33.5, 33.5, 15, 53);
        QTest::newRow("square") << QRectF(52.5, 52.5, 15, 15);
    }

    void halfTheShortSideEndsInTrueHalfCircles()
    {
        QFETCH(QRectF, rect);
        const qreal r = 7.5;
        const QRectF spine = rect.adjusted(r, r, -r, -r);
        qreal length = 0;
        for (const Piece &piece : pieces(continuousRect(rect, r))) {
            for (int i = 0; i < 64; ++i) {
                const QPointF p = piece.at(i / 64.0);
                const QPointF next = piece.at((i + 1) / 64.0);
                const QPointF nearest(std::clamp(p.x(), spine.left(), spine.right()),
                                      std::clamp(p.y(), spine.top(), spine.bottom()));
                QVERIFY(std::abs(std::hypot(p.x() - nearest.x(), p.y() - nearest.y()) - r) < 0.0005 * r);
                length += std::hypot(next.x() - p.x(), next.y() - p.y());
            }
        }
        const qreal expected = 2 * std::numbers::pi * r + 2 * (spine.width() + spine.height());
        QVERIFY(std::abs(length - expected) < 0.001 * expected);
    }

    void theCurvatureHasNoJump_data()
    {
        QTest::addColumn<QRectF>("rect");
        QTest::addColumn<qreal>("radius");
        QTest::newRow("much room") << QRectF(0, 0, 300, 200) << 16.0;
        QTest::newRow("just enough") << QRectF(0, 0, 44, 44) << 16.0;
        QTest::newRow("little room") << QRectF(0, 0, 90, 36) << 16.0;
        QTest::newRow("hardly any") << QRectF(0, 0, 90, 32.5) << 16.0;
    }

    void theCurvatureHasNoJump()
    {
        QFETCH(QRectF, rect);
        QFETCH(qreal, radius);
        const auto outline = pieces(continuousRect(rect, radius));
        // Three in each corner, joined by the sides.
        QCOMPARE(std::count_if(outline.begin(), outline.end(), [](const Piece &piece) { return !piece.straight; }), 12);
        for (std::size_t i = 0; i < outline.size(); ++i) {
            const Piece &here = outline[i];
            const Piece &next = outline[(i + 1) % outline.size()];
            QVERIFY(
                std::abs(std::remainder(heading(next.velocity(0)) - heading(here.velocity(1)), 2 * std::numbers::pi))
                < 1e-6);
            // A cubic quarter circle is itself off by two per cent at its ends; a circular corner jumps by
            // all of it.
            QVERIFY(std::abs(next.curvature(0) - here.curvature(1)) * radius < 0.03);
        }
    }

    void aCornerBendsEverMoreTowardsItsMiddle()
    {
        const auto outline = pieces(continuousRect(QRectF(0, 0, 300, 200), 16));
        qreal before = 0;
        for (int i = 0; i <= 100; ++i) {
            const qreal now = outline[0].curvature(i / 100.0);
            QVERIFY(now >= before - 1e-9);
            before = now;
        }
        QVERIFY(before > 0);
    }

    void aCornerBeginsFurtherOutThanItsRadiusWhereThereIsRoom()
    {
        QVERIFY(cornerReach(QRectF(0, 0, 300, 200), 16) > 1.25 * 16);
        QVERIFY(cornerReach(QRectF(0, 0, 300, 200), 16) < 1.6 * 16);
    }

    void aCornerReachesAsFarAsACircularOne()
    {
        const qreal r = 16;
        const QPointF vertex(300, 0);
        qreal nearest = infinity;
        for (const Piece &piece : pieces(continuousRect(QRectF(0, 0, 300, 200), r))) {
            for (int i = 0; i <= 256; ++i) {
                const QPointF p = piece.at(i / 256.0) - vertex;
                nearest = std::min(nearest, std::hypot(p.x(), p.y()));
            }
        }
        QVERIFY(std::abs(nearest - (std::numbers::sqrt2 - 1) * r) < 0.01);
    }

    void theCornerTurnsCircularSteadilyAsRoomVanishes()
    {
        const QRectF rect(0, 0, 200, 40);
        qreal before = cornerReach(rect, 10) / 10;
        for (qreal radius = 10; radius <= 20; radius += 0.01) {
            const qreal now = cornerReach(rect, radius) / radius;
            QVERIFY(now <= before + 1e-9);
            QVERIFY(before - now < 0.01);
            QVERIFY(now >= 1 - 1e-9);
            QVERIFY(now * radius <= 20 + 1e-9);
            before = now;
        }
        QVERIFY(std::abs(cornerReach(rect, 20) - 20) < 1e-9);
    }

    void theOutlineIsTheSameSeenInAMirror()
    {
        const QPainterPath path = continuousRect(QRectF(-30, -20, 60, 40), 12);
        const auto holds = [&](QPointF wanted) {
            for (int i = 0; i < path.elementCount(); ++i) {
                const QPointF p = path.elementAt(i);
                if (std::hypot(p.x() - wanted.x(), p.y() - wanted.y()) < 1e-9)
                    return true;
            }
            return false;
        };
        for (int i = 0; i < path.elementCount(); ++i) {
            const QPointF p = path.elementAt(i);
            QVERIFY(holds({-p.x(), p.y()}));
            QVERIFY(holds({p.x(), -p.y()}));
        }
    }
};

CORVANE_TEST(TestContinuousRect, runBare)
#include "tst_continuousrect.moc"
