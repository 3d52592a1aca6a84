import QtQuick

/// Among the actions of a screen: takes all the room that the others leave, and keeps them apart by at least `least`
/// points more than they are anyway.
Item {
    id: spacer

    property real least: 0
    readonly property ActionRow row: parent as ActionRow

    width: Math.max(least, row?.free ?? 0)
    height: 1
}
