#pragma once

#include "EBKitApp.h"
#include "EBKitControl.h"

#include <QVariantAnimation>

#include <functional>

/// An on/off switch: a press turns it over and tells `onChange`.
class EBKitSwitch : public EBKitControl {
    Q_OBJECT
public:
    EBKitSwitch(bool isOn, EBKitApp app, QString label, std::function<void(bool)> onChange, QWidget *parent = nullptr);

    bool isOn() const { return m_isOn; }
    /// Turns it at once and tells nobody.
    void setIsOn(bool isOn);
    const EBKitApp &app() const { return m_app; }
    /// The name for accessibility; it is not drawn.
    const QString &label() const { return m_label; }

    /// Called with the new value after a person has turned the switch.
    std::function<void(bool)> onChange;

    QColor ringColor() const override { return m_app.color.current(); }
    QSize sizeHint() const override;

protected:
    void activate() override;
    void draw(QPainter &painter) override;

private:
    void turn(bool isOn, int milliseconds);

    bool m_isOn;
    EBKitApp m_app;
    QString m_label;
    /// Where the knob is on its way from off, 0, to on, 1.
    QVariantAnimation m_position;
};
