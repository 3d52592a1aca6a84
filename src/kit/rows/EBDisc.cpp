#include "EBDisc.h"

#include "ContinuousRectangle.h"
#include "EBKit.h"
#include "Glyph.h"
#include "KitMetrics.h"

EBDisc::EBDisc(QQuickItem *parent) : CrispItem(parent)
{
    connect(this, &EBDisc::changed, this, &EBDisc::adapt);
    adapt();
}

void EBDisc::adapt()
{
    const qreal diameter = m_small ? KitMetric::smallDiscDiameter : KitMetric::discDiameter;
    setImplicitSize(diameter, diameter);
    if (!m_on || m_environment)
        return;
    m_environment = EBEnvironment::of(this);
    connect(m_environment, &EBEnvironment::changed, this, &QQuickItem::update);
}

void EBDisc::paint(QPainter *painter)
{
    if (m_on)
        paintCapsule(painter, pixelBounds(), m_environment->accent());
    else
        paintCapsule(painter, pixelBounds(), Qt::transparent, EBKit::lineStrong().current());
    if (const auto glyph = GlyphNames::fromRawValue(m_glyph))
        paintGlyph(painter, *glyph, m_small ? KitMetric::smallDiscGlyph : KitMetric::discGlyph,
                   m_on ? m_environment->onAccent() : EBKit::ink().current(), boundingRect());
}
