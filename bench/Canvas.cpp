#include "Canvas.h"

#include <QQuickItem>
#include <QQuickRenderTarget>

Canvas::Canvas(QSize size, const QColor &ground) : m_window(&m_control), m_picture(size, QImage::Format_RGB32)
{
    m_window.setColor(ground);
    m_window.resize(size);
    m_window.contentItem()->setSize(size);
    m_window.setRenderTarget(QQuickRenderTarget::fromPaintDevice(&m_picture));
}

void Canvas::draw()
{
    m_control.polishItems();
    m_control.beginFrame();
    m_control.sync();
    m_control.render();
    m_control.endFrame();
}
