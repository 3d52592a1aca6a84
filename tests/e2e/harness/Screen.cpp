#include "Screen.h"

#include "XConnection.h"
#include "XReply.h"

#include <QTest>

QImage Screen::picture(QRect region) const
{
    const QRect whole({}, m_x.size());
    region = region.isEmpty() ? whole : region.intersected(whole);
    const auto request = xcb_get_image(m_x, XCB_IMAGE_FORMAT_Z_PIXMAP, m_x.root(), qint16(region.x()),
                                       qint16(region.y()), quint16(region.width()), quint16(region.height()), ~0U);
    const XReply<xcb_get_image_reply_t> reply(xcb_get_image_reply(m_x, request, nullptr));
    if (!reply)
        return {};
    // At 24 bits a pixel the server sends whole words in the byte order of this machine, which it runs on
    // too.
    return QImage(xcb_get_image_data(reply.get()), region.width(), region.height(), QImage::Format_RGB32).copy();
}

QColor Screen::pixel(QPoint at) const
{
    return picture({at, QSize(1, 1)}).pixelColor(0, 0);
}

bool Screen::waitForPixel(QPoint at, const QColor &color, int milliseconds) const
{
    return QTest::qWaitFor([&] { return pixel(at) == color; }, milliseconds);
}
