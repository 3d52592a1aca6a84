#include "ConstructionDrawing.h"

#include "ConstructionPlan.h"
#include "ContinuousRect.h"
#include "EBKit.h"
#include "EBType.h"
#include "MarkGeometry.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

using namespace ConstructionPlan;

constexpr qreal cornerRadius = 16;
// The title's letters, in points; the notes keep the size of their role.
constexpr qreal titleSize = 15;
// Between a text and what stands beside it, in points.
constexpr qreal clearance = 6;
// How far the ground is cleared around a text, in points.
constexpr qreal plateMargin = 4;
// How strong the grid's lines are, and those along the block.
constexpr qreal gridOpacity = 0.08;
constexpr qreal blockOpacity = 0.22;
// Letters grow with a large drawing, as far as there is room for them, but far less than it does.
constexpr qreal largestGrowth = 1.8;

QColor color(Tone tone)
{
    switch (tone) {
    case Tone::teal:
        return EBKit::teal().current();
    case Tone::indigo:
        return EBKit::indigo().current();
    case Tone::coral:
        break;
    }
    return EBKit::coral().current();
}

QPen inkPen(qreal opacity)
{
    QColor ink = EBKit::ink().current();
    ink.setAlphaF(float(opacity));
    return QPen(ink, 1);
}

QFont sized(QFont font, qreal size)
{
    font.setLetterSpacing(QFont::AbsoluteSpacing, font.letterSpacing() * size / font.pixelSize());
    font.setPixelSize(int(size));
    return font;
}

// Without the spacing behind the last letter.
qreal textWidth(const QFont &font, const QString &text)
{
    return QFontMetricsF(font).horizontalAdvance(text) - font.letterSpacing();
}

/// One picture of the drawing, in points.
class Sheet {
public:
    Sheet(QPainter *painter, const QRectF &bounds);

    void drawGround();
    void drawGrid();
    void drawMark(EBApp app);
    void drawNotes(EBApp app);

private:
    // From the drawing space.
    QPointF place(QPointF p) const { return m_bounds.topLeft() + QPointF(p.x() * m_x, p.y() * m_y); }
    // From the mark's grid.
    QPointF onGrid(QPointF p) const { return m_grid.map(p); }
    qreal sharp(qreal position) const;
    void drawVertical(qreal x);
    void drawHorizontal(qreal y);
    void drawCallout(const Callout &callout, Tone tone);
    void drawText(QPointF leftEnd, qreal width, const QString &text);
    qreal roomAt(qreal y, qreal height) const;
    qreal fittingGrowth(const QFont &font, const QString &text, QPointF position) const;

    QPainter *m_painter;
    QRectF m_bounds;
    qreal m_x;
    qreal m_y;
    QTransform m_grid;
};

Sheet::Sheet(QPainter *painter, const QRectF &bounds)
    : m_painter(painter), m_bounds(bounds), m_x(bounds.width() / spaceWidth), m_y(bounds.height() / spaceHeight)
{
    const qreal even = std::min(m_x, m_y);
    const qreal k = even * markScale;
    const QPointF origin = place({spaceWidth / 2, spaceHeight / 2}) - QPointF(k, k) * MarkGeometry::gridSide / 2;
    m_grid = QTransform(k, 0, 0, k, origin.x(), origin.y());
}

// A hairline is only sharp if it runs along pixels.
qreal Sheet::sharp(qreal position) const
{
    const qreal pixels = m_painter->device()->devicePixelRatio();
    const qreal offset = std::fmod(std::round(pixels), 2) / 2;
    return (std::round(position * pixels - offset) + offset) / pixels;
}

void Sheet::drawVertical(qreal x)
{
    m_painter->drawLine(QPointF(sharp(x), m_bounds.top()), QPointF(sharp(x), m_bounds.bottom()));
}

void Sheet::drawHorizontal(qreal y)
{
    m_painter->drawLine(QPointF(m_bounds.left(), sharp(y)), QPointF(m_bounds.right(), sharp(y)));
}

void Sheet::drawGround()
{
    const QPainterPath ground = continuousRect(m_bounds, cornerRadius);
    m_painter->fillPath(ground, EBKit::sunk().current());
    m_painter->setClipPath(ground);
}

void Sheet::drawGrid()
{
    const QPointF center = m_bounds.center();
    const qreal pitch = module * m_grid.m11();
    if (!(pitch > 1))
        return;
    m_painter->setPen(inkPen(gridOpacity));
    const auto linesWithin = [pitch](qreal extent) { return qCeil(extent / 2 / pitch - 0.5); };
    for (int line = 0; line < linesWithin(m_bounds.width()); ++line) {
        const qreal away = (line + 0.5) * pitch;
        drawVertical(center.x() - away);
        drawVertical(center.x() + away);
    }
    for (int line = 0; line < linesWithin(m_bounds.height()); ++line) {
        const qreal away = (line + 0.5) * pitch;
        drawHorizontal(center.y() - away);
        drawHorizontal(center.y() + away);
    }
    m_painter->setPen(inkPen(blockOpacity));
    const QRectF block = m_grid.mapRect(MarkGeometry::block);
    drawVertical(block.left());
    drawVertical(block.right());
    drawHorizontal(block.top());
    drawHorizontal(block.bottom());
}

