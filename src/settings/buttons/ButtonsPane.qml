import QtQuick
import Embera.Tokens
import Embera.Controls
import Embera.Rows
import Corvane.Shared
import Corvane.Overlay
import Corvane.Settings.Buttons

/// The Buttons page: the look of the overlay buttons. It shows what the store holds, whoever wrote it; a theme or a
/// size that nobody knows shows as the default and stays stored until another is chosen.
PaneStack {
    id: pane

    readonly property OverlayLook look: actions.look
    readonly property string theme: ButtonChoices.theme(look.theme)
    readonly property string size: ButtonChoices.size(look.size)

    ButtonsActions {
        id: actions
    }
    // Never announced: the agent reads the mode each time it makes a window large.
    AppStorage {
        id: maximizeMode
        key: Key.maximizeMode
    }

    ButtonsPreview {
        theme: pane.theme
        size: pane.size
        showMinimize: pane.look.showMinimize
        showMaximize: pane.look.showMaximize
        windowSize: Qt.size(200, 112)
        buttonScale: 1.15
    }
    EBGroup {
        Column {
            width: parent.width
            padding: 16
            spacing: 10

            ThemeTiles {
                enabled: Key.isWritable(Key.buttonTheme)
                width: parent.width - 2 * 16
                themeRaw: pane.theme
                onChosen: themeRaw => pane.look.theme = themeRaw
            }
            EBParagraph {
                width: parent.width - 2 * 16
                text: ButtonChoices.description(pane.theme)
                role: "caption"
                color: EB.inkMuted
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        EBRow {
            enabled: Key.isWritable(Key.buttonSizeOption)
            title: qsTr("Size")

            EBSegmented {
                label: qsTr("Size")
                options: ButtonChoices.sizes
                selection: pane.size
                onSelected: value => pane.look.size = value
            }
        }
    }
    EBGroup {
        EBSwitchRow {
            enabled: Key.isWritable(Key.showMinimizeButton)
            title: qsTr("Minimize button")
            detail: qsTr("Next to Close, which is always there.")
            isOn: pane.look.showMinimize
            onFlipped: value => pane.look.showMinimize = value
        }
        EBSwitchRow {
            enabled: Key.isWritable(Key.showMaximizeButton)
            title: qsTr("Full screen button")
            isOn: pane.look.showMaximize
            onFlipped: value => pane.look.showMaximize = value
        }
        EBRow {
            enabled: Key.isWritable(Key.maximizeMode)
            title: qsTr("Full screen")
            detail: qsTr("For the full-screen button and ⌘F.")

            EBSegmented {
                label: qsTr("Full screen")
                options: [{value: "fullscreen", title: qsTr("Own Space")}, {value: "fill", title: qsTr("Fill Screen")}]
                selection: maximizeMode.value
                onSelected: value => maximizeMode.value = value
            }
        }
    }
}
