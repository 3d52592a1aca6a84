import QtQuick
import Embera.Controls

/// A button of one variant and size in all its states, without and with the arrow.
Row {
    id: states

    required property string variant
    required property string size
    /// The button at rest.
    readonly property Item atRest: rest

    spacing: 16

    EBButton {
        id: rest

        variant: states.variant
        size: states.size
        text: qsTr("At rest")
    }
    ButtonFace {
        variant: states.variant
        size: states.size
        text: qsTr("Pressed")
        pressed: true
    }
    EBButton {
        variant: states.variant
        size: states.size
        text: qsTr("Disabled")
        enabled: false
    }
    EBButton {
        variant: states.variant
        size: states.size
        text: qsTr("At rest")
        arrow: true
    }
    ButtonFace {
        variant: states.variant
        size: states.size
        text: qsTr("Pressed")
        arrow: true
        pressed: true
        mirrored: states.LayoutMirroring.enabled
    }
    EBButton {
        variant: states.variant
        size: states.size
        text: qsTr("Disabled")
        arrow: true
        enabled: false
    }
}
