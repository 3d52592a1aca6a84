#include "WindowIcon.h"

#include "EBApp.h"
#include "MarkGeometry.h"

#include <QPainter>
#include <QPainterPath>

namespace {

// In the units of the drawing.
constexpr int side = 128;
constexpr QRectF card(6, 6, 116, 116);
constexpr qreal cardRadius = 27;
constexpr qreal markScale = 1.25;

QPixmap picture(int size)
{
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.scale(qreal(size) / side, qreal(size) / side);
    painter.setBrush(EBApps::family(EBApp::corvane).accent.resolved(AppearanceName::Aqua));
    painter.drawRoundedRect(card, cardRadius, cardRadius);

    QPainterPath mark;
    MarkGeometry::fill(mark, EBApp::corvane);
    painter.translate(card.center());
    painter.scale(markScale, markScale);
    painter.translate(-MarkGeometry::block.center());
    painter.fillPath(mark, Qt::white);
    return picture;
}

}

QIcon windowIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64})
        icon.addPixmap(picture(size));
    return icon;
}
