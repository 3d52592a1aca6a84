import QtQuick
import Embera.Tokens
import Embera.Rows
import Corvane.Gallery

/// Labels in their tones and sizes, and a note.
Sheet {
    Section {
        title: qsTr("Labels")

        Row {
            spacing: 24

            EBLabel {
                text: qsTr("Muted")
            }
            EBLabel {
                text: qsTr("Ink")
                tone: "ink"
            }
            EBLabel {
                text: qsTr("Muted and small")
                small: true
            }
            EBLabel {
                text: qsTr("Ink and small")
                tone: "ink"
                small: true
            }
        }
        Row {
            spacing: 12

            Repeater {
                model: Catalogue.apps

                LoudPanel {
                    required property var modelData

                    app: modelData.value

                    EBLabel {
                        text: EBEnvironment.displayName
                        tone: "onLoud"
                    }
                    EBLabel {
                        text: qsTr("Small")
                        tone: "onLoud"
                        small: true
                    }
                }
            }
        }
    }
    Section {
        title: qsTr("A group's label and a note below the group")
        contentWidth: 400

        PaneStack {
            GroupLabel {
                text: qsTr("Group label")
            }
            EBGroup {
                EBRow {
                    title: qsTr("A row")
                }
            }
            EBNote {
                text: qsTr("A note says in a few words what there is to know of the group above it, and wraps where the card ends.")
            }
        }
    }
}
