import QtQuick

/// The picture of the General page, drawn by Qt Quick alone: no kit, no store, no bus, nothing to press.
Empty {
    id: page

    readonly property color ink: "#111214"
    readonly property color inkMuted: "#67686e"
    readonly property color accent: "#5a5cf2"
    readonly property color chip: "#e3e1dc"

    component Label: Text {
        font.family: "Inter"
        font.pixelSize: 13
        font.weight: Font.DemiBold
        color: page.ink
    }
    component Detail: Label {
        font.pixelSize: 11
        font.weight: Font.Normal
        color: page.inkMuted
        lineHeightMode: Text.FixedHeight
        lineHeight: 14
    }
    component Mono: Text {
        font.family: "Geist Mono"
        font.weight: Font.Medium
        font.pixelSize: 10
        font.letterSpacing: 1.4
        color: page.inkMuted
    }
    component Line: Rectangle {
        x: 226
        width: 370
        height: 1
        color: "#ececed"
    }
    component Card: Rectangle {
        x: 210
        width: 386
        height: 101
        radius: 16
        border.color: "#ececed"
    }
    component Capsule: Rectangle {
        height: 24
        radius: 12
        border.color: "#cbcbcb"

        property alias text: label.text

        Label {
            id: label
            anchors.centerIn: parent
            font.pixelSize: 12
        }
    }
    component Track: Rectangle {
        x: 544
        width: 36
        height: 22
        radius: 11
    }
    component Knob: Rectangle {
        y: 2
        width: 24
        height: 18
        radius: 9
    }
    component Round: Rectangle {
        y: 16
        width: 15
        height: 15
        radius: 7.5
        color: page.chip
        border.color: "#b3b2ae"

        Rectangle {
            anchors.centerIn: parent
            width: 7
            height: 1
            color: page.inkMuted
        }
    }
    component Sign: Rectangle {
        x: 30
        width: 11
        height: 11
        radius: 3
        color: "transparent"
        border.color: page.inkMuted
    }

    height: 311

    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.color: "#c5c4c1"
        z: 1
    }
    Rectangle {
        x: 8
        y: 8
        width: 178
        height: 295
        radius: 22
        color: "#efede8"
    }
    Round { x: 22 }
    Round { x: 45 }
    Round {
        x: 68
        opacity: 0.4
    }
    Rectangle {
        x: 24
        y: 52
        width: 146
        height: 28
        radius: 14
        color: page.chip
    }
    Rectangle {
        x: 36
        y: 61
        width: 9
        height: 9
        radius: 4.5
        color: "transparent"
        border.color: page.inkMuted
    }
    Label {
        x: 53
        y: 58
        font.weight: Font.Normal
        color: page.inkMuted
        text: "Search"
    }
    Rectangle {
        x: 18
        y: 90
        width: 158
        height: 30
        radius: 10
        color: page.chip
    }
    Sign {
        y: 100
        border.color: page.accent
        radius: 6
    }
    Sign { y: 131 }
    Sign { y: 164 }
    Sign { y: 196 }
    Label {
        x: 51
        y: 97
        text: "General"
    }
    Label {
        x: 51
        y: 129
        font.weight: Font.Medium
        color: page.inkMuted
        text: "Buttons"
    }
    Label {
        x: 51
        y: 161
        font.weight: Font.Medium
        color: page.inkMuted
        text: "Shortcuts"
    }
    Label {
        x: 51
        y: 193
        font.weight: Font.Medium
        color: page.inkMuted
        text: "Layouts"
    }
    Rectangle {
        x: 28
        y: 268
        width: 6
        height: 20
        radius: 3
        color: page.accent
    }
    Rectangle {
        x: 35
        y: 268
        width: 13
        height: 6
        radius: 3
        color: page.accent
    }
    Rectangle {
        x: 35
        y: 275
        width: 13
        height: 13
        radius: 6.5
        color: page.accent
    }
    Mono {
        x: 56
        y: 265
        lineHeightMode: Text.FixedHeight
        lineHeight: 13
        text: "CORVANE\nVERSION 1.0"
    }
    Mono {
        x: 210
        y: 18
        text: "SETTINGS · 01"
    }
    Text {
        x: 210
        y: 31
        font.family: "Instrument Sans"
        font.weight: Font.DemiBold
        font.pixelSize: 34
        font.letterSpacing: -1.19
        color: page.ink
        text: "General"
    }
    Card { y: 81 }
    Label {
        x: 226
        y: 87
        text: "Start at login"
    }
    Detail {
        x: 226
        y: 104
        text: "So the buttons are there whenever\nyou open Mission Control."
    }
    Track {
        y: 99
        color: "#e4e4e6"

        Knob {
            x: 2
            border.color: "#d0d0d0"
        }
    }
    Line { y: 138 }
    Label {
        x: 226
        y: 145
        text: "Show in the menu bar"
    }
    Detail {
        x: 226
        y: 162
        text: "Open Corvane from Applications to come back here."
    }
    Track {
        y: 150
        color: page.accent

        Knob { x: 10 }
    }
    Card { y: 194 }
    Label {
        x: 226
        y: 200
        text: "Accessibility"
    }
    Detail {
        x: 226
        y: 217
        text: "Needed to see which window you point at in\nMission Control."
    }
    Capsule {
        x: 475
        y: 211
        width: 105
        text: "Open Settings"
    }
    Line { y: 251 }
    Label {
        x: 226
        y: 258
        text: "Welcome guide"
    }
    Detail {
        x: 226
        y: 275
        text: "Try it again in a pretend Mission Control."
    }
    Capsule {
        x: 488
        y: 262
        width: 92
        text: "Show Guide"
    }
}
