import QtQuick
import Embera.Tokens
import Embera.Glyphs
import Embera.Controls
import Corvane.Onboarding.Tile

/// What the tile shows: the application's icon, what to do with it, and an arrow that bobs towards the list above for
/// as long as the tile is on the screen. One element for accessibility.
ContinuousRectangle {
    id: tile

    property alias icon: image.icon
    /// The arrow is bobbing.
    readonly property bool nudge: Window.visibility !== Window.Hidden && !EB.reduceMotion
    /// How far below its middle the arrow stands, in points; with reduced motion it rests in the middle.
    property real drop: 3

    EBEnvironment.ebApp: "corvane"
    implicitWidth: 330
    implicitHeight: 76
    radius: 16
    color: EB.surface
    strokeColor: EB.line
    strokeWidth: 1
    Accessible.role: Accessible.StaticText
    Accessible.name: title.text
    Accessible.description: hint.text
    LayoutMirroring.childrenInherit: true
    onNudgeChanged: drop = 3

    SequentialAnimation {
        running: tile.nudge
        loops: Animation.Infinite

        NumberAnimation {
            target: tile
            property: "drop"
            from: 3
            to: -3
            duration: EB.reduceMotion ? 0 : Motion.duration(0.7)
            easing: Motion.easeInOut
        }
        NumberAnimation {
            target: tile
            property: "drop"
            from: -3
            to: 3
            duration: EB.reduceMotion ? 0 : Motion.duration(0.7)
            easing: Motion.easeInOut
        }
    }

    IconImage {
        id: image

        anchors {
            left: parent.left
            leftMargin: 12
            verticalCenter: parent.verticalCenter
        }
        width: 48
        height: 48
    }
    Column {
        anchors {
            left: image.right
            leftMargin: 12
            right: arrow.left
            rightMargin: 24
            verticalCenter: parent.verticalCenter
        }
        spacing: 1

        EBText {
            id: title

            width: parent.width
            text: qsTr("Not in the list? Drag me in.")
            role: "bodyStrong"
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
            Accessible.ignored: true
        }
        EBParagraph {
            id: hint

            width: parent.width
            text: qsTr("Drop Corvane onto the Accessibility list above.")
            role: "caption"
            Accessible.ignored: true
        }
    }
    Glyph {
        id: arrow

        anchors {
            right: parent.right
            rightMargin: 12
            verticalCenter: parent.verticalCenter
            verticalCenterOffset: EB.reduceMotion ? 0 : tile.drop
        }
        name: "arrow"
        size: 16
        color: EB.inkMuted
        rotation: -90
    }
}
