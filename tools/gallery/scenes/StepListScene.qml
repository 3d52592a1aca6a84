pragma ComponentBehavior: Bound
import QtQuick
import Embera.Screens
import Corvane.Gallery

/// The list of steps with the second one current: on paper and on the loud colours, in more than one line, and with more
/// steps than one digit counts.
Sheet {
    Section {
        title: qsTr("On paper")

        EBStepList {
            steps: [qsTr("Welcome"), qsTr("Try it"), qsTr("Access")]
            current: 1
        }
    }
    Section {
        title: qsTr("On the loud colours")

        Row {
            spacing: 12

            Repeater {
                model: Catalogue.apps

                LoudPanel {
                    required property var modelData

                    app: modelData.value

                    EBStepList {
                        steps: [qsTr("Welcome"), qsTr("Try it"), qsTr("Access")]
                        current: 1
                        onLoud: true // qmllint disable
                    }
                }
            }
        }
    }
    Row {
        spacing: 48

        Section {
            title: qsTr("Long titles")

            EBStepList {
                maximumWidth: 130
                steps: [qsTr("A title that wraps"), qsTr("Another one that wraps"), qsTr("Short")]
                current: 1
            }
        }
        Section {
            title: qsTr("All done")

            EBStepList {
                steps: Array.from({
                    length: 10
                }, (none, index) => qsTr("Step"))
                current: 10
            }
        }
    }
}
