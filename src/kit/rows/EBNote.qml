import QtQuick
import Embera.Tokens
import Embera.Controls

/// A muted remark below a group. It wraps.
EBText {
    role: "caption"
    color: EB.inkMuted
    horizontalAlignment: Text.AlignLeft
    wrapMode: Text.Wrap
    leftPadding: KitMetrics.rowInset
    rightPadding: KitMetrics.rowInset
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    width: parent?.width ?? implicitWidth
}
