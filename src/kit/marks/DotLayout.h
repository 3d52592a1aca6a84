#pragma once

#include <QList>
#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <qqmlregistration.h>

/// A place that a dot field keeps clear, in points: the level segment from (x - a, y) to (x + a, y), thickened by the
/// radius r. With a = 0 it is a disc.
struct Zone {
    Q_GADGET
    QML_VALUE_TYPE(zone)
    Q_PROPERTY(double x MEMBER x)
    Q_PROPERTY(double y MEMBER y)
    Q_PROPERTY(double a MEMBER a)
    Q_PROPERTY(double r MEMBER r)
public:
    double x = 0;
    double y = 0;
    double a = 0;
    double r = 0;

    bool operator==(const Zone &) const = default;
};

namespace DotLayout {

/// The marks of a dot field, in the order in which they are placed: dots, and level and upright bars of two or three
/// cells, each 0.6 cells thick and none across another. The same arguments always give the same list.
///
/// `size` is the area and `cell` the pitch of the grid centred in it, in points. `density` is the chance, 0 to 1, that
/// an open cell begins a mark; it rises from 0 over the distance `ramp` from where the `margin` around a `calm` zone
/// ends. An area that holds no cell gives an empty list. A count of cells that is no number, as with a cell of 0, or
/// that no machine could hold, ends the process.
QList<QRectF> layout(const QSizeF &size, double cell, quint32 seed, double density, double ramp, double margin,
                     const QList<Zone> &calm);

}
