import QtQuick
import Embera.Tokens
import Embera.Controls
import Embera.Rows
import Embera.Screens
import Corvane.Gallery

/// A step of a guide with a stage: here a well that fills the room there is.
Scene {
    id: scene

    implicitWidth: screen.implicitWidth
    implicitHeight: screen.implicitHeight

    EBStageScreen {
        id: screen

        app: scene.EBEnvironment.ebApp
        kicker: qsTr("Step 02 · Try it")
        counter: qsTr("02 / 05")
        title: qsTr("Give it a try")
        text: qsTr("Click a button, or press its shortcut.")
        content: [
            EBWell {
                height: screen.room - 12
            }
        ]
        actions: [
            KeyCap {
                keys: "⌘W"
            },
            KeyCap {
                keys: "⌘M"
            },
            EBSpacer {},
            EBButton {
                text: qsTr("Continue")
                arrow: true
            }
        ]
    }
}
