import QtQuick
import Embera.Tokens
import Embera.Rows
import Corvane.Gallery

/// The twelve type roles, and the signs of the keys.
Sheet {
    Repeater {
        model: ["hero", "display", "title", "heading", "subheading", "lead", "body", "bodyStrong", "small", "caption", "mono", "monoSmall"]

        Row {
            id: line

            required property string modelData

            spacing: 16

            EBLabel {
                width: 96
                anchors.verticalCenter: parent.verticalCenter
                text: line.modelData
            }
            EBText {
                anchors.verticalCenter: parent.verticalCenter
                role: line.modelData
                text: line.modelData === "hero" ? qsTr("Hero") : qsTr("Close every window, 0123456789")
            }
        }
    }
    Row {
        spacing: 16

        EBLabel {
            width: 96
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Keys")
        }
        EBText {
            role: "lead"
            text: "⌘ ⌥ ⌃ ⇧ ↩ ← → ↑ ↓"
        }
        EBText {
            anchors.verticalCenter: parent.verticalCenter
            role: "caption"
            text: "⌘ ⌥ ⌃ ⇧ ↩ ← → ↑ ↓"
        }
        EBText {
            anchors.verticalCenter: parent.verticalCenter
            role: "mono"
            text: "⌘ ⌥ ⌃ ⇧ ↩ ← → ↑ ↓"
        }
    }
}
