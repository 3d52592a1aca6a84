#include "EBKitSwitch.h"

#include "EBKit.h"
#include "KitMetrics.h"
#include "Motion.h"
#include "SwitchFace.h"

#include <QAccessible>
#include <QPainter>

EBKitSwitch::EBKitSwitch(bool isOn, EBKitApp app, QString label, std::function<void(bool)> onChange, QWidget *parent)
    : EBKitControl(parent),
      onChange(std::move(onChange)),
      m_isOn(isOn),
      m_app(std::move(app)),
      m_label(std::move(label))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    resize(EBKitSwitch::sizeHint());
    setAccessibleName(m_label);
    m_position.setEasingCurve(Motion::easeOut());
    connect(&m_position, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    turn(isOn, 0);
}

QSize EBKitSwitch::sizeHint() const
{
    return switchSize.toSize();
}

void EBKitSwitch::setIsOn(bool isOn)
{
    if (m_isOn != isOn)
        turn(isOn, 0);
}

void EBKitSwitch::activate()
{
    turn(!m_isOn, Motion::duration(KitMetric::switchSeconds));
    const auto tell = onChange;
    if (tell)
        tell(m_isOn);
}

void EBKitSwitch::turn(bool isOn, int milliseconds)
{
    const QVariant from = m_position.currentValue();
    m_isOn = isOn;
    m_position.stop();
    m_position.setDuration(milliseconds);
    m_position.setStartValue(milliseconds > 0 ? from.toReal() : qreal(isOn));
    m_position.setEndValue(qreal(isOn));
    if (milliseconds > 0)
        m_position.start();
    update();

    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void EBKitSwitch::draw(QPainter &painter)
{
    painter.translate((width() - switchSize.width()) / 2, (height() - switchSize.height()) / 2);
    paintSwitch(
        &painter, m_position.currentValue().toReal(), layoutDirection() == Qt::RightToLeft,
        {EBKit::track().current(), m_app.color.current(), EBKit::knob().current(), EBKit::lineStrong().current()});
}
