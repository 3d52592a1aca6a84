import QtQuick
import Embera.Controls
import Corvane.Gallery

/// The round button in several sizes; one has the pointer over it, one the keyboard focus.
Sheet {
    hovered: underPointer
    focused: withFocus

    Section {
        title: qsTr("At 20, 28, 36 and 48 points")

        Row {
            spacing: 16

            Repeater {
                model: [20, 28, 36, 48]

                EBIconButton {
                    required property real modelData

                    anchors.verticalCenter: parent.verticalCenter
                    glyph: "gear"
                    label: qsTr("Settings")
                    size: modelData
                }
            }
        }
    }
    Section {
        title: qsTr("Under the pointer, with the focus, disabled")

        Row {
            spacing: 16

            EBIconButton {
                id: underPointer

                glyph: "close"
                label: qsTr("Delete")
            }
            EBIconButton {
                id: withFocus

                glyph: "refresh"
                label: qsTr("Again")
            }
            EBIconButton {
                glyph: "plus"
                label: qsTr("Add")
                enabled: false
            }
        }
    }
}
