#pragma once

#include <QIcon>
#include <QQuickItem>
#include <QUrl>
#include <qqmlregistration.h>

class QDrag;

/// The part of the tile that is dragged: a drag from any point of it carries the application as a file to be copied.
/// What it shows stands inside it with a negative `z`, so that the view itself receives the pointer.
class DragTileView : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// The application that is dragged.
    Q_PROPERTY(QUrl appURL READ appURL WRITE setAppURL NOTIFY appURLChanged REQUIRED)
    /// The icon of that application.
    Q_PROPERTY(QIcon icon READ icon NOTIFY appURLChanged)
public:
    explicit DragTileView(QQuickItem *parent = nullptr);

    const QUrl &appURL() const { return m_appURL; }
    void setAppURL(const QUrl &appURL);

    const QIcon &icon() const { return m_icon; }

    /// A drag is under way, whose event loop runs inside this view.
    bool isDragging() const { return m_isDragging; }

    /// What a drag taken up at `point` of the view carries; the caller owns it.
    QDrag *makeDrag(QPointF point);

signals:
    void appURLChanged();
    void dragEnded();

protected:
    void mousePressEvent(QMouseEvent *event) override { event->accept(); }
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    QUrl m_appURL;
    QIcon m_icon;
    bool m_isDragging = false;
};
