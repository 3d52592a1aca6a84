#include "KeyboardRing.h"

#include "ContinuousRectangle.h"
#include "EBKitControl.h"
#include "KitMetrics.h"
#include "Platform.h"

#include <QEvent>
#include <QPainter>

namespace {

constexpr int reach = int(KitMetric::ringGap + KitMetric::ringWidth);

}

KeyboardRing::KeyboardRing(EBKitControl &control) : QFocusFrame(control.parentWidget()), m_control(control)
{
    control.installEventFilter(this);
    connect(&Platform::current().appearance(), &Appearance::changed, this, qOverload<>(&QWidget::update));
    follow();
    raise();
    setVisible(!control.isHidden());
}

void KeyboardRing::follow()
{
    setGeometry(m_control.geometry().adjusted(-reach, -reach, reach, reach));
}

bool KeyboardRing::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        follow();
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
        setVisible(!m_control.isHidden());
    return QFocusFrame::eventFilter(object, event);
}

void KeyboardRing::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintContinuousRect(&painter, QRectF(rect()), m_control.shapeRadius() + reach, Qt::transparent,
                        m_control.ringColor(), KitMetric::ringWidth);
}
