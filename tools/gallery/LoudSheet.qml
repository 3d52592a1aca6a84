import QtQuick
import Embera.Tokens
import Embera.Screens
import Corvane.Gallery

/// A loud screen of the product around it, after its entrance. It fills the scene's implicit size.
Scene {
    id: scene

    property alias counter: screen.counter
    property alias secondary: screen.secondary

    implicitWidth: 560
    implicitHeight: 388

    EBLoudScreen {
        id: screen

        width: scene.implicitWidth
        height: scene.implicitHeight
        app: scene.EBEnvironment.ebApp
        appeared: true
        counter: qsTr("Welcome · 01 / 05")
        copy: qsTr("Close, minimize and full-screen windows right in Mission Control. Hover a window for its buttons, or use the shortcuts you already know.")
        button: qsTr("Get started")
        arrow: true
        hero: EBEnvironment.displayName
        seed: 21
        secondary: qsTr("Skip setup")
    }
}
