import QtQuick
import Embera.Tokens
import Embera.Controls

/// One choice of a segmented control.
ControlledToggle {
    id: segment

    required property int index
    required property var modelData
    /// What the ring of the keyboard focus goes around.
    required property Item ringParent

    text: modelData.title
    implicitWidth: implicitContentWidth + 2 * horizontalPadding
    implicitHeight: 24
    horizontalPadding: 14
    Accessible.role: Accessible.RadioButton

    background: ContinuousRectangle {
        color: EB.segOn
        strokeColor: EB.lineStrong
        strokeWidth: 1
        visible: segment.isOn
    }
    contentItem: EBText {
        text: segment.text
        role: "small"
        weight: Font.Medium
        color: segment.isOn ? EB.ink : EB.inkMuted
        verticalAlignment: Text.AlignVCenter
    }

    FocusRing {
        parent: segment.ringParent
        control: segment
    }
}
