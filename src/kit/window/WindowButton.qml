import QtQuick
import Embera.Tokens
import Embera.Glyphs
import Embera.Controls

/// One of the buttons in the window's top corner: a small disc with its glyph.
Pressable {
    id: button

    required property string glyph
    /// The window has the product's loud colour here.
    property bool loudGround: false

    // An odd number of points: the lines of the glyph run along pixels and through the middle of the disc.
    implicitWidth: 15
    implicitHeight: 15
    opacity: enabled ? 1 : 0.4
    takesFocusByClick: false

    background: ContinuousRectangle {
        // Not translucent: it also stands on loud grounds, where its glyph would be lost.
        color: Qt.tint(EB.sunk, button.hovered ? EB.track : EB.chip)
        strokeColor: EB.lineStrong
        strokeWidth: 1

        FocusRing {
            control: button
            loud: button.loudGround
        }
    }
    contentItem: Glyph {
        name: button.glyph
        size: 12
        color: button.hovered ? EB.ink : EB.inkMuted
    }
}
