#pragma once

#include "EBApp.h"
#include "EBType.h"

#include <QColor>

/// How a button of the kit looks: its variant, its size, and whether a round badge with an arrow follows the
/// label.
struct EBButtonStyle {
    enum class Variant { primary, secondary, onLoud, plain };
    enum class Size { md, sm, xs };
    using Variants = NamedCases<Variant>;
    using Sizes = NamedCases<Size>;

    Variant variant = Variant::primary;
    Size size = Size::md;
    bool arrow = false;

    /// Points.
    struct Geometry {
        qreal height;
        qreal spacing;
        qreal leadingPadding;
        qreal trailingPadding;
        qreal badgeDiameter;
        qreal arrowSize;
    };
    Geometry geometry() const;

    QFont font() const;

    /// Resolved against the appearance as it is now. A colour that is not drawn is transparent.
    struct Colors {
        QColor foreground;
        QColor fill;
        QColor border;
        QColor badge;
    };
    Colors colors(EBApp app, bool pressed) const;
};
