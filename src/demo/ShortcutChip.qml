import QtQuick
import Embera.Tokens
import Embera.Controls
import Corvane.Demo

/// A key cap with the name of its shortcut. While it is lit the cap is inverted. It is silent: the row around it speaks.
Row {
    id: chip

    /// A shortcut by its case name.
    required property string hotkey
    property bool isLit: false

    spacing: 5
    states: State {
        when: chip.isLit

        PropertyChanges {
            cap.color: EB.ink
            keys.color: EB.onInk
            name.color: EB.ink
        }
    }
    // Only lighting up is animated: a change of the appearance shows at once.
    transitions: Transition {
        ColorAnimation {
            targets: [cap, keys, name]
            property: "color"
            duration: EB.reduceMotion ? 0 : Motion.duration(0.15)
            easing: Motion.easeOut
        }
    }

    ContinuousRectangle {
        id: cap

        anchors.verticalCenter: parent.verticalCenter
        implicitWidth: Math.max(30, keys.implicitWidth + 2 * 6)
        implicitHeight: Math.max(20, keys.implicitHeight)
        radius: 6
        color: EB.chip

        EBText {
            id: keys

            anchors.centerIn: parent
            text: ShortcutVocabulary.keys(chip.hotkey)
            role: "small"
            weight: Font.DemiBold
        }
        KeyHelp {
            text: KeySymbols.spelled(keys.text)
        }
    }
    EBText {
        id: name

        anchors.verticalCenter: parent.verticalCenter
        text: ShortcutVocabulary.name(chip.hotkey)
        role: "caption"
        color: EB.inkMuted
    }
}
