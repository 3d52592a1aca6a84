#pragma once

#include "EBApp.h"

#include <QPainterPath>
#include <QRectF>
#include <QTransform>

/// A product's mark that fits itself into a rectangle.
struct MarkShape {
    EBApp app;

    /// The outline in the units of `rect`, to be filled: 64 units of its grid span the short side, centred along both.
    /// A rectangle without area collapses the outline onto its centre; a non-finite one gives an empty path.
    QPainterPath path(const QRectF &rect) const;

    /// The same with the edges of all parts on the nearest whole pixels, on which a small mark is clear. `toPixels`
    /// leads from the units of `rect` to the pixels of the device; it only moves and scales.
    QPainterPath sharpPath(const QRectF &rect, const QTransform &toPixels) const;
};
