import QtQuick
import QtQuick.Templates as T

/// A toggle that shows what its caller says: `isOn` is only ever set from outside, and acting on the toggle emits
/// `flipped` with the value that the person asked for.
T.CheckBox {
    id: control

    property bool isOn: false
    /// True while `flipped` is being emitted.
    property bool isFlipping: false

    signal flipped(bool isOn)

    function flip() : int {
        isFlipping = true;
        flipped(!isOn);
        isFlipping = false;
        return checkState;
    }

    checkState: isOn ? Qt.Checked : Qt.Unchecked
    nextCheckState: flip
    Accessible.name: text
    Accessible.checked: isOn
    Accessible.onPressAction: flip()
    Accessible.onToggleAction: flip()
    Keys.onReturnPressed: event => event.isAutoRepeat || control.flip()
    Keys.onEnterPressed: event => event.isAutoRepeat || control.flip()
}
