#include "MarkFace.h"

#include "MarkShape.h"

#include <QPainter>

MarkFace::MarkFace(QQuickItem *parent) : CrispItem(parent)
{
    const auto measure = [this] { setImplicitSize(m_size, m_size); };
    connect(this, &MarkFace::changed, this, measure);
    measure();
}

QString MarkFace::displayName() const
{
    const auto product = EBApps::fromRawValue(m_app);
    return product ? EBApps::displayName(*product) : QString();
}

void MarkFace::paint(QPainter *painter)
{
    const auto product = EBApps::fromRawValue(m_app);
    if (!product || !(m_size > 0))
        return;
    QRectF box(0, 0, m_size, m_size);
    box.moveCenter(boundingRect().center());
    painter->fillPath(MarkShape{*product}.sharpPath(box, painter->deviceTransform()), m_color);
}
