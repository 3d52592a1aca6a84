import QtQuick
import QtQuick.Templates as T

/// What every button of the kit does: it is named by its text, and Return and Enter press it as Space does.
T.AbstractButton {
    id: control

    Accessible.name: text
    Keys.onReturnPressed: event => event.isAutoRepeat || control.click()
    Keys.onEnterPressed: event => event.isAutoRepeat || control.click()
}
