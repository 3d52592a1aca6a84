import QtQuick
import Embera.Tokens
import Embera.Controls

/// One choice of a segmented control. The keyboard reaches the chosen one, or the first one if none is chosen.
ControlledToggle {
    id: segment

    required property int index
    required property var modelData
    required property EBSegmented group
    /// What the ring of the keyboard focus goes around.
    required property Item ringParent

    text: modelData.title
    isOn: index === group.selectedIndex
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 24
    horizontalPadding: 14
    focusPolicy: index === Math.max(0, group.selectedIndex) ? Qt.StrongFocus : Qt.ClickFocus
    Accessible.role: Accessible.RadioButton
    onFlipped: group.selected(modelData.value)

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
        Accessible.ignored: true
    }

    FocusRing {
        parent: segment.ringParent
        control: segment
    }
}
