import QtQuick
import Corvane.Onboarding.Tile

/// The tile: wherever it is taken, the application is dragged.
DragTileView {
    id: tile

    /// See `DragTileContent`.
    property alias floats: content.floats

    implicitWidth: content.implicitWidth
    implicitHeight: content.implicitHeight
    LayoutMirroring.childrenInherit: true

    DragTileContent {
        id: content

        anchors.fill: parent
        z: -1
        icon: tile.icon
    }
}
