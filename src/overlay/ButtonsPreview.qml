import QtQuick
import Embera.Tokens
import Embera.Rows
import Corvane.Overlay

/// A window with its buttons, in the middle of a well that spans the available width: what the agent will draw. One
/// element for accessibility.
EBWell {
    id: preview

    /// Raw strings; an unknown one shows the default.
    property string theme
    property string size
    property bool showMinimize: false
    property bool showMaximize: false
    /// Points.
    property size windowSize: Qt.size(200, 112)
    /// Times the size's base diameter.
    property real buttonScale: 1
    /// Of the buttons, in points.
    property real diameter: ButtonChoices.diameter(size) * buttonScale
    readonly property motionSpring spring: Motion.spring(0.3, 0.8)

    implicitHeight: picture.height
    Accessible.role: Accessible.Graphic
    Accessible.name: qsTr("Preview of the buttons")

    Behavior on diameter {
        NumberAnimation {
            duration: EB.reduceMotion ? 0 : Motion.duration(preview.spring.seconds)
            easing: preview.spring.easing
        }
    }

    // The room that the buttons need around the window's corner counts as part of the picture, which stands in the
    // middle.
    Item {
        id: picture

        anchors.centerIn: parent
        width: fake.x + fake.width
        height: fake.y + fake.height + 18

        FakeWindow {
            id: fake

            x: 22
            y: 18 + 22
            width: preview.windowSize.width
            height: preview.windowSize.height
            app: qsTr("Browser")
            title: qsTr("Start page")
        }
        ButtonCluster {
            x: fake.x + hang.x
            y: fake.y + hang.y
            theme: preview.theme
            diameter: preview.diameter
            showMinimize: preview.showMinimize
            showMaximize: preview.showMaximize
        }
    }
}
