import QtQuick
import QtQuick.Templates as T
import Embera.Tokens
import Embera.Controls

/// A few words about an item, above it. They come up a moment after the tip was made: whoever makes it does so when the
/// pointer or the keyboard focus comes, and drops it when they go.
T.ToolTip {
    id: tip

    /// The item, with a `text`, which is what the tip says.
    required property var target

    parent: target
    x: (target.width - width) / 2
    y: -height - 4
    text: target.text
    // It stays inside the window.
    margins: 6
    horizontalPadding: 8
    verticalPadding: 4
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    delay: 700
    // Nothing but the pointer and the focus ends it, or that the item is taken out of its window.
    closePolicy: T.Popup.NoAutoClose
    Component.onCompleted: open()

    Connections {
        target: tip.parent

        function onWindowChanged(window) {
            if (!window)
                tip.close();
        }
    }

    background: ContinuousRectangle {
        radius: 6
        color: EB.ink
    }
    contentItem: EBText {
        text: tip.text
        role: "caption"
        color: EB.onInk
    }
}
