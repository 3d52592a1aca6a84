import QtQuick
import Embera.Tokens
import Corvane.Overlay

/// The buttons of one window in a row, Close always among them. The others fade in and out, and whatever stands behind
/// them makes room. Never mirrored: that is how the agent lays them over a window.
Item {
    id: cluster

    /// A theme's raw string.
    property string theme
    /// Of each button, in points.
    property real diameter: 0
    property real spacing: 4
    property bool showMinimize: false
    property bool showMaximize: false
    /// What translucent buttons shine over; transparent for what the row lies on.
    property color ground: "transparent"

    /// How much of the button is there, between 0 and 1.
    property real minimizeShare: showMinimize ? 1 : 0
    property real maximizeShare: showMaximize ? 1 : 0
    /// From one button to the next, a whole number of device pixels: the gaps between the buttons look the same.
    readonly property real step: Math.round((diameter + spacing) * Screen.devicePixelRatio) / Screen.devicePixelRatio
    /// Where the row stands, seen from the top left corner of the window it hangs over: the middle of Close is 3 points
    /// to the left of that corner and 2 above it.
    readonly property point hang: Qt.point(-3 - diameter / 2, -2 - diameter / 2)

    implicitWidth: diameter + step * (minimizeShare + maximizeShare)
    implicitHeight: diameter

    Behavior on minimizeShare {
        NumberAnimation {
            duration: EB.reduceMotion ? 0 : Motion.duration(0.18)
            easing: Motion.easeOut
        }
    }
    Behavior on maximizeShare {
        NumberAnimation {
            duration: EB.reduceMotion ? 0 : Motion.duration(0.18)
            easing: Motion.easeOut
        }
    }

    DemoButton {
        kind: "close"
        theme: cluster.theme
        size: cluster.diameter
        ground: cluster.ground
        isScaled: cluster.scale !== 1
    }
    DemoButton {
        x: cluster.step
        kind: "minimize"
        theme: cluster.theme
        size: cluster.diameter
        ground: cluster.ground
        isScaled: cluster.scale !== 1
        opacity: cluster.minimizeShare
        visible: opacity > 0
    }
    DemoButton {
        x: cluster.step * (1 + cluster.minimizeShare)
        kind: "maximize"
        theme: cluster.theme
        size: cluster.diameter
        ground: cluster.ground
        isScaled: cluster.scale !== 1
        opacity: cluster.maximizeShare
        visible: opacity > 0
    }
}
