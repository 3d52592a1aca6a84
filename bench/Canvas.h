#pragma once

#include <QImage>
#include <QQuickRenderControl>
#include <QQuickWindow>

/// An offscreen window, drawn with the software renderer at scale 1 whenever it is told to.
class Canvas {
public:
    Canvas(QSize size, const QColor &ground);

    const QImage &picture() const { return m_picture; }
    QQuickItem *content() const { return m_window.contentItem(); }

    void draw();

private:
    QQuickRenderControl m_control;
    QQuickWindow m_window;
    QImage m_picture;
};
