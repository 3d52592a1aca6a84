import QtQuick
import Embera.Tokens
import Embera.Rows
import Corvane.Gallery

/// The status in both states and the disc in its four forms, for the three products.
Sheet {
    Repeater {
        model: Catalogue.apps

        Section {
            id: product

            required property var modelData

            EBEnvironment.ebApp: modelData.value
            title: modelData.title

            Row {
                spacing: 20

                EBStatus {
                    anchors.verticalCenter: parent.verticalCenter
                    state: "waiting"
                }
                EBStatus {
                    anchors.verticalCenter: parent.verticalCenter
                    state: "allowed"
                }
                EBStatus {
                    anchors.verticalCenter: parent.verticalCenter
                    state: "waiting"
                    text: qsTr("Drag the tile")
                }
                EBDisc {
                    anchors.verticalCenter: parent.verticalCenter
                    glyph: "key"
                }
                EBDisc {
                    anchors.verticalCenter: parent.verticalCenter
                    glyph: "key"
                    on: true
                }
                EBDisc {
                    anchors.verticalCenter: parent.verticalCenter
                    glyph: "check"
                    small: true
                }
                EBDisc {
                    anchors.verticalCenter: parent.verticalCenter
                    glyph: "check"
                    small: true
                    on: true
                }
            }
        }
    }
}
