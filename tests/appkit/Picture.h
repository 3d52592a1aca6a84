#pragma once

#include "Colors.h"
#include "EBApp.h"
#include "EBKit.h"
#include "EBKitApp.h"
#include "KitText.h"

#include <QImage>
#include <QPainter>
#include <QWidget>

/// What views are drawn on, a colour that none of them has.
inline const QColor ground(0, 0, 200);

/// A picture of a view on a ground, four pixels a point.
class Picture {
public:
    static constexpr int zoom = 4;

    explicit Picture(QWidget &view, const QColor &on = ground) : m_image(view.size() * zoom, format)
    {
        m_image.setDevicePixelRatio(zoom);
        m_image.fill(on);
        QPainter painter(&m_image);
        view.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    }

    /// The colour at a place in points.
    QColor at(qreal x, qreal y) const { return m_image.pixelColor(int(x * zoom), int(y * zoom)); }
    QColor at(QPointF place) const { return at(place.x(), place.y()); }

    /// The smallest rectangle, in points, around all that does not have the colour `on` within `within`.
    QRectF inked(const QRectF &within, const QColor &on) const
    {
        QRect found;
        for (int y = int(within.top() * zoom); y < int(within.bottom() * zoom); ++y) {
            for (int x = int(within.left() * zoom); x < int(within.right() * zoom); ++x) {
                if (!isNear(m_image.pixelColor(x, y), on))
                    found |= QRect(x, y, 1, 1);
            }
        }
        return {found.x() / qreal(zoom), found.y() / qreal(zoom), found.width() / qreal(zoom),
                found.height() / qreal(zoom)};
    }

    bool operator==(const Picture &other) const { return m_image == other.m_image; }

private:
    static constexpr QImage::Format format = QImage::Format_ARGB32_Premultiplied;

    QImage m_image;
};

#define COMPARE_COLOR(actual, expected)                                                                                \
    QVERIFY2(isNear(actual, expected), qPrintable((actual).name() + " instead of " + (expected).name()))

inline EBKitText titleText(const QString &string)
{
    return KitText::make(string, EBTypeRole::bodyStrong, EBKit::ink());
}

inline EBKitText captionText(const QString &string)
{
    return KitText::make(string, EBTypeRole::caption, EBKit::inkMuted());
}
