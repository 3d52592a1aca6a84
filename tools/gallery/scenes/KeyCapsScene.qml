import QtQuick
import Embera.Controls
import Corvane.Gallery

/// Key combinations on their caps.
Sheet {
    Section {
        title: qsTr("Key caps")

        Row {
            spacing: 12

            Repeater {
                model: ["⌘W", "⌥⌘W", "⌃⌥⇧⌘K", "↩", "⌃⌥←", "→", "↑", "↓", "Esc"]

                KeyCap {
                    required property string modelData

                    keys: modelData
                }
            }
        }
    }
}
