import QtQuick
import Embera.Tokens
import Embera.Controls

/// An on/off switch. It shows `isOn`, which it never sets itself; a click emits `flipped(isOn)` with the new value.
ControlledToggle {
    id: control

    /// The name for accessibility; it is not drawn.
    property string label

    text: label
    implicitWidth: implicitContentWidth
    implicitHeight: implicitContentHeight
    opacity: enabled ? 1 : KitMetrics.disabledOpacity

    contentItem: SwitchFace {
        position: control.isOn ? 1 : 0
        mirrored: control.LayoutMirroring.enabled
        trackColor: EB.track
        accentColor: EBEnvironment.accent
        knobColor: EB.knob
        knobBorderColor: EB.lineStrong

        Behavior on position {
            NumberAnimation {
                // Only a change by the person is animated, and none with reduced motion.
                duration: control.isFlipping ? Motion.duration(KitMetrics.switchSeconds) : 0
                easing: Motion.easeOut
            }
        }
        FocusRing {
            control: control
        }
    }
}
