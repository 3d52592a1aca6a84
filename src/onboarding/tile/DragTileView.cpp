#include "DragTileView.h"

#include "IconImage.h"

#include <QCursor>
#include <QDrag>
#include <QMimeData>
#include <QQuickWindow>

namespace {

/// Where the dragged picture leaves the view.
constexpr QPointF pictureCorner(12, 10);
constexpr int pictureSide = 56;

}

DragTileView::DragTileView(const QUrl &appURL, const QIcon &icon, QQuickItem *content)
    : m_appURL(appURL), m_icon(icon), m_content(content)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setCursor(Qt::OpenHandCursor);
    content->setParent(this);
    content->setParentItem(this);
    // Behind the view itself, so that the view receives the pointer.
    content->setZ(-1);
}

void DragTileView::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    m_content->setSize(now.size());
}

QDrag *DragTileView::makeDrag(QPointF point)
{
    auto *data = new QMimeData;
    data->setUrls({m_appURL});
    auto *drag = new QDrag(this);
    drag->setMimeData(data);
    drag->setPixmap(IconImage::picture(m_icon, pictureSide, window()->effectiveDevicePixelRatio()));
    drag->setHotSpot((point - pictureCorner).toPoint());
    return drag;
}

void DragTileView::mouseMoveEvent(QMouseEvent *event)
{
    if (m_isDragging)
        return;
    // The button is released over another window, so that no release arrives here.
    ungrabMouse();
    m_isDragging = true;
    makeDrag(event->position())->exec(Qt::CopyAction, Qt::CopyAction);
    m_isDragging = false;
    emit dragEnded();
}
