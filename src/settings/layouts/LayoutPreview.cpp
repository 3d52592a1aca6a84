#include "LayoutPreview.h"

#include "ContinuousRectangle.h"
#include "Platform.h"

#include <QIcon>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr qreal margin = 3;
constexpr qreal backgroundRadius = 5;
constexpr qreal windowRadius = 2;
constexpr qreal iconSize = 12;
constexpr qreal smallestWithIcon = 16;

/// Any program may have written the list, with any numbers; beyond these no part of a window is in the picture.
double drawable(double fraction)
{
    return std::clamp(fraction, -100.0, 100.0);
}

/// The rectangle with its edges on whole device pixels, so that a border of one point is not smeared over two. It stays
/// at least a point wide and high.
QRectF onPixels(const QPainter *painter, const QRectF &rect)
{
    const qreal scale = painter->device()->devicePixelRatio();
    const auto snap = [scale](qreal edge) { return std::round(edge * scale) / scale; };
    const qreal point = std::ceil(scale) / scale;
    const QPointF corner(snap(rect.left()), snap(rect.top()));
    return QRectF(
        corner,
        QSizeF(std::max(point, snap(rect.right()) - corner.x()), std::max(point, snap(rect.bottom()) - corner.y())));
}

}

QList<SavedLayout::Window> LayoutPreviews::shown(const SavedLayout &layout)
{
    QList<SavedLayout::Window> windows;
    for (const SavedLayout::Window &window : layout.windows) {
        if (window.display == layout.windows.constFirst().display)
            windows.append(window);
    }
    return windows;
}

QRectF LayoutPreviews::shape(const UnitRect &rect, QSizeF size)
{
    const qreal width = size.width() - 2 * margin;
    const qreal height = size.height() - 2 * margin;
    return QRectF(margin + drawable(rect.x) * width, margin + drawable(rect.y) * height,
                  std::max(1.0, drawable(rect.w) * width), std::max(1.0, drawable(rect.h) * height));
}

void LayoutPreview::setLayout(const QVariant &layout)
{
    const auto value = layout.value<SavedLayout>();
    if (m_layout == value)
        return;
    m_layout = value;
    emit changed();
}

QString LayoutPreview::label() const
{
    QStringList applications;
    for (const SavedLayout::Window &window : m_layout.windows)
        applications.append(window.app);
    //: %1 stands for the names of the windows' applications.
    return tr("%n windows: %1", nullptr, int(m_layout.windows.size())).arg(applications.join(QStringLiteral(", ")));
}

void LayoutPreview::paint(QPainter *painter)
{
    paintContinuousRect(painter, pixelBounds(), backgroundRadius, m_color);
    painter->setClipRect(pixelBounds());
    for (const SavedLayout::Window &window : LayoutPreviews::shown(m_layout))
        paintWindow(painter, window);
}

void LayoutPreview::paintWindow(QPainter *painter, const SavedLayout::Window &window) const
{
    const QRectF exact = LayoutPreviews::shape(window.rect, size());
    const QRectF shape = onPixels(painter, exact);
    paintContinuousRect(painter, shape, windowRadius, m_windowColor, m_borderColor, 1);
    if (exact.width() < smallestWithIcon || exact.height() < smallestWithIcon)
        return;
    QRectF place(0, 0, iconSize, iconSize);
    place.moveCenter(shape.center());
    place = onPixels(painter, place);
    // Without an icon this paints nothing.
    Platform::current().workspace().iconForApplication(window.bundleID).paint(painter, place.toRect());
}
