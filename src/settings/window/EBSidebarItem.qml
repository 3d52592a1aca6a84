import QtQuick
import Embera.Tokens
import Embera.Glyphs
import Embera.Controls

/// One page in the sidebar; a click chooses it. The selected one lies on a chip, and its glyph has the product's colour.
Pressable {
    id: item

    required property string title
    required property string glyph
    property bool selected: false

    implicitHeight: 30
    horizontalPadding: 10
    text: title
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.role: Accessible.ListItem

    background: ContinuousRectangle {
        radius: 10
        color: item.selected ? EB.chip : "transparent"

        FocusRing {
            control: item
            radius: 14
        }
    }
    contentItem: Row {
        spacing: 8

        Glyph {
            anchors.verticalCenter: parent.verticalCenter
            name: item.glyph
            size: 15
            color: item.selected ? EBEnvironment.accent : EB.inkMuted
        }
        EBText {
            anchors.verticalCenter: parent.verticalCenter
            weight: item.selected ? Font.DemiBold : Font.Medium
            color: item.selected ? EB.ink : EB.inkMuted
            text: item.title
        }
    }
}
