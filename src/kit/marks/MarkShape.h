#pragma once

#include "EBApp.h"

#include <QPainterPath>
#include <QRectF>

/// A product's mark that fits itself into a rectangle.
struct MarkShape {
    EBApp app;

    /// The outline in the units of `rect`, to be filled: 64 units of its grid span the short side, centred along both.
    /// A rectangle without area collapses the outline onto its centre; a non-finite one gives an empty path.
    QPainterPath path(const QRectF &rect) const;
};
