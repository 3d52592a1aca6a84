#pragma once

#include <QFocusFrame>

class EBKitControl;

/// The ring around a control that the keyboard has brought the focus to, as `FocusRing` draws it in the declarative
/// views. It lies over the control's siblings and follows the control. A focus frame, so that assistive technologies
/// pass over it.
class KeyboardRing : public QFocusFrame {
    Q_OBJECT
public:
    /// `control` stands in another view and outlives the ring.
    explicit KeyboardRing(EBKitControl &control);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void follow();

    EBKitControl &m_control;
};
