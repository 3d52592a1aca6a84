import QtQuick
import QtQuick.Templates as T

/// What every button of the kit does: it is named by its text, and Return, Enter and an assistive technology press it
/// as Space does. One that is a tab or an item of a list says so with `EBAccessible.role`.
T.AbstractButton {
    id: control

    Accessible.name: text
    Accessible.onPressAction: clicked()
    // An invisible control must not keep the keyboard focus.
    onVisibleChanged: if (!visible)
        focus = false
    Keys.onReturnPressed: event => event.isAutoRepeat || control.clicked()
    Keys.onEnterPressed: event => event.isAutoRepeat || control.clicked()
}
