import QtQuick
import Embera.Rows

/// The label above a group. It hangs 4 points out at its bottom, which brings the group that follows closer.
Item {
    id: group

    property alias text: label.text

    implicitWidth: label.implicitWidth + 16
    implicitHeight: label.implicitHeight
    width: parent?.width ?? implicitWidth

    EBLabel {
        id: label

        anchors {
            left: parent.left
            right: parent.right
            leftMargin: 16
            top: parent.top
            topMargin: 4
        }
    }
}
