import QtQuick
import Embera.Window
import Corvane.Gallery

/// The buttons of a window: at rest, disabled, under the pointer and with the keyboard focus.
Sheet {
    hovered: underPointer
    focused: withFocus

    Section {
        title: qsTr("At rest")

        Row {
            spacing: 8

            WindowButton {
                text: qsTr("Close")
                glyph: "close"
            }
            WindowButton {
                text: qsTr("Minimize")
                glyph: "minus"
            }
            WindowButton {
                text: qsTr("Zoom")
                glyph: "plus"
            }
        }
    }
    Section {
        title: qsTr("Disabled")

        Row {
            spacing: 8

            WindowButton {
                text: qsTr("Minimize")
                glyph: "minus"
                enabled: false
            }
            WindowButton {
                text: qsTr("Zoom")
                glyph: "plus"
                enabled: false
            }
        }
    }
    Section {
        title: qsTr("Under the pointer, with the focus")

        Row {
            spacing: 8

            WindowButton {
                id: underPointer

                text: qsTr("Close")
                glyph: "close"
            }
            WindowButton {
                id: withFocus

                text: qsTr("Minimize")
                glyph: "minus"
            }
        }
    }
}
