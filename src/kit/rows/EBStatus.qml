import QtQuick
import Embera.Tokens
import Embera.Controls

/// A dot and a word that say whether something is allowed yet: `state` is "waiting" or "allowed".
Row {
    id: status

    /// Stands in for the state's own word.
    property string text
    readonly property bool isAllowed: state === "allowed"

    state: "waiting"
    spacing: 7
    Accessible.role: Accessible.StaticText
    Accessible.name: word.text

    ContinuousRectangle {
        anchors.verticalCenter: parent.verticalCenter
        implicitWidth: 7
        implicitHeight: 7
        color: status.isAllowed ? EB.ok : EBEnvironment.accent
    }
    EBText {
        id: word

        anchors.verticalCenter: parent.verticalCenter
        text: status.text || (status.isAllowed ? qsTr("Allowed") : qsTr("Waiting"))
        role: "small"
        weight: Font.DemiBold
        color: status.isAllowed ? EB.ink : EB.inkMuted
    }
}
