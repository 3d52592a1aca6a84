#include "ContinuousRect.h"
#include "GlyphPaths.h"
#include "GlyphShape.h"
#include "TestProgram.h"

#include <QPainterPathStroker>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const QStringList namesInOrder =
    QStringLiteral("apps arrow buds call check chevrons clock close cmd cursor dock dots download eye flag gear "
                   "globe head info key levels mic minus mute note play playpause plus power refresh search "
                   "share sliders spark speaker terminal undo volume warning wifi wins")
        .split(u' ');

// The glyphs that are drawn with rounded rectangles.
const QSet<QString> cornered = {QStringLiteral("apps"), QStringLiteral("call"),    QStringLiteral("dock"),
                                QStringLiteral("mic"),  QStringLiteral("speaker"), QStringLiteral("terminal"),
                                QStringLiteral("wins")};

enum class Corners { continuous, circular };

// A path from its written form: steps "M x,y", "L x,y", "C end/control 1/control 2", "E x,y,width,height",
// "R x,y,width,height,radius" and "Z", parted by spaces.
QPainterPath drawn(const QString &steps, Corners corners)
{
    QPainterPath path;
    const QStringList words = steps.split(u' ', Qt::SkipEmptyParts);
    for (int i = 0; i < words.size(); ++i) {
        const QString verb = words[i];
        if (verb == u"Z") {
            path.closeSubpath();
            continue;
        }
        QList<qreal> n;
        for (const QString &number : words[++i].split(QRegularExpression(QStringLiteral("[,/]"))))
            n << number.toDouble();
        if (verb == u"M") {
            path.moveTo(n.at(0), n.at(1));
        } else if (verb == u"L") {
            path.lineTo(n.at(0), n.at(1));
        } else if (verb == u"C") {
            path.cubicTo(n.at(2), n.at(3), n.at(4), n.at(5), n.at(0), n.at(1));
        } else if (verb == u"E") {
            path.addEllipse(n.at(0), n.at(1), n.at(2), n.at(3));
        } else if (verb == u"R") {
            const QRectF rect(n.at(0), n.at(1), n.at(2), n.at(3));
            if (corners == Corners::continuous)
                path.addPath(continuousRect(rect, n.at(4)));
            else
                path.addRoundedRect(rect, n.at(4), n.at(4));
        } else {
            throw TestFailure{"no such step"};
        }
    }
    return path;
}

// Each subpath as a path of its own.
QList<QPainterPath> subpaths(const QPainterPath &path)
{
    QList<QPainterPath> result;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPointF p = path.elementAt(i);
        switch (path.elementAt(i).type) {
        case QPainterPath::MoveToElement:
            result.append(QPainterPath(p));
            break;
        case QPainterPath::LineToElement:
            result.last().lineTo(p);
            break;
        case QPainterPath::CurveToElement:
            result.last().cubicTo(p, path.elementAt(i + 1), path.elementAt(i + 2));
            break;
        case QPainterPath::CurveToDataElement:
            break;
        }
    }
    return result;
}

bool passesThrough(const QPainterPath &path, QPointF point)
{
    for (int i = 0; i < path.elementCount(); ++i) {
        if (QPointF(path.elementAt(i)) == point)
            return true;
    }
    return false;
}

// Whether the last subpath is closed: only then does a further line begin a new one, with a move of its own.
// A copy of a path forgets this, so it takes the path itself.
bool endsClosed(QPainterPath &&path)
{
    const int count = path.elementCount();
    path.lineTo(-100, -100);
    return path.elementCount() == count + 2;
}

GlyphName named(const QString &raw)
{
    return GlyphNames::fromRawValue(raw).value();
}

QPainterPath path(const QString &raw)
{
    return GlyphNames::path(named(raw));
}

// The outline of the other set, which is drawn without continuous corners.
QPainterPath circularPath(const QString &raw)
{
    return glyphPath(named(raw), CornerStyle::circular);
}

}

