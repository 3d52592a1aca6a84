pragma ComponentBehavior: Bound
import QtQuick
import Embera.Tokens
import Embera.Marks
import Corvane.Gallery

/// The products' marks in the sizes they are used in.
Sheet {
    Section {
        title: qsTr("Marks at 18, 24, 32, 64 and 118 points")

        Repeater {
            model: Catalogue.apps

            Row {
                id: row

                required property var modelData

                spacing: 20

                Repeater {
                    model: [18, 24, 32, 64, 118]

                    Mark {
                        required property int modelData

                        anchors.bottom: parent?.bottom
                        app: row.modelData.value
                        size: modelData
                        color: EB.ink
                    }
                }
            }
        }
    }
}
