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

    // Not a check box of the templates, which makes its data for assistive technologies twice and frees them once.
    checkable: true
    checked: isOn
    onClicked: {
        isFlipping = true;
        flipped(!isOn);
        isFlipping = false;
        // The template has flipped it by itself.
        checked = Qt.binding(() => isOn);
    }
    Accessible.onToggleAction: clicked()
}