class TestGlyphs : public QObject {
    Q_OBJECT

private slots:
    void theExactGlyphsHaveExactlyTheirPaths_data()
    {
        QTest::addColumn<QString>("steps");
        const auto glyph = [](const char *name, const char *steps) {
            QTest::newRow(name) << QString::fromLatin1(steps);
        };
        glyph("close", "M 7,7 L 17,17 M 17,7 L 7,17");
        glyph("minus", "M 5.5,12 L 18.5,12");
        glyph("plus", "M 12,5.5 L 12,18.5 M 5.5,12 L 18.5,12");
        glyph("check", "M 5,12.5 L 9.5,17 L 19,7.5");
        glyph("arrow", "M 5,12 L 19,12 M 13,6 L 19,12 L 13,18");
        glyph("chevrons", "M 8.5,9.5 L 12,6 L 15.5,9.5 M 8.5,14.5 L 12,18 L 15.5,14.5");
        glyph("wins", "R 3,4,12,9,2 R 9,10,12,9,2");
        glyph("apps", "R 4,4,6.5,6.5,1.8 R 13.5,4,6.5,6.5,1.8 R 4,13.5,6.5,6.5,1.8 R 13.5,13.5,6.5,6.5,1.8");
        glyph("dock", "R 3,4,18,16,2.5 M 6.5,16.5 L 17.5,16.5");
        glyph("search", "E 4.5,4.5,13,13 M 16,16 L 20.5,20.5");
        glyph("dots", "E 2.9,9.4,5.2,5.2 E 9.4,9.4,5.2,5.2 E 15.9,9.4,5.2,5.2");
        glyph("eye",
              "M 2.5,12 C 12,5.5/2.5,12/6,5.5 C 21.5,12/18,5.5/21.5,12 C 12,18.5/21.5,12/18,18.5 "
              "C 2.5,12/6,18.5/2.5,12 Z E 9.2,9.2,5.6,5.6");
        glyph("spark",
              "M 12,3 C 20,11/12.6,7.6/15.4,10.4 C 12,19/15.4,11.6/12.6,14.4 "
              "C 4,11/11.4,14.4/8.6,11.6 C 12,3/8.6,10.4/11.4,7.6 Z");
        glyph("cmd",
              "M 9,9 L 15,9 M 9,9 L 9,15 M 15,9 L 15,15 M 15,15 L 9,15 "
              "M 9,9 L 9,6.5 C 6.5,4/9,5.1193/7.8807,4 C 4,6.5/5.1193,4/4,5.1193 "
              "C 6.5,9/4,7.8807/5.1193,9 L 9,9 Z "
              "M 15,9 L 15,6.5 C 17.5,4/15,5.1193/16.1193,4 C 20,6.5/18.8807,4/20,5.1193 "
              "C 17.5,9/20,7.8807/18.8807,9 L 15,9 Z "
              "M 15,15 L 15,17.5 C 17.5,20/15,18.8807/16.1193,20 C 20,17.5/18.8807,20/20,18.8807 "
              "C 17.5,15/20,16.1193/18.8807,15 L 15,15 Z "
              "M 9,15 L 9,17.5 C 6.5,20/9,18.8807/7.8807,20 C 4,17.5/5.1193,20/4,18.8807 "
              "C 6.5,15/4,16.1193/5.1193,15 L 9,15 Z");
        glyph("warning", "M 12,4.5 L 20.5,19.5 L 3.5,19.5 Z M 12,10.5 L 12,14.5 M 12,17.2 L 12,17.3");
        glyph("gear",
              "E 8.8,8.8,6.4,6.4 M 12,2.8 L 12,5.4 M 12,18.6 L 12,21.2 M 2.8,12 L 5.4,12 "
              "M 18.6,12 L 21.2,12 M 5.5,5.5 L 7.3,7.3 M 16.7,16.7 L 18.5,18.5 M 5.5,18.5 L 7.3,16.7 "
              "M 16.7,7.3 L 18.5,5.5");
        glyph("playpause", "M 4,6.5 L 12,12 L 4,17.5 Z M 15.5,6.5 L 15.5,17.5 M 19.5,6.5 L 19.5,17.5");
        glyph("levels", "M 4,10.5 L 4,13.5 M 8,8 L 8,16 M 12,5 L 12,19 M 16,8 L 16,16 M 20,10.5 L 20,13.5");
    }

