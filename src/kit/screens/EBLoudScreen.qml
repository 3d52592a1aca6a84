import QtQuick
import Embera.Tokens
import Embera.Controls
import Embera.Marks
import Embera.Rows
import Embera.Screens

/// The screen in the product's colour that opens and closes a guide: its mark, a hero word along the foot, and a column
/// with a short text and one or two actions. Return presses the main button from wherever no other button has the focus.
/// Fills its window, under the title bar too; in a window smaller than 560 × 388 points it is cut.
FocusScope {
    id: screen

    /// The product's raw string, for everything inside.
    required property string app
    /// Stands at the top; empty for none.
    property alias counter: count.text
    /// The paragraph above the buttons.
    property alias copy: paragraph.text
    /// The title of the main button, and whether it shows an arrow.
    property alias button: main.text
    property alias arrow: main.arrow
    property alias hero: word.text
    /// Chooses the picture of the dot field.
    property alias seed: dots.seed
    /// The title of the second, quieter action; empty for none.
    property alias secondary: quiet.text
    /// Set once, when the screen is first displayed, and then it makes its entrance. A screen that has it set from the
    /// beginning stands still.
    property bool appeared: false

    /// The main button was pressed.
    signal action
    /// The second action was chosen.
    signal secondaryAction

    readonly property loudGeometry geometry: ScreenGeometry.loud(Qt.size(width, height), LayoutMirroring.enabled)
    readonly property real k: geometry.k
    /// How much of the entrance is over, from 0 to 1; a spring goes a little beyond.
    property real entrance: appeared ? 1 : 0
    readonly property motionSpring spring: Motion.spring(0.5, 0.8)
    property bool isComplete: false
    readonly property bool isDisplayed: isComplete && visible && Window.visibility !== Window.Hidden

    EBEnvironment.ebApp: app
    implicitWidth: 560
    implicitHeight: 388
    clip: true
    focus: true
    Component.onCompleted: isComplete = true
    onIsDisplayedChanged: if (isDisplayed)
        appeared = true

    // With reduced motion this is the one animation that remains, as a short fade.
    Behavior on entrance {
        NumberAnimation {
            duration: EB.reduceMotion ? 200 : 1000 * screen.spring.seconds
            easing: EB.reduceMotion ? Motion.easeOut : screen.spring.easing
        }
    }
    Shortcut {
        readonly property Item focusItem: screen.Window.activeFocusItem

        // A button that has the focus is what Return presses.
        enabled: screen.isDisplayed && screen.enabled && (focusItem === main || !(focusItem instanceof Pressable))
        sequences: ["Return", "Enter"]
        autoRepeat: false
        onActivated: screen.action()
    }

    Rectangle {
        anchors.fill: parent
        color: EBEnvironment.loud
    }
    DotField {
        id: dots

        app: screen.app
        size: Qt.size(screen.width, screen.height)
        cell: 22
        density: 0.7
        ramp: 80
        margin: 2
        calm: screen.geometry.calm
        opacity: screen.entrance
    }
    EBLabel {
        id: count

        anchors {
            right: parent.right
            top: parent.top
            rightMargin: 20
            topMargin: 14
        }
        tone: "onLoud"
        visible: text !== ""
    }
    Mark {
        anchors {
            left: parent.left
            top: parent.top
            leftMargin: 24 * screen.k
            topMargin: 52 * screen.k
        }
        app: screen.app
        size: 74 * screen.k
        color: EBEnvironment.onLoud
        scale: 0.92 + 0.08 * screen.entrance
        isScaled: scale !== 1
        transformOrigin: LayoutMirroring.enabled ? Item.TopRight : Item.TopLeft
    }
    EBText {
        id: word

        anchors {
            left: parent.left
            bottom: parent.bottom
            leftMargin: -14 * screen.k
            bottomMargin: -(45 - 24 * screen.entrance) * screen.k
        }
        role: "hero"
        size: 160 * screen.k
        color: EBEnvironment.onLoud
        opacity: screen.entrance
    }
    Column {
        id: column

        anchors {
            right: parent.right
            rightMargin: 32 * screen.k
        }
        // In the middle of its calm zone; a text too long for that goes on below, clear of the counter and of the dots
        // at the zone's round corner.
        y: Math.max(48, 120 * screen.k - height / 2)
        width: Math.max(screen.geometry.m, main.implicitWidth)
        spacing: 16

        LoudText {
            id: paragraph

            width: parent.width
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        EBButton {
            id: main

            anchors.left: parent.left
            variant: "onLoud"
            focus: true
            // The focus begins here, and what has it is all that is read out by itself.
            Accessible.description: paragraph.text
            onClicked: screen.action()

            // The kit's own ring has the accent colour, which is lost on the loud one.
            FocusRing {
                z: 1
                control: main
                loud: true
            }
        }
        QuietButton {
            id: quiet

            anchors.left: parent.left
            visible: text !== ""
            onClicked: screen.secondaryAction()
        }
    }
}
