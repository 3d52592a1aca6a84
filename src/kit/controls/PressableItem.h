#pragma once

#include "FocusItem.h"

/// What is pressed: by the mouse, a finger, Space, Return or Enter. It has a picture that fills it, and in front of
/// that a content inside its paddings, both of which it lays out.
class PressableItem : public FocusItem {
    Q_OBJECT
    QML_ELEMENT
    /// What it is called; a button shows it.
    Q_PROPERTY(QString text MEMBER m_text NOTIFY textChanged)
    /// It is held down where letting go would click it.
    Q_PROPERTY(bool pressed READ pressed NOTIFY pressedChanged)
    /// A click gives it the keyboard focus too; true unless set.
    Q_PROPERTY(bool takesFocusByClick MEMBER m_takesFocusByClick NOTIFY takesFocusByClickChanged)
    /// The pointer is over it.
    Q_PROPERTY(bool hovered READ hovered NOTIFY hoveredChanged)
    Q_PROPERTY(QQuickItem *background READ background WRITE setBackground NOTIFY backgroundChanged)
    Q_PROPERTY(QQuickItem *contentItem READ contentItem WRITE setContentItem NOTIFY contentItemChanged)
    /// Left and right of the content, in points; 0 unless set.
    Q_PROPERTY(qreal horizontalPadding MEMBER m_horizontalPadding NOTIFY horizontalPaddingChanged)
    /// The size the content would like to have, without the padding.
    Q_PROPERTY(qreal implicitContentWidth READ implicitContentWidth NOTIFY implicitContentWidthChanged)
    Q_PROPERTY(qreal implicitContentHeight READ implicitContentHeight NOTIFY implicitContentHeightChanged)
public:
    explicit PressableItem(QQuickItem *parent = nullptr);

    bool pressed() const { return m_pressed; }
    bool hovered() const { return m_hovered; }
    QQuickItem *background() const { return m_background; }
    void setBackground(QQuickItem *background);
    QQuickItem *contentItem() const { return m_contentItem; }
    void setContentItem(QQuickItem *contentItem);
    qreal implicitContentWidth() const { return m_contentItem ? m_contentItem->implicitWidth() : 0; }
    qreal implicitContentHeight() const { return m_contentItem ? m_contentItem->implicitHeight() : 0; }

signals:
    void textChanged();
    void pressedChanged();
    void hoveredChanged();
    void takesFocusByClickChanged();
    void backgroundChanged();
    void contentItemChanged();
    void horizontalPaddingChanged();
    void implicitContentWidthChanged();
    void implicitContentHeightChanged();

    /// It was pressed and let go.
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    /// What is not shown lets go of everything, the keyboard focus too.
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void setPressed(bool pressed);
    void setHovered(bool hovered);
    void layOut();

    QString m_text;
    QQuickItem *m_background = nullptr;
    QQuickItem *m_contentItem = nullptr;
    qreal m_horizontalPadding = 0;
    bool m_pressed = false;
    bool m_hovered = false;
    bool m_takesFocusByClick = true;
};