    void theExactGlyphsHaveExactlyTheirPaths()
    {
        QFETCH(QString, steps);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        QCOMPARE(path(name), drawn(steps, Corners::continuous));
        QCOMPARE(circularPath(name), drawn(steps, Corners::circular));
    }

    void theOtherGlyphsKeepTheirGivenParts_data()
    {
        QTest::addColumn<QString>("parts");
        QTest::addColumn<QList<QPointF>>("points");
        const auto glyph = [](const char *name, const char *parts, const QList<QPointF> &points = {}) {
            QTest::newRow(name) << QString::fromLatin1(parts) << points;
        };
        glyph("call", "R 3,7,12.5,10,2.5", {{20.5, 8}, {20.5, 16}});
        glyph("clock", "E 3.5,3.5,17,17", {{12, 7.5}, {12, 12}});
        glyph("cursor", "", {{6, 3.5}});
        glyph("download", "", {{12, 15}});
        glyph("globe", "E 3.5,3.5,17,17");
        glyph("info", "E 3,3,18,18 M 12,11 L 12,16.5 M 12,7.8 L 12,7.9");
        glyph("key", "E 4.4,8.4,7.2,7.2", {{21, 12}});
        glyph("mic", "R 9,3,6,11,3");
        glyph("note", "E 4,15.5,5,5 E 14,13.5,5,5");
        glyph("play", "M 7.5,5 L 18.5,12 L 7.5,19 Z");
        glyph("sliders", "E 13,5,4,4 E 7,15,4,4");
        glyph("speaker", "R 6,3,12,18,3 E 9,11.5,6,6");
        glyph("terminal", "R 3,4.5,18,15,2.5 M 7,9.5 L 10,12 L 7,14.5", {{12.5, 15}});
        glyph("wifi", "", {{12, 19.2}});
    }

    void theOtherGlyphsKeepTheirGivenParts()
    {
        QFETCH(QString, parts);
        QFETCH(QList<QPointF>, points);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        const QPainterPath outline = path(name);
        const QPainterPath circular = circularPath(name);
        for (const QPainterPath &part : subpaths(drawn(parts, Corners::continuous)))
            QVERIFY(subpaths(outline).contains(part));
        for (const QPainterPath &part : subpaths(drawn(parts, Corners::circular)))
            QVERIFY(subpaths(circular).contains(part));
        for (const QPointF &point : points)
            QVERIFY(passesThrough(outline, point) && passesThrough(circular, point));
    }

    void theDownloadArrowStandsOverATray()
    {
        const auto parts = subpaths(GlyphNames::path(GlyphName::download));
        QVERIFY(std::any_of(parts.begin(), parts.end(), [](const QPainterPath &part) {
            const QRectF bounds = part.boundingRect();
            return bounds.top() == 19.5 && bounds.bottom() == 19.5 && bounds.left() < 12 && bounds.right() > 12;
        }));
    }

    void theWifiSignHasThreeArcsAndADot() { QCOMPARE(subpaths(GlyphNames::path(GlyphName::wifi)).size(), 4); }

