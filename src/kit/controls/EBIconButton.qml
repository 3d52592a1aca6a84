import QtQuick
import Embera.Tokens
import Embera.Glyphs
import Embera.Controls

/// A round button that shows only a glyph, and in a tool tip what it does.
Pressable {
    id: control

    /// A glyph's raw string.
    required property string glyph
    /// The name for accessibility.
    required property string label
    /// The side of its square, in points.
    property real size: KitMetrics.iconButtonSide

    text: label
    implicitWidth: size
    implicitHeight: size
    opacity: enabled ? 1 : KitMetrics.disabledOpacity
    containmentMask: background

    background: ContinuousRectangle {
        color: control.hovered ? EB.chip : "transparent"

        FocusRing {
            control: control
        }
    }
    contentItem: Glyph {
        name: control.glyph
        size: control.size * KitMetrics.iconButtonGlyph
        color: EB.inkMuted
    }

    Loader {
        active: control.hovered || control.visualFocus
        Component.onCompleted: setSource("EBToolTip.qml", {target: control})
    }
}
