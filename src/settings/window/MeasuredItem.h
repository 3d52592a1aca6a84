#pragma once

#include <QQuickItem>
#include <qqmlregistration.h>

/// A root view that tells how large its content wants to be. Whoever sizes the window listens.
class MeasuredItem : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// Points.
    Q_PROPERTY(QSizeF contentSize READ contentSize WRITE setContentSize NOTIFY contentSizeChanged)
public:
    using QQuickItem::QQuickItem;

    QSizeF contentSize() const { return m_contentSize; }
    void setContentSize(QSizeF size);

    /// Lays everything out now instead of at the next frame, so that `contentSize` is true.
    void settle();

signals:
    void contentSizeChanged();
    /// The size has changed. Said once a frame, however often the layout moved in between.
    void measured(QSizeF size);

protected:
    void updatePolish() override { emit measured(m_contentSize); }

private:
    QSizeF m_contentSize;
};
