#pragma once

#include "OverlayButton.h"

#include <QPainterPath>
#include <QRectF>

/// The sign inside an overlay button: a cross, a bar, or an arrow with two heads.
struct ButtonGlyph {
    OverlayButton kind;

    /// Open lines in the middle of `rect`, made to be stroked and never filled, y growing downwards. How far they reach
    /// depends on the width alone; `rect` is taken to be square.
    QPainterPath path(const QRectF &rect) const;
};
