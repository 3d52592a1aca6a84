import QtQuick
import Embera.Tokens
import Embera.Rows
import Corvane.Shared

/// The list of applications that may see and move the windows of others, with its one entry.
Item {
    EBEnvironment.ebApp: "corvane"

    AppStorage {
        id: trusted
        key: Key.agentAccessibilityTrusted
    }
    PaneStack {
        anchors {
            fill: parent
            topMargin: 44
            leftMargin: 24
            rightMargin: 24
        }

        EBText {
            role: "heading"
            text: qsTr("Accessibility")
            Accessible.role: Accessible.Heading
        }
        EBGroup {
            width: parent.width

            EBSwitchRow {
                title: qsTr("Corvane")
                detail: qsTr("Allow this application to control your computer.")
                isOn: trusted.value
                onFlipped: value => trusted.value = value
            }
        }
    }
}
