import QtQuick
import Embera.Controls
import Embera.Rows
import Embera.Screens
import Corvane.Overlay
import Corvane.Shared
import Corvane.Onboarding

/// The look of the buttons, kept in the store as it is chosen.
EBStageScreen {
    id: screen

    required property OnboardingFlow flow
    readonly property string theme: ButtonChoices.theme(look.theme)
    readonly property string size: ButtonChoices.size(look.size)

    app: "corvane"
    kicker: flow.kicker("customize")
    title: qsTr("Make it yours")
    // Before the text, so that what comes up is read out.
    isLive: trouble.text !== ""
    text: trouble.text || qsTr("Optional. Pick a look and a size; you can change them any time in Settings.")

    StoreTrouble {
        id: trouble
    }
    OverlayLook {
        id: look
    }
    Row {
        width: parent.width
        // The ring around a button below the card stays clear of it.
        height: Math.max(screen.room, card.height + KitMetrics.ringGap + KitMetrics.ringWidth)
        spacing: 14

        ButtonsPreview {
            width: 176
            height: card.height
            theme: screen.theme
            size: screen.size
            showMinimize: look.showMinimize
            showMaximize: look.showMaximize
            windowSize: Qt.size(128, 76)
            buttonScale: 1
        }
        EBGroup {
            id: card

            width: parent.width - 176 - parent.spacing

            Item {
                width: parent.width
                implicitHeight: tiles.height + 2 * 12

                ThemeTiles {
                    id: tiles

                    enabled: Key.isWritable(Key.buttonTheme)
                    x: 12
                    y: 12
                    width: parent.width - 2 * 12
                    compact: true
                    themeRaw: screen.theme
                    onChosen: themeRaw => look.theme = themeRaw
                }
            }
            EBRow {
                enabled: Key.isWritable(Key.buttonSizeOption)
                title: qsTr("Size")

                EBSegmented {
                    label: qsTr("Size")
                    options: ButtonChoices.sizes
                    selection: screen.size
                    onSelected: value => look.size = value
                }
            }
            EBSwitchRow {
                enabled: Key.isWritable(Key.showMinimizeButton)
                title: qsTr("Minimize button")
                isOn: look.showMinimize
                onFlipped: value => look.showMinimize = value
            }
            EBSwitchRow {
                enabled: Key.isWritable(Key.showMaximizeButton)
                title: qsTr("Full screen button")
                isOn: look.showMaximize
                onFlipped: value => look.showMaximize = value
            }
        }
    }

    actions: [
        EBButton {
            text: qsTr("Looks Good")
            size: "sm"
            onClicked: screen.flow.looksGood()
        },
        EBButton {
            text: qsTr("Keep the Defaults")
            variant: "secondary"
            size: "sm"
            onClicked: screen.flow.keepTheDefaults()
        },
        BackButton {
            flow: screen.flow
        }
    ]
}
