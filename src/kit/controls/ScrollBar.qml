import QtQuick
import QtQuick.Templates as T
import Embera.Tokens

/// The bar of an area that scrolls.
T.ScrollBar {
    id: bar

    /// What it scrolls.
    required property Flickable area

    width: 10
    padding: 2
    orientation: Qt.Vertical
    // Of a very long page, enough to take hold of.
    minimumSize: 24 / height
    size: area.visibleArea.heightRatio
    position: area.visibleArea.yPosition
    onPositionChanged: if (pressed)
        area.contentY = position * area.contentHeight

    contentItem: Rectangle {
        radius: width / 2
        color: EB.lineStrong
    }
}
