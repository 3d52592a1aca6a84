import QtQuick
import Embera.Tokens
import Embera.Glyphs

/// A glyph in four sizes, with its name.
Column {
    id: cell

    required property string name

    spacing: 4

    Row {
        spacing: 6

        Glyph {
            anchors.verticalCenter: parent.verticalCenter
            name: cell.name
            size: 12
            color: EB.ink
        }
        Glyph {
            anchors.verticalCenter: parent.verticalCenter
            name: cell.name
            size: 15
            color: EB.ink
        }
        Glyph {
            anchors.verticalCenter: parent.verticalCenter
            name: cell.name
            size: 24
            color: EB.ink
        }
        Glyph {
            anchors.verticalCenter: parent.verticalCenter
            name: cell.name
            size: 48
            color: EB.ink
        }
    }
    EBText {
        role: "caption"
        color: EB.inkMuted
        text: cell.name
    }
}
