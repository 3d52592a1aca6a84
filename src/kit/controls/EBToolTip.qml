import QtQuick
import QtQuick.Templates as T
import Embera.Tokens
import Embera.Controls

/// Says what a button does that shows no text, above it. It comes up once the pointer has rested on the button for a
/// moment, or the keyboard has brought the focus to it, and goes with them.
T.ToolTip {
    id: tip

    required property T.AbstractButton control

    parent: control
    x: (control.width - width) / 2
    y: -height - 4
    text: control.text
    // It stays inside the window.
    margins: 6
    horizontalPadding: 8
    verticalPadding: 4
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    delay: 700
    // Nothing but the pointer and the focus ends it.
    closePolicy: T.Popup.NoAutoClose
    visible: control.hovered || control.visualFocus

    background: ContinuousRectangle {
        radius: 6
        color: EB.ink
    }
    contentItem: EBText {
        text: tip.text
        role: "caption"
        color: EB.onInk
        Accessible.ignored: true
    }
}
