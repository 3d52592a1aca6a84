import QtQuick
import Embera.Tokens
import Embera.Controls
import Embera.Rows
import Corvane.Shared
import Corvane.Agent

/// The list of applications that may see and move the windows of others. It is empty until the agent is dropped onto
/// it.
Item {
    id: page

    required property AccessibilityList list

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
            id: group

            width: parent.width

            EBRow {
                visible: !page.list.listed
                title: qsTr("No applications")
                detail: qsTr("Drop one here to add it to the list.")
            }
            EBSwitchRow {
                visible: page.list.listed
                title: qsTr("Corvane")
                detail: qsTr("Allow this application to control your computer.")
                isOn: trusted.value
                onFlipped: value => page.list.setTrusted(value)
            }
        }
    }
    DropArea {
        id: area

        anchors.fill: parent
        keys: ["text/uri-list"]
        onEntered: drag => drag.accepted = (drag.supportedActions & Qt.CopyAction) && page.list.takes(drag.urls)
        onDropped: drop => page.list.take(drop.urls) && drop.accept(Qt.CopyAction)
    }
    ContinuousRectangle {
        anchors {
            fill: parent
            margins: 4
        }
        visible: area.containsDrag
        radius: 12
        strokeColor: EBEnvironment.accent
        strokeWidth: 2
    }
}
