import QtQuick

Window {
    visible: true
    width: 620
    height: 410
    x: (Screen.width - width) / 2
    y: (Screen.height - height) / 2
    flags: Qt.Window | Qt.FramelessWindowHint
    color: Qt.rgba(0.9686, 0.9647, 0.949, 1)
}
