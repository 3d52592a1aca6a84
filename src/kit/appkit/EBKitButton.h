#pragma once

#include "EBKitControl.h"
#include "EBKitText.h"

#include <functional>

/// A pill-shaped text button. It is as wide as its title wants; with less room the title is cut short.
class EBKitButton : public EBKitControl {
    Q_OBJECT
public:
    enum class Variant { primary, secondary };

    /// `height` is in points.
    EBKitButton(EBKitText title, Variant variant, qreal height, std::function<void()> action,
                QWidget *parent = nullptr);

    const EBKitText &title() const { return m_title; }
    Variant variant() const { return m_variant; }
    qreal height() const { return m_height; }
    std::function<void()> action;
    bool pressed() const { return isHeld(); }
    void setPressed(bool pressed) { setHeld(pressed); }

    QMargins panelMargins() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void activate() override;
    void draw(QPainter &painter) override;

private:
    qreal padding() const;

    EBKitText m_title;
    Variant m_variant;
    qreal m_height;
};
