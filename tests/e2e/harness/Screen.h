#pragma once

#include <QColor>
#include <QImage>

class XConnection;

/// What the virtual display shows. Points are pixels of the screen.
class Screen {
public:
    explicit Screen(const XConnection &x) : m_x(x) { }

    /// A picture of the part `region` of the screen, of the whole screen when it is empty.
    QImage picture(QRect region = {}) const;

    QColor pixel(QPoint at) const;

    /// Waits until the pixel has that colour. The last colour seen stands in `pixel` afterwards.
    bool waitForPixel(QPoint at, const QColor &color, int milliseconds = 5000) const;

private:
    const XConnection &m_x;
};
