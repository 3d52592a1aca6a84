import QtQuick
import Embera.Tokens
import Embera.Controls

/// A muted remark below a group. It wraps.
EBText {
    id: note

    role: "caption"
    color: EB.inkMuted
    horizontalAlignment: Text.AlignLeft
    wrapMode: Text.Wrap
    leftPadding: KitMetrics.rowInset
    rightPadding: KitMetrics.rowInset
    Accessible.role: Accessible.StaticText
    Accessible.name: KeySymbols.spelled(text)
    width: parent?.width ?? implicitWidth

    KeyHelp {
        text: KeySymbols.keysIn(note.text)
    }
}
