import QtQuick
import QtQuick.Templates as T
import Embera.Tokens
import Embera.Controls

/// The bar of an area that scrolls. While it is there the wheel and a finger scroll the area too.
T.ScrollBar {
    id: bar

    /// What it scrolls.
    required property ScrollArea area

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

    WheelHandler {
        parent: bar.area
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        // A notch of a wheel is 120 units, and scrolls 60 points.
        onWheel: event => bar.area.scrollTo(bar.area.contentY - (event.pixelDelta.y || event.angleDelta.y / 2))
    }
    DragHandler {
        property real start: 0

        parent: bar.area
        acceptedDevices: PointerDevice.TouchScreen
        target: null
        onActiveChanged: start = bar.area.contentY
        onActiveTranslationChanged: bar.area.scrollTo(start - activeTranslation.y)
    }
}
