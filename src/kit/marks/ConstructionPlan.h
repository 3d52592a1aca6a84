#pragma once

#include "EBApp.h"

#include <QList>
#include <QPointF>
#include <QString>

/// What a mark's construction drawing consists of, apart from the mark: where its circles, grid lines and notes stand.
namespace ConstructionPlan {

/// The drawing space, in units. It is scaled to a view by its width and its height apart, which says where things
/// stand; what has a form (the mark, circles, letters) is scaled evenly.
inline constexpr qreal spaceWidth = 160;
inline constexpr qreal spaceHeight = 120;

/// How many units of the drawing space a unit of the mark's grid takes, before either is scaled.
inline constexpr qreal markScale = 1.5;

/// The pitch of the grid's lines in grid units: a pill and a gap.
inline constexpr qreal module = 19;

enum class Tone { teal, indigo, coral };

/// In grid units.
struct Circle {
    QPointF center;
    qreal radius;
    Tone tone;
};

/// The circles around and in the block, then those that round the parts of the mark.
QList<Circle> circles(EBApp app);

/// A note beside the mark, with a line that leads there.
struct Callout {
    /// A point on the mark, or in the gap the note names, in grid units.
    QPointF from;
    /// Where the note stands, in the drawing space: in its left half this is the text's left end, in its right half the
    /// right end.
    QPointF to;
    QString text;
};

QList<Callout> callouts(EBApp app);

/// The title's left end, at half its height, in the drawing space.
inline constexpr QPointF titlePosition(6, 18);
QString title(EBApp app);

}
