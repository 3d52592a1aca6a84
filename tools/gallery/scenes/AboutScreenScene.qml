import QtQuick
import Embera.Tokens
import Embera.Screens
import Corvane.Gallery

/// What the About window shows, for an agent that offers updates.
Scene {
    id: scene

    implicitWidth: screen.implicitWidth
    implicitHeight: screen.implicitHeight

    EBAboutScreen {
        id: screen

        width: scene.implicitWidth
        height: scene.implicitHeight
        app: scene.EBEnvironment.ebApp
        version: qsTr("1.4 (212)")
        blurb: qsTr("Close, minimize and full-screen windows right in Mission Control, with buttons on every window and the shortcuts you already know.")
        offersUpdates: true
        website: "https://vexmoor.com/"
    }
}
