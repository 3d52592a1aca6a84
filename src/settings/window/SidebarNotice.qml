pragma ComponentBehavior: Bound
import QtQuick
import Embera.Tokens
import Embera.Controls
import Corvane.Settings.Window

/// The line that stands in the foot's place, and what can be answered to it. It is read out when it comes up, and when
/// another one takes its place.
Column {
    id: place

    /// Whose `notice` and `answers` it shows.
    required property Sidebar sidebar

    spacing: 6

    EBText {
        id: line
        x: 8
        width: parent.width - x - 4
        text: place.sidebar.notice
        role: "caption"
        color: EB.inkMuted
        horizontalAlignment: Text.AlignLeft
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Notification
        Accessible.name: text
        // When it comes up Qt announces it.
        Accessible.onNameChanged: if (visible)
            Announcer.announce(line)
    }
    Flow {
        width: parent.width
        spacing: 4
        visible: place.sidebar.answers.length > 0

        Repeater {
            model: place.sidebar.answers

            EBButton {
                required property int index
                required property string modelData

                text: modelData
                variant: "secondary"
                size: "xs"
                onClicked: place.sidebar.answered(index)
            }
        }
    }
}
