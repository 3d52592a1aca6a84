import QtQuick

/// The empty window with one text.
Empty {
    Text {
        x: 210
        y: 84
        font.family: "Inter"
        font.pixelSize: 13
        text: "Start at login"
    }
}
