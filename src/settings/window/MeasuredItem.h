#pragma once

#include <QQuickItem>
#include <qqmlregistration.h>

#include <limits>

/// A root view that tells how large its content wants to be. Whoever sizes the window listens. It is a focus scope.
class MeasuredItem : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// Points.
    Q_PROPERTY(QSizeF contentSize READ contentSize WRITE setContentSize NOTIFY contentSizeChanged)
    /// How high the window can become where it stands, in points.
    Q_PROPERTY(qreal roomHeight READ roomHeight WRITE setRoomHeight NOTIFY roomHeightChanged)
    /// Whether the content is higher. It changes only after the window has had a chance to make room: a page for which
    /// the window merely moves up is not to get a scroll bar first.
    Q_PROPERTY(bool overflows READ overflows NOTIFY overflowsChanged)
public:
    explicit MeasuredItem(QQuickItem *parent = nullptr);

    QSizeF contentSize() const { return m_contentSize; }
    void setContentSize(QSizeF size);

    qreal roomHeight() const { return m_roomHeight; }
    void setRoomHeight(qreal height);

    bool overflows() const { return m_overflows; }

    /// Lays everything out now instead of at the next frame, so that `contentSize` is true.
    void settle();

signals:
    void contentSizeChanged();
    void roomHeightChanged();
    void overflowsChanged();
    /// The size has changed. Emitted at most once a frame, however often the layout moved in between.
    void measured(QSizeF size);

protected:
    void updatePolish() override;

private:
    void compareWithRoom();

    QSizeF m_contentSize;
    qreal m_roomHeight = std::numeric_limits<qreal>::infinity();
    bool m_overflows = false;
};
