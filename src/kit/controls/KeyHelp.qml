import QtQuick

/// Lies over what shows key symbols, and says in a tool tip which keys they stand for here.
Item {
    id: help

    /// The keys; empty where there are no symbols to explain, and then there is no tip.
    required property string text

    anchors.fill: parent

    HoverHandler {
        id: pointer

        enabled: help.text !== ""
    }
    Loader {
        active: pointer.hovered
        Component.onCompleted: setSource("EBToolTip.qml", {target: help})
    }
}
