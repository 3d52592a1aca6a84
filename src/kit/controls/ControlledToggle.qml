import QtQuick
import Embera.Controls

/// A toggle that shows what its caller says: `isOn` is only ever set from outside, and acting on the toggle emits
/// `flipped` with the value that the person asked for.
Pressable {
    id: control

    property bool isOn: false
    /// True while `flipped` is being emitted.
    property bool isFlipping: false

    signal flipped(bool isOn)

    onClicked: {
        isFlipping = true;
        flipped(!isOn);
        isFlipping = false;
    }
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: isOn
    Accessible.onToggleAction: clicked()
}
