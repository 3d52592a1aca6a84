#pragma once

#include <QIcon>
#include <QQuickItem>
#include <QUrl>

class QDrag;

/// The part of the tile that is dragged: a drag from any point of it carries the application as a file to be copied.
class DragTileView : public QQuickItem {
    Q_OBJECT
public:
    /// `content` is drawn as large as the view and never takes the pointer from it. The view takes ownership.
    DragTileView(const QUrl &appURL, const QIcon &icon, QQuickItem *content);

    const QUrl &appURL() const { return m_appURL; }

    /// A drag is under way, whose event loop runs inside this view.
    bool isDragging() const { return m_isDragging; }

    /// What a drag taken up at `point` of the view carries; the caller owns it.
    QDrag *makeDrag(QPointF point);

signals:
    void dragEnded();

protected:
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void mousePressEvent(QMouseEvent *event) override { event->accept(); }
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    QUrl m_appURL;
    QIcon m_icon;
    QQuickItem *m_content;
    bool m_isDragging = false;
};
