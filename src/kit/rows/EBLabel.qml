import QtQuick
import Embera.Tokens

/// A small label in capitals. `text` is written in natural case, and that is how it is read aloud.
Item {
    id: label

    property string text
    /// "muted", "ink" or "onLoud".
    property string tone: "muted"
    property bool small: false

    implicitWidth: capitals.implicitWidth
    implicitHeight: capitals.implicitHeight
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    EBText {
        id: capitals

        width: parent.width
        text: label.text.toLocaleUpperCase()
        role: label.small ? "monoSmall" : "mono"
        color: label.tone === "onLoud" ? EBEnvironment.onLoud : label.tone === "ink" ? EB.ink : EB.inkMuted
        horizontalAlignment: Text.AlignLeft
    }
}
