#pragma once

#include "LoudGeometry.h"

/// What the screens compute, for QML.
class ScreenGeometry : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// The width of a step screen's panel, in points.
    Q_PROPERTY(qreal panelWidth READ panelWidth CONSTANT)
    /// Where the panel's dot field stays clear: around the window's buttons, the steps and the mark.
    Q_PROPERTY(QList<Zone> panelCalm READ panelCalm CONSTANT)
    /// The same when the leading edge is at the right.
    Q_PROPERTY(QList<Zone> mirroredPanelCalm READ mirroredPanelCalm CONSTANT)
public:
    using QObject::QObject;

    static qreal panelWidth() { return 206; }
    static QList<Zone> panelCalm();
    static QList<Zone> mirroredPanelCalm();

    Q_INVOKABLE static LoudGeometry loud(const QSizeF &size, bool mirrored);
};

/// The zones as they lie in an area of that width when its leading edge is at the right.
QList<Zone> mirroredZones(QList<Zone> zones, qreal width);
