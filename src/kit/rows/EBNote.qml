import QtQuick
import Embera.Tokens

/// A muted remark below a group. It wraps.
EBText {
    role: "caption"
    color: EB.inkMuted
    horizontalAlignment: Text.AlignLeft
    wrapMode: Text.Wrap
    leftPadding: 16
    rightPadding: 16
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    width: parent?.width ?? implicitWidth
}
