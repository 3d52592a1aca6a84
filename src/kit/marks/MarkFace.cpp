#include "MarkFace.h"

#include "MarkShape.h"

#include <QPainter>

MarkFace::MarkFace(QQuickItem *parent) : CrispItem(parent)
{
    setImplicitSize(m_size, m_size);
}

void MarkFace::setApp(const QString &rawValue)
{
    if (assign(m_app, rawValue))
        emit appChanged();
}

QString MarkFace::displayName() const
{
    const auto product = EBApps::fromRawValue(m_app);
    return product ? EBApps::displayName(*product) : QString();
}

void MarkFace::setSize(qreal size)
{
    if (!assign(m_size, size))
        return;
    setImplicitSize(m_size, m_size);
    emit sizeChanged();
}

void MarkFace::setColor(const QColor &color)
{
    if (assign(m_color, color))
        emit colorChanged();
}

void MarkFace::paint(QPainter *painter)
{
    const auto product = EBApps::fromRawValue(m_app);
    if (!product || !(m_size > 0))
        return;
    QRectF box(0, 0, m_size, m_size);
    box.moveCenter(boundingRect().center());
    painter->fillPath(MarkShape{*product}.path(box), m_color);
}