    void theSetsDifferInTheCornersOfRoundedRectanglesOnly()
    {
        for (const QString &name : namesInOrder) {
            const auto parts = subpaths(path(name));
            const auto circularParts = subpaths(circularPath(name));
            QCOMPARE(circularParts.size(), parts.size());
            bool differs = false;
            for (int i = 0; i < parts.size(); ++i) {
                if (parts[i] == circularParts[i])
                    continue;
                differs = true;
                const QRectF bounds = parts[i].boundingRect();
                const QRectF circularBounds = circularParts[i].boundingRect();
                QVERIFY(std::abs(bounds.left() - circularBounds.left()) < 1e-9);
                QVERIFY(std::abs(bounds.top() - circularBounds.top()) < 1e-9);
                QVERIFY(std::abs(bounds.right() - circularBounds.right()) < 1e-9);
                QVERIFY(std::abs(bounds.bottom() - circularBounds.bottom()) < 1e-9);
            }
            QVERIFY2(differs == cornered.contains(name), qPrintable(name));
        }
    }

    void aCornerBeginsAtTheRadiusWhereItIsCircularAndFurtherOutWhereItIsContinuous()
    {
        // The first window of `wins` has its top side from 3 to 15 at y 4, with corners of radius 2.
        const auto topSideEnds = [](const QPainterPath &window) {
            qreal left = std::numeric_limits<qreal>::max();
            qreal right = std::numeric_limits<qreal>::lowest();
            for (int i = 0; i < window.elementCount(); ++i) {
                const auto element = window.elementAt(i);
                const auto before = window.elementAt(std::max(i - 1, 0));
                if (element.type == QPainterPath::LineToElement && element.y == 4 && before.y == 4) {
                    left = std::min({left, element.x, before.x});
                    right = std::max({right, element.x, before.x});
                }
            }
            return std::pair(left, right);
        };
        const auto circular = topSideEnds(subpaths(circularPath(QStringLiteral("wins"))).first());
        QCOMPARE(circular, std::pair(5.0, 13.0));
        const auto continuous = topSideEnds(subpaths(GlyphNames::path(GlyphName::wins)).first());
        QVERIFY(continuous.first > 5.25 && continuous.second < 12.75);
    }

    void theSparkIsClosedInOneSetAndLeftOpenInTheOther()
    {
        const QPainterPath outline = GlyphNames::path(GlyphName::spark);
        const QPainterPath circular = circularPath(QStringLiteral("spark"));
        QVERIFY(endsClosed(GlyphNames::path(GlyphName::spark)));
        QVERIFY(!endsClosed(circularPath(QStringLiteral("spark"))));
        // The same four curves all the same, and the last one ends on the start.
        QCOMPARE(circular, outline);
        QCOMPARE(circular.elementCount(), 1 + 4 * 3);
        QCOMPARE(circular.currentPosition(), QPointF(12, 3));
    }

    void theSparkIsTheOnlyOutlineClosedInOneSetAlone()
    {
        for (const QString &name : namesInOrder) {
            const bool same = endsClosed(path(name)) == endsClosed(circularPath(name));
            QVERIFY2(same == (name != u"spark"), qPrintable(name));
        }
    }

    void everyGlyphStaysOnTheGrid()
    {
        QPainterPathStroker stroker;
        stroker.setWidth(1.6);
        stroker.setCapStyle(Qt::RoundCap);
        stroker.setJoinStyle(Qt::RoundJoin);
        stroker.setMiterLimit(10);
        const auto check = [&](const QPainterPath &outline, const QString &name) {
            QVERIFY2(!outline.isEmpty(), qPrintable(name));
            const QRectF live = outline.boundingRect();
            QVERIFY2(live.left() >= 2.5 && live.top() >= 2.5, qPrintable(name));
            QVERIFY2(live.right() <= 21.5 && live.bottom() <= 21.5, qPrintable(name));
            const QRectF inked = stroker.createStroke(outline).boundingRect();
            QVERIFY2(QRectF(0, 0, 24, 24).contains(inked), qPrintable(name));
        };
        for (const QString &name : namesInOrder) {
            check(path(name), name);
            check(circularPath(name), name);
        }
    }

