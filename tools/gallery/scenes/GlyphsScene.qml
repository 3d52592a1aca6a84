import QtQuick
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

                GlyphCell {
                    required property string modelData

                    name: modelData
                }
            }
        }
    }
}
