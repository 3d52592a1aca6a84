import QtQuick
import Embera.Tokens
import Embera.Glyphs
import Embera.Controls
import Corvane.Onboarding.Tile

/// What the tile shows: the application's icon and what to do with it. One element for accessibility.
///
/// Floating below System Settings it is a card with an arrow that bobs towards the list above for as long as the tile is
/// on the screen. Otherwise it is a row of a card, which nothing moves.
ContinuousRectangle {
    id: tile

    property alias icon: image.icon
    /// See above; true unless set.
    property bool floats: true
    /// The arrow is bobbing.
    readonly property bool nudge: floats && Window.visibility !== Window.Hidden && !EB.reduceMotion
    /// How far below its middle the arrow stands, in points; with reduced motion it rests in the middle.
    property real drop: 3

    EBEnvironment.ebApp: "corvane"
    implicitWidth: 330
    implicitHeight: Math.max(floats ? 76 : 52, words.implicitHeight + 2 * 8)
    radius: 16
    color: floats ? EB.surface : "transparent"
    strokeColor: EB.line
    strokeWidth: floats ? 1 : 0
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
        width: tile.floats ? 48 : 36
        height: width
    }
    Column {
        id: words

        anchors {
            left: image.right
            // In a card in line with the texts of the rows.
            leftMargin: tile.floats ? 12 : KitMetrics.rowInset + KitMetrics.discDiameter + KitMetrics.rowSpacing - 12 - image.width
            right: tile.floats ? arrow.left : parent.right
            rightMargin: tile.floats ? 24 : KitMetrics.rowInset
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
        }
        EBParagraph {
            id: hint

            width: parent.width
            text: tile.floats ? qsTr("Drop Corvane onto the Accessibility list above.")
                              : qsTr("Drop Corvane onto the Accessibility list.")
            color: tile.floats ? EB.ink : EB.inkMuted
            role: "caption"
        }
    }
    Glyph {
        id: arrow

        visible: tile.floats
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