    void noTwoGlyphsAreTheSame()
    {
        for (const GlyphName one : GlyphNames::allCases) {
            for (const GlyphName other : GlyphNames::allCases)
                QCOMPARE(GlyphNames::path(one) == GlyphNames::path(other), one == other);
        }
    }

    void aPathThatIsChangedLeavesTheGlyphAsItWas()
    {
        QPainterPath mine = GlyphNames::path(GlyphName::minus);
        mine.lineTo(0, 0);
        QCOMPARE(GlyphNames::path(GlyphName::minus), drawn(QStringLiteral("M 5.5,12 L 18.5,12"), Corners::continuous));
    }

    void aShapeIsCentredAndScaledByTheShortSide_data()
    {
        QTest::addColumn<QRectF>("rect");
        QTest::addColumn<QString>("minus");
        QTest::newRow("the grid itself") << QRectF(0, 0, 24, 24) << QStringLiteral("M 5.5,12 L 18.5,12");
        QTest::newRow("wide: 12 from the left") << QRectF(0, 0, 48, 24) << QStringLiteral("M 17.5,12 L 30.5,12");
        QTest::newRow("tall: 12 from the top") << QRectF(0, 0, 24, 48) << QStringLiteral("M 5.5,24 L 18.5,24");
        QTest::newRow("twice the size, moved") << QRectF(10, 20, 48, 48) << QStringLiteral("M 21,44 L 47,44");
        QTest::newRow("half the size") << QRectF(0, 0, 12, 12) << QStringLiteral("M 2.75,6 L 9.25,6");
        QTest::newRow("drawn from its far corner") << QRectF(48, 24, -48, -24) << QStringLiteral("M 17.5,12 L 30.5,12");
    }

    void aShapeIsCentredAndScaledByTheShortSide()
    {
        QFETCH(QRectF, rect);
        QFETCH(QString, minus);
        QCOMPARE(GlyphShape{GlyphName::minus}.path(rect), drawn(minus, Corners::continuous));
    }

    void aRectangleWithoutAreaCollapsesTheShapeOntoItsCentre_data()
    {
        QTest::addColumn<QRectF>("rect");
        QTest::addColumn<QPointF>("centre");
        QTest::newRow("zero size") << QRectF(7, 9, 0, 0) << QPointF(7, 9);
        QTest::newRow("no height") << QRectF(0, 5, 24, 0) << QPointF(12, 5);
        QTest::newRow("null") << QRectF() << QPointF(0, 0);
    }

    void aRectangleWithoutAreaCollapsesTheShapeOntoItsCentre()
    {
        QFETCH(QRectF, rect);
        QFETCH(QPointF, centre);
        for (const GlyphName name : GlyphNames::allCases) {
            const QPainterPath collapsed = GlyphShape{name}.path(rect);
            QVERIFY(collapsed.elementCount() > 0);
            for (int i = 0; i < collapsed.elementCount(); ++i)
                QCOMPARE(QPointF(collapsed.elementAt(i)), centre);
        }
    }

    void aRectangleThatIsNoNumberGivesAnEmptyShape()
    {
        const qreal nan = std::numeric_limits<qreal>::quiet_NaN();
        QVERIFY(GlyphShape{GlyphName::gear}.path(QRectF(nan, 0, 24, 24)).isEmpty());
        QVERIFY(GlyphShape{GlyphName::gear}.path(QRectF(0, 0, nan, 24)).isEmpty());
        QVERIFY(GlyphShape{GlyphName::gear}.path(QRectF(0, 0, 24, nan)).isEmpty());
    }

    void theStrokeScalesWithTheGlyph()
    {
        QCOMPARE(glyphStrokeWidth(24), 1.6);
        QCOMPARE(glyphStrokeWidth(12), 0.8);
        QCOMPARE(glyphStrokeWidth(48), 3.2);
        QCOMPARE(glyphStrokeWidth(0), 0.0);
    }
};

CORVANE_TEST(TestGlyphs, runBare)
#include "tst_glyphs.moc"
