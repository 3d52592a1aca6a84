import QtQuick

/// Among the actions of a screen: takes all the room that the others leave.
Item {
    readonly property ActionRow row: parent as ActionRow

    width: row?.free ?? 0
    height: 1
}
