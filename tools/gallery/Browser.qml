import QtQuick
import Embera.Tokens
import Embera.Controls
import Embera.Rows
import Corvane.Settings.Window
import Corvane.Gallery

/// The gallery's window: the list of scenes, the switches for how they are drawn, and the scene that is chosen.
Rectangle {
    id: browser

    required property GalleryLook look

    EBEnvironment.ebApp: look.app
    color: EB.paper

    Shortcut {
        // The settings window brings its own.
        enabled: !(stage.item instanceof SettingsWindowScene)
        sequences: ["Ctrl+W", "Ctrl+Q"]
        onActivated: Qt.quit()
    }
    ContinuousRectangle {
        id: sidebar

        anchors {
            left: parent.left
            top: parent.top
            bottom: parent.bottom
            margins: 8
        }
        width: 250
        radius: 22
        color: EB.sunk

        ListView {
            id: list

            anchors {
                fill: parent
                margins: 10
            }
            model: Catalogue.scenes
            spacing: 2
            clip: true
            focus: true
            keyNavigationEnabled: true
            delegate: EBSidebarItem {
                required property int index
                required property var modelData

                width: ListView.view?.width ?? 0
                title: modelData.name
                glyph: modelData.glyph
                selected: ListView.isCurrentItem
                tabStop: selected
                onClicked: ListView.view.currentIndex = index
            }
        }
    }
    Row {
        id: switches

        anchors {
            right: parent.right
            top: parent.top
            margins: 12
        }
        spacing: 12

        EBSegmented {
            anchors.verticalCenter: parent.verticalCenter
            label: qsTr("Product")
            options: Catalogue.apps
            selection: browser.look.app
            onSelected: app => browser.look.app = app
        }
        EBSwitchRow {
            width: implicitWidth
            title: qsTr("Dark")
            isOn: browser.look.dark
            onFlipped: isOn => browser.look.dark = isOn
        }
        EBSwitchRow {
            width: implicitWidth
            title: qsTr("High contrast")
            isOn: browser.look.highContrast
            onFlipped: isOn => browser.look.highContrast = isOn
        }
    }
    Flickable {
        anchors {
            left: sidebar.right
            right: parent.right
            top: switches.bottom
            bottom: parent.bottom
            margins: 8
        }
        contentWidth: stage.width
        contentHeight: stage.height
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Loader {
            id: stage

            source: Catalogue.scenes[list.currentIndex].source
            onLoaded: (item as Scene).strikePose()
        }
    }
}
