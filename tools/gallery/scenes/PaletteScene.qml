import QtQuick
import Embera.Tokens
import Embera.Controls
import Corvane.Gallery

/// Every colour token on the window's background.
Sheet {
    Section {
        title: qsTr("Colour tokens")

        Grid {
            columns: 6
            columnSpacing: 16
            rowSpacing: 16

            Repeater {
                model: Catalogue.tokens

                Column {
                    id: cell

                    required property var modelData

                    spacing: 6

                    ContinuousRectangle {
                        implicitWidth: 100
                        implicitHeight: 56
                        radius: 12
                        color: cell.modelData.color
                        strokeColor: EB.line
                        strokeWidth: 1
                    }
                    EBText {
                        role: "caption"
                        text: cell.modelData.name
                    }
                }
            }
        }
    }
}
