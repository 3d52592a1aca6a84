import QtQuick
import Embera.Tokens
import Embera.Glyphs
import Embera.Rows
import Corvane.Gallery

/// Every glyph in four sizes.
Sheet {
    Section {
        title: qsTr("Glyphs at 12, 15, 24 and 48 points")

        Grid {
            columns: 6
            columnSpacing: 20
            rowSpacing: 20

            Repeater {
                model: Catalogue.glyphs

                Column {
                    id: cell

                    required property string modelData

                    spacing: 4

                    Row {
                        spacing: 6

                        Repeater {
                            model: [12, 15, 24, 48]

                            Glyph {
                                required property real modelData

                                anchors.verticalCenter: parent.verticalCenter
                                name: cell.modelData
                                size: modelData
                                color: EB.ink
                            }
                        }
                    }
                    EBText {
                        role: "caption"
                        color: EB.inkMuted
                        text: cell.modelData
                    }
                }
            }
        }
    }
}
