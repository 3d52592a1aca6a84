#include "Glyph.h"

#include "GlyphShape.h"

#include <QPainter>

Glyph::Glyph(QQuickItem *parent) : CrispItem(parent)
{
    setImplicitSize(m_size, m_size);
}

void Glyph::setName(const QString &name)
{
    if (!assign(m_name, name))
        return;
    m_glyph = glyphName(name);
    emit nameChanged();
}

void Glyph::setSize(qreal size)
{
    if (!assign(m_size, size))
        return;
    setImplicitSize(m_size, m_size);
    emit sizeChanged();
}

void Glyph::setColor(const QColor &color)
{
    if (assign(m_color, color))
        emit colorChanged();
}

void Glyph::paint(QPainter *painter)
{
    if (m_glyph)
        paintGlyph(painter, *m_glyph, m_size, m_color, boundingRect());
}

void paintGlyph(QPainter *painter, GlyphName name, qreal size, const QColor &color, const QRectF &bounds)
{
    if (!(size > 0))
        return;
    QRectF box(0, 0, size, size);
    box.moveCenter(bounds.center());
    QPen pen(color, glyphStrokeWidth(size), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    pen.setMiterLimit(10);
    painter->strokePath(GlyphShape{name}.path(box), pen);
}
