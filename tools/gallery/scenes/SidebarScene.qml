import QtQuick
import Embera.Tokens
import Embera.Controls
import Corvane.Settings.Window
import Corvane.Gallery

/// The entries of the settings window's sidebar: one is selected, one has the keyboard focus.
Sheet {
    focused: withFocus

    ContinuousRectangle {
        implicitWidth: 178
        implicitHeight: items.implicitHeight + 2 * 12
        radius: 22
        color: EB.sunk

        Column {
            id: items

            x: 10
            y: 12
            width: 158
            spacing: 2

            EBSidebarItem {
                width: items.width
                title: qsTr("General")
                glyph: "gear"
                selected: true
            }
            EBSidebarItem {
                width: items.width
                title: qsTr("Buttons")
                glyph: "wins"
            }
            EBSidebarItem {
                id: withFocus

                width: items.width
                title: qsTr("Shortcuts")
                glyph: "cmd"
            }
            EBSidebarItem {
                width: items.width
                title: qsTr("Layouts")
                glyph: "apps"
            }
        }
    }
}
