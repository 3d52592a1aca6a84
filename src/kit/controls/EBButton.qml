import QtQuick
import Embera.Controls

/// A pill-shaped text button at its ideal size; `text` is its label.
Pressable {
    id: control

    /// "primary", "secondary", "onLoud" or "plain".
    property string variant: "primary"
    /// "md", "sm" or "xs".
    property string size: "md"
    /// A round arrow badge follows the label.
    property bool arrow: false

    implicitWidth: implicitContentWidth
    implicitHeight: implicitContentHeight
    opacity: enabled ? 1 : KitMetrics.disabledOpacity

    contentItem: ButtonFace {
        text: control.text
        variant: control.variant
        size: control.size
        arrow: control.arrow
        pressed: control.down
        mirrored: control.mirrored

        FocusRing {
            control: control
        }
    }
}
