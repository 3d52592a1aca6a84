#include "ButtonGlyph.h"
#include "TestProgram.h"

namespace {

using Line = QList<QPointF>;

/// The path's open lines, each as its corners.
QList<Line> linesOf(const QPainterPath &path)
{
    QList<Line> lines;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo())
            lines.append(Line{});
        lines.last().append(element);
    }
    return lines;
}

bool areNear(const QList<Line> &actual, const QList<Line> &expected)
{
    if (actual.size() != expected.size())
        return false;
    for (qsizetype line = 0; line < actual.size(); ++line) {
        if (actual.at(line).size() != expected.at(line).size())
            return false;
        for (qsizetype corner = 0; corner < actual.at(line).size(); ++corner) {
            const QPointF off = actual.at(line).at(corner) - expected.at(line).at(corner);
            if (off.manhattanLength() > 1e-9)
                return false;
        }
    }
    return true;
}

}

class ButtonGlyphTest : public QObject {
    Q_OBJECT
private slots:
    void everyGlyphIsMadeOfItsLines_data();
    void everyGlyphIsMadeOfItsLines();
    void theReachDependsOnTheWidthAlone();
};

// In a square of 100 points around (150, 250) the unit of reach is 20 points.
void ButtonGlyphTest::everyGlyphIsMadeOfItsLines_data()
{
    QTest::addColumn<OverlayButton>("kind");
    QTest::addColumn<QList<Line>>("lines");
    QTest::newRow("a cross") << OverlayButton::close << QList<Line>{{{130, 230}, {170, 270}}, {{130, 270}, {170, 230}}};
    QTest::newRow("a bar") << OverlayButton::minimize << QList<Line>{{{127, 250}, {173, 250}}};
    QTest::newRow("an arrow with two heads")
        << OverlayButton::maximize
        << QList<Line>{
               {{128, 272}, {172, 228}}, {{154, 228}, {172, 228}, {172, 246}}, {{146, 272}, {128, 272}, {128, 254}}};
}

void ButtonGlyphTest::everyGlyphIsMadeOfItsLines()
{
    QFETCH(const OverlayButton, kind);
    QFETCH(const QList<Line>, lines);
    QVERIFY(areNear(linesOf(ButtonGlyph{kind}.path(QRectF(100, 200, 100, 100))), lines));
}

void ButtonGlyphTest::theReachDependsOnTheWidthAlone()
{
    const QList<Line> expected = {{{127, 210}, {173, 210}}};
    QVERIFY(areNear(linesOf(ButtonGlyph{OverlayButton::minimize}.path(QRectF(100, 200, 100, 20))), expected));
}

CORVANE_TEST(ButtonGlyphTest, runInCore)
#include "tst_buttonglyph.moc"