void Sheet::drawMark(EBApp app)
{
    QPainterPath mark;
    MarkGeometry::fill(mark, app);
    m_painter->fillPath(m_grid.map(mark), EBKit::ink().current());
    m_painter->setBrush(Qt::NoBrush);
    for (const Circle &circle : circles(app)) {
        m_painter->setPen(QPen(color(circle.tone), 1));
        const qreal radius = circle.radius * m_grid.m11();
        m_painter->drawEllipse(onGrid(circle.center), radius, radius);
    }
}

// The width there is beside the outer circle for a text `height` points high, with its middle at `y` in the drawing
// space.
qreal Sheet::roomAt(qreal y, qreal height) const
{
    const qreal radius = MarkGeometry::block.width() / std::numbers::sqrt2 * m_grid.m11();
    const qreal away = std::max(std::abs(place({0, y}).y() - m_bounds.center().y()) - height / 2, 0.0);
    const qreal chord = std::sqrt(std::max(radius * radius - away * away, 0.0));
    return m_bounds.width() / 2 - chord - clearance - titlePosition.x() * m_x;
}

// How much larger than its font a text can be; below 1 there is no room for it.
qreal Sheet::fittingGrowth(const QFont &font, const QString &text, QPointF position) const
{
    const qreal wanted = std::clamp(std::sqrt(std::min(m_x, m_y)), 1.0, largestGrowth);
    const qreal height = QFontMetricsF(font).capHeight() * wanted + 2 * plateMargin;
    return std::min(roomAt(position.y(), height) / textWidth(font, text), wanted);
}

void Sheet::drawNotes(EBApp app)
{
    const QString heading = title(app);
    const QFont titleFont = sized(EBTypes::font(EBTypeRole::subheading, heading), titleSize);
    if (const qreal growth = fittingGrowth(titleFont, heading, titlePosition); growth >= 1) {
        m_painter->setFont(sized(titleFont, titleSize * growth));
        drawText(place(titlePosition), textWidth(m_painter->font(), heading), heading);
    }

    const QList<Callout> notes = callouts(app);
    const QFont noteFont = EBTypes::font(EBTypeRole::monoSmall, notes.constFirst().text);
    qreal growth = largestGrowth;
    for (const Callout &note : notes)
        growth = std::min(growth, fittingGrowth(noteFont, note.text, note.to));
    if (growth < 1)
        return;
    m_painter->setFont(sized(noteFont, noteFont.pixelSize() * growth));
    for (qsizetype i = 0; i < notes.size(); ++i)
        drawCallout(notes[i], Tone(i % 3));
}

// From the mark the line runs aslant until it is level with the text.
void Sheet::drawCallout(const Callout &callout, Tone tone)
{
    const qreal width = textWidth(m_painter->font(), callout.text);
    const bool onLeft = callout.to.x() < spaceWidth / 2;
    const QPointF from = onGrid(callout.from);
    const QPointF to(place(callout.to).x(), sharp(place(callout.to).y()));
    const QPointF end = to + QPointF(onLeft ? width + clearance : -width - clearance, 0);
    const qreal reach = std::min(std::abs(end.y() - from.y()), std::abs(end.x() - from.x()));
    const QPointF line[] = {from, {from.x() + (onLeft ? -reach : reach), end.y()}, end};

    m_painter->setPen(QPen(color(tone), 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    m_painter->drawPolyline(line, int(std::size(line)));
    m_painter->setBrush(color(tone));
    m_painter->drawEllipse(from, 2, 2);
    drawText(onLeft ? to : to - QPointF(width, 0), width, callout.text);
}

// The ground is cleared of the grid behind it.
void Sheet::drawText(QPointF leftEnd, qreal width, const QString &text)
{
    const qreal capHeight = QFontMetricsF(m_painter->font()).capHeight();
    const QRectF plate(leftEnd.x(), leftEnd.y() - capHeight / 2, width, capHeight);
    m_painter->fillRect(plate.adjusted(-plateMargin, -plateMargin, plateMargin, plateMargin), EBKit::sunk().current());
    m_painter->setPen(EBKit::ink().current());
    m_painter->drawText(plate.bottomLeft(), text);
}

}

ConstructionDrawing::ConstructionDrawing(QQuickItem *parent) : CrispItem(parent)
{
    setImplicitSize(spaceWidth, spaceHeight);
}

QString ConstructionDrawing::displayName() const
{
    const auto product = EBApps::fromRawValue(m_app);
    return product ? EBApps::displayName(*product) : QString();
}

void ConstructionDrawing::paint(QPainter *painter)
{
    Sheet sheet(painter, pixelBounds());
    sheet.drawGround();
    sheet.drawGrid();
    if (const auto product = EBApps::fromRawValue(m_app)) {
        sheet.drawMark(*product);
        sheet.drawNotes(*product);
    }
}
