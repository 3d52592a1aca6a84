import QtQuick
import Embera.Tokens
import Embera.Controls
import Corvane.Gallery

/// The switch: on and off, at rest and disabled, for the three products, mirrored; one has the keyboard focus.
Sheet {
    focused: target

    Repeater {
        model: Catalogue.apps

        Section {
            id: product

            required property var modelData

            EBEnvironment.ebApp: modelData.value
            title: modelData.title

            Row {
                spacing: 16

                EBSwitch {
                    label: qsTr("Off")
                }
                EBSwitch {
                    label: qsTr("On")
                    isOn: true
                }
                EBSwitch {
                    label: qsTr("Off")
                    enabled: false
                }
                EBSwitch {
                    label: qsTr("On")
                    isOn: true
                    enabled: false
                }
            }
        }
    }
    Section {
        title: qsTr("Keyboard focus")

        Row {
            spacing: 16

            EBSwitch {
                label: qsTr("Off")
            }
            EBSwitch {
                id: target

                label: qsTr("On")
                isOn: true
            }
        }
    }
    Section {
        title: qsTr("Mirrored")
        LayoutMirroring.enabled: true
        LayoutMirroring.childrenInherit: true

        Row {
            spacing: 16

            EBSwitch {
                label: qsTr("Off")
            }
            EBSwitch {
                label: qsTr("On")
                isOn: true
            }
        }
    }
}
