import QtQuick
import Embera.Tokens
import Embera.Controls

/// A recessed area that spans the available width and is as high as what it contains; for content that fills it,
/// give the well a height.
Item {
    id: well

    default property alias content: inside.data

    implicitHeight: inside.childrenRect.height
    width: parent?.width ?? 0

    ContinuousRectangle {
        anchors.fill: parent
        radius: KitMetrics.cardRadius
        color: EB.sunk
    }
    Item {
        id: inside

        anchors.fill: parent
    }
}
