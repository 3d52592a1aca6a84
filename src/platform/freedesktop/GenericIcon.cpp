#include "GenericIcon.h"

#include <QPainter>

namespace {

/// A window with a title bar, in greys that show on light and on dark.
QPixmap drawn(int side)
{
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / 16.0, side / 16.0);
    painter.setPen(QPen(QColor(0x70, 0x70, 0x78), 0.5));
    painter.setBrush(QColor(0xE8, 0xE8, 0xEC));
    painter.drawRoundedRect(QRectF(1.5, 2.5, 13, 11), 2, 2);
    painter.drawLine(QPointF(1.5, 5.5), QPointF(14.5, 5.5));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x70, 0x70, 0x78));
    for (const qreal x : {3.5, 5.25, 7.0})
        painter.drawEllipse(QPointF(x, 4), 0.5, 0.5);
    return picture;
}

}

QIcon genericApplicationIcon()
{
    QIcon icon = QIcon::fromTheme(QStringLiteral("application-x-executable"));
    if (!icon.isNull())
        return icon;
    for (const int side : {16, 32, 64, 128, 256})
        icon.addPixmap(drawn(side));
    return icon;
}
