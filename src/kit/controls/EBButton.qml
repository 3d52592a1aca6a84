import QtQuick
import Embera.Controls

/// A pill-shaped text button; `text` is its label. It keeps its ideal size: in an item of another size it stands in the
/// middle, and a click beside it misses.
Pressable {
    id: control

    /// "primary", "secondary", "onLoud" or "plain".
    property string variant: "primary"
    /// "md", "sm" or "xs".
    property string size: "md"
    /// A round arrow badge follows the label.
    property bool arrow: false

    implicitWidth: face.implicitWidth
    implicitHeight: face.implicitHeight
    opacity: enabled ? 1 : KitMetrics.disabledOpacity
    containmentMask: face

    ButtonFace {
        id: face

        anchors.centerIn: parent
        text: control.text
        variant: control.variant
        size: control.size
        arrow: control.arrow
        pressed: control.pressed
        mirrored: control.LayoutMirroring.enabled

        FocusRing {
            control: control
        }
    }
}
