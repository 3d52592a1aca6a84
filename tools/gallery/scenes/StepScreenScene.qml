import QtQuick
import Embera.Tokens
import Embera.Controls
import Embera.Rows
import Embera.Screens
import Corvane.Gallery

/// A step of a guide, beside the list of its steps.
Scene {
    id: scene

    implicitWidth: screen.implicitWidth
    implicitHeight: screen.implicitHeight

    EBStepScreen {
        id: screen

        width: scene.implicitWidth
        height: scene.implicitHeight
        app: scene.EBEnvironment.ebApp
        steps: [qsTr("Welcome"), qsTr("Try it"), qsTr("Access"), qsTr("Look"), qsTr("All set")]
        current: 2
        kicker: qsTr("Step 03 · Permission")
        title: qsTr("One permission, then you're done")
        text: qsTr("You are asked first before an application can tell which window the pointer is on. Nothing is recorded or sent anywhere.")
        rows: [
            EBRow {
                glyph: "key"
                title: qsTr("Accessibility")
                detail: qsTr("Switch on the application in the list.")

                EBStatus {}
            }
        ]
        actions: [
            EBButton {
                size: "sm"
                text: qsTr("Open Settings")
            },
            EBButton {
                size: "sm"
                variant: "plain"
                text: qsTr("Skip")
            },
            EBSpacer {},
            EBButton {
                size: "sm"
                variant: "plain"
                text: qsTr("Back")
            }
        ]
    }
}
