#include "ScreenGeometry.h"

LoudGeometry ScreenGeometry::loud(const QSizeF &size, bool mirrored)
{
    return LoudGeometry::of(size, mirrored);
}

QList<Zone> ScreenGeometry::panelCalm()
{
    return {{50, 20, 30, 18}, {66, 116, 30, 72}, {50, 330, 0, 70}};
}

QList<Zone> ScreenGeometry::mirroredPanelCalm()
{
    return mirroredZones(panelCalm(), panelWidth());
}

QList<Zone> mirroredZones(QList<Zone> zones, qreal width)
{
    for (Zone &zone : zones)
        zone.x = width - zone.x;
    return zones;
}
