import QtQuick
import Embera.Controls
import Embera.Rows

/// The label above a group. It hangs 4 points out at its bottom, which brings the group that follows closer.
Item {
    id: group

    property alias text: label.text

    implicitWidth: label.implicitWidth + KitMetrics.rowInset
    implicitHeight: label.implicitHeight
    width: parent?.width ?? implicitWidth

    EBLabel {
        id: label

        anchors {
            left: parent.left
            right: parent.right
            leftMargin: KitMetrics.rowInset
            top: parent.top
            topMargin: KitMetrics.groupLabelPadding
        }
    }
}
