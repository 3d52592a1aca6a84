import QtQuick
import Embera.Tokens
import Embera.Rows
import Corvane.Gallery

/// The card, the well, and a pane made of both.
Sheet {
    Section {
        title: qsTr("A pane")
        contentWidth: 420

        PaneStack {
            GroupLabel {
                text: qsTr("First")
            }
            EBGroup {
                EBSwitchRow {
                    title: qsTr("Show the shelf")
                    isOn: true
                }
                EBSwitchRow {
                    title: qsTr("Open applications that are not running")
                }
            }
            GroupLabel {
                text: qsTr("Second")
            }
            EBWell {
                height: 96

                EBText {
                    anchors.centerIn: parent
                    color: EB.inkMuted
                    text: qsTr("A well")
                }
            }
            EBGroup {
                EBRow {
                    title: qsTr("One row alone")
                }
            }
        }
    }
}
