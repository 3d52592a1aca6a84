#include "DragTileView.h"

#include "IconImage.h"
#include "Platform.h"

#include <QCursor>
#include <QDrag>
#include <QMimeData>
#include <QQuickWindow>

namespace {

/// Where the dragged picture leaves the view.
constexpr QPointF pictureCorner(12, 10);
constexpr int pictureSide = 56;

}

DragTileView::DragTileView(QQuickItem *parent) : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setCursor(Qt::OpenHandCursor);
}

void DragTileView::setAppURL(const QUrl &appURL)
{
    if (appURL == m_appURL)
        return;
    m_appURL = appURL;
    m_icon = Platform::current().workspace().iconForFile(appURL.toLocalFile());
    emit appURLChanged();
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
