#pragma once

#include "EBKitSwitch.h"
#include "EBKitText.h"
#include "EBKitView.h"

/// A shortcut: what it does, its keys on a cap, and the switch that turns it on and off.
class EBKitKeyRow : public EBKitView {
    Q_OBJECT
public:
    /// Takes the switch.
    EBKitKeyRow(EBKitText keys, EBKitText title, EBKitSwitch *toggle, QWidget *parent = nullptr);

    const EBKitText &keys() const { return m_keys; }
    const EBKitText &title() const { return m_title; }
    EBKitSwitch &toggle() const { return *m_toggle; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void placeContent() override;
    void draw(QPainter &painter) override;

private:
    QSizeF capSize() const;

    EBKitText m_keys;
    EBKitText m_title;
    EBKitSwitch *m_toggle;
    QRectF m_capRect;
    QRectF m_titleRect;
};
