#pragma once

#include "EBKitView.h"
#include "KeyboardRing.h"

#include <QPointer>

/// What every view that can be pressed does: the pointer, Space, Return, Enter and an assistive technology press it,
/// and it has a ring while the keyboard has brought the focus to it.
class EBKitControl : public EBKitView {
    Q_OBJECT
public:
    explicit EBKitControl(QWidget *parent = nullptr);
    ~EBKitControl() override;

    /// Does what a press does; nothing while the control is disabled. The control may be gone afterwards.
    void press();

    /// The corner radius of the control's shape, which fills it: what lies outside takes no click.
    virtual qreal shapeRadius() const;

    /// The colour of the ring around it.
    virtual QColor ringColor() const;

protected:
    virtual void activate() = 0;

    bool isHeld() const { return m_held; }
    bool isHovered() const { return m_hovered; }

    /// Whether it is being pressed, and whether the pointer is over it.
    void setHeld(bool held);
    void setHovered(bool hovered);

    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool isInShape(const QPointF &point) const;
    void showRing(bool shown);

    bool m_held = false;
    bool m_hovered = false;
    /// The current press began in this control.
    bool m_tracking = false;
    bool m_keyboardFocus = false;
    /// Owned by the surrounding view.
    QPointer<KeyboardRing> m_ring;
};
