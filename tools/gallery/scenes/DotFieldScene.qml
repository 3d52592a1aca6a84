import QtQuick
import Embera.Tokens
import Embera.Marks
import Corvane.Gallery

/// Dot fields on the product's loud colour: calm around two places, and without a calm place.
Sheet {
    Section {
        title: qsTr("Dot field")

        Row {
            spacing: 24

            Rectangle {
                implicitWidth: 560
                implicitHeight: 388
                color: EBEnvironment.loud

                DotField {
                    app: EBEnvironment.ebApp
                    size: Qt.size(560, 388)
                    cell: 22
                    seed: 21
                    ramp: 80
                    calm: Catalogue.calmZones
                }
            }
            Rectangle {
                implicitWidth: 206
                implicitHeight: 388
                color: EBEnvironment.loud

                DotField {
                    app: EBEnvironment.ebApp
                    size: Qt.size(206, 388)
                    seed: 8
                    density: 0.72
                }
            }
        }
    }
}
