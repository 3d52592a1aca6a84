import QtQuick
import Embera.Tokens
import Embera.Controls

/// Says which layout was deleted last, and offers to bring it back. It is not there while there is none.
Item {
    id: line

    /// What the layout is called; empty for none.
    required property string removed

    /// The person asked for it back, perhaps with the keyboard.
    signal undone(byKeyboard: bool)

    /// Has assistive technologies read the line out.
    function announce() {
        Announcer.announce(message);
    }

    implicitHeight: Math.max(message.height, button.height)
    width: parent?.width ?? implicitWidth
    visible: removed !== ""

    EBText {
        id: message

        anchors {
            left: parent.left
            leftMargin: KitMetrics.rowInset
            right: button.left
            rightMargin: KitMetrics.rowSpacing
            verticalCenter: parent.verticalCenter
        }
        //: %1 is the name of a layout.
        text: qsTr("Deleted “%1”.").arg(line.removed)
        role: "caption"
        color: EB.inkMuted
        horizontalAlignment: Text.AlignLeft
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
        Accessible.role: Accessible.Notification
        Accessible.name: text
    }
    EBButton {
        id: button

        anchors {
            right: parent.right
            rightMargin: KitMetrics.rowInset
            verticalCenter: parent.verticalCenter
        }
        variant: "secondary"
        size: "xs"
        text: qsTr("Undo")
        onClicked: line.undone(visualFocus)
    }
}
