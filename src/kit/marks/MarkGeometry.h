#pragma once

#include "EBApp.h"

#include <QPainterPath>
#include <QRectF>

#include <span>

/// The products' marks on their square construction grid, in grid units, y growing downwards.
namespace MarkGeometry {

/// The side of the grid; its centre is the centre of every mark.
inline constexpr qreal gridSide = 120;

/// What a mark is given of the grid when it is fitted into a rectangle: this much of it, around its centre, spans the
/// short side. The blocks of 53 units keep a margin of 5.5 in it.
inline constexpr qreal shownSide = 64;

/// The thickness of every pill, and the room between neighbouring parts.
inline constexpr qreal thickness = 15;
inline constexpr qreal gap = 4;

/// The square all marks are built in.
inline constexpr QRectF block(33.5, 33.5, 53, 53);

/// The parts of a mark, in drawing order: a square is a circle, any other rectangle a pill along its long side.
std::span<const QRectF> parts(EBApp app);

/// Appends one part of a mark, at any scale.
void add(QPainterPath &path, const QRectF &part);

/// Appends the product's mark to `path`.
void fill(QPainterPath &path, EBApp app);

}
