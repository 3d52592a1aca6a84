import QtQuick
import Embera.Controls

/// What every button of the kit does: it is named by its text, and an assistive technology presses it as a click does.
PressableItem {
    id: control

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: clicked()
}
