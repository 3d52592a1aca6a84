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

    readonly property string theme: ButtonChoices.theme(storedTheme.value)
    readonly property string size: ButtonChoices.size(storedSize.value)
    /// What the page finds when it opens is no change.
    property bool isOpen: false

    Component.onCompleted: isOpen = true

    AppStorage {
        id: storedTheme
        key: Key.buttonTheme
        onValueChanged: if (pane.isOpen)
            ButtonsActions.announce()
    }
    AppStorage {
        id: storedSize
        key: Key.buttonSizeOption
        onValueChanged: if (pane.isOpen)
            ButtonsActions.announce()
    }
    AppStorage {
        id: showMinimize
        key: Key.showMinimizeButton
        onValueChanged: if (pane.isOpen)
            ButtonsActions.announce()
    }
    AppStorage {
        id: showMaximize
        key: Key.showMaximizeButton
        onValueChanged: if (pane.isOpen)
            ButtonsActions.announce()
    }
    // Never announced: the agent reads the mode each time it makes a window large.
    AppStorage {
        id: maximizeMode
        key: Key.maximizeMode
    }

    ButtonsPreview {
        theme: pane.theme
        size: pane.size
        showMinimize: showMinimize.value
        showMaximize: showMaximize.value
        windowSize: Qt.size(200, 112)
        buttonScale: 1.15
    }
    EBGroup {
        Column {
            width: parent.width
            padding: 16
            spacing: 10

            ThemeTiles {
                width: parent.width - 2 * 16
                themeRaw: pane.theme
                onChosen: themeRaw => storedTheme.value = themeRaw
            }
            EBText {
                width: parent.width - 2 * 16
                text: ButtonChoices.description(pane.theme)
                role: "caption"
                color: EB.inkMuted
                horizontalAlignment: Text.AlignLeft
                wrapMode: Text.Wrap
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        EBRule {
            inset: 16
        }
        EBRow {
            title: qsTr("Size")

            EBSegmented {
                label: qsTr("Size")
                options: ButtonChoices.sizes
                selection: pane.size
                onSelected: value => storedSize.value = value
            }
        }
    }
    EBGroup {
        EBSwitchRow {
            title: qsTr("Minimize button")
            detail: qsTr("Next to Close, which is always there.")
            isOn: showMinimize.value
            onFlipped: value => showMinimize.value = value
        }
        EBRule {
            inset: 16
        }
        EBSwitchRow {
            title: qsTr("Full screen button")
            isOn: showMaximize.value
            onFlipped: value => showMaximize.value = value
        }
        EBRule {
            inset: 16
        }
        EBRow {
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
