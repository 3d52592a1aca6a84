#pragma once

#include "DotLayout.h"

/// The measures of a loud screen, which follow from its size. It is designed for 560 × 388 points and grows from there;
/// a smaller window shows a part of it.
struct LoudGeometry {
    Q_GADGET
    QML_VALUE_TYPE(loudGeometry)
    Q_PROPERTY(qreal k MEMBER k)
    Q_PROPERTY(qreal m MEMBER m)
    Q_PROPERTY(QList<Zone> calm MEMBER calm)
public:
    /// How many times larger than designed the mark and the hero word are; at least 1.
    qreal k = 1;
    /// The width of the content column in points; it stops growing at 275.
    qreal m = 220;
    /// Where the dot field stays clear: around the window's buttons, the counter, the mark, the content column and the
    /// foot of the hero word, in this order.
    QList<Zone> calm;

    /// `size` in points. `mirrored` has the leading edge at the right.
    static LoudGeometry of(const QSizeF &size, bool mirrored);
};
