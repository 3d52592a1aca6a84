import QtQuick
import Embera.Controls

/// The dot beside a step: a ring before the step is reached, larger while it is the current one.
Item {
    id: marker

    /// 1 for a step that is still to come, 0 for the current one, -1 for one that is done.
    property int place: 0
    property color color: "transparent"

    implicitWidth: 8
    implicitHeight: 8

    ContinuousRectangle {
        anchors.centerIn: parent
        width: marker.place === 0 ? 8 : 6
        height: width
        color: marker.place > 0 ? "transparent" : marker.color
        strokeColor: marker.color
        strokeWidth: marker.place > 0 ? 1 : 0
    }
}
