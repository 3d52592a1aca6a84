import QtQuick
import Embera.Tokens
import Embera.Glyphs
import Embera.Controls

/// One of the buttons in the window's top corner: a small disc with its glyph.
Pressable {
    id: button

    required property string glyph

    implicitWidth: 14
    implicitHeight: 14
    opacity: enabled ? 1 : 0.4
    focusPolicy: Qt.TabFocus

    background: ContinuousRectangle {
        // Not translucent: it also stands on loud grounds, where its glyph would be lost.
        color: Qt.tint(EB.sunk, button.hovered ? EB.track : EB.chip)
        strokeColor: EB.lineStrong
        strokeWidth: 1

        FocusRing {
            control: button
        }
    }
    contentItem: Item {
        Glyph {
            anchors.centerIn: parent
            name: button.glyph
            size: 10
            color: button.hovered ? EB.ink : EB.inkMuted
        }
    }
}
