import QtQuick
import Embera.Tokens
import Embera.Window

/// What a window of the kit has over its content: its edge, the three buttons and its shortcuts.
Item {
    id: chrome

    required property EBWindow window

    anchors.fill: parent
    LayoutMirroring.childrenInherit: true
    z: 1

    Shortcut {
        sequences: ["Ctrl+W"]
        enabled: chrome.window.shortcutsEnabled
        onActivated: chrome.window.close()
    }
    Shortcut {
        sequences: ["Ctrl+Q"]
        enabled: chrome.window.shortcutsEnabled
        onActivated: Qt.quit()
    }
    // Many desktops give a window without a frame no shadow: over another window of its colour it would have no end.
    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.color: EB.lineStrong
    }
    Row {
        anchors {
            left: parent.left
            top: parent.top
            leftMargin: chrome.window.buttonsPlace.x
            topMargin: chrome.window.buttonsPlace.y
        }
        spacing: 8

        WindowButton {
            text: qsTr("Close")
            glyph: "close"
            loudGround: chrome.window.loudGround
            onClicked: chrome.window.close()
        }
        WindowButton {
            text: qsTr("Minimize")
            glyph: "minus"
            loudGround: chrome.window.loudGround
            enabled: chrome.window.miniaturizeButtonEnabled
            onClicked: chrome.window.showMinimized()
        }
        WindowButton {
            text: qsTr("Zoom")
            glyph: "plus"
            loudGround: chrome.window.loudGround
            enabled: false
        }
    }
}
