import QtQuick
import Embera.Tokens
import Embera.Controls

/// Says on a miniature window that it is full screen. Silent: the window's name says so too.
ContinuousRectangle {
    implicitWidth: words.implicitWidth + 2 * 7
    implicitHeight: 17
    color: EB.ink

    EBText {
        id: words

        anchors.centerIn: parent
        text: qsTr("Full screen")
        role: "caption"
        size: 10
        weight: Font.DemiBold
        color: EB.onInk
    }
}
