import QtQuick
import Embera.Rows
import Corvane.Settings.Shortcuts

/// The Shortcuts page: which of the agent's shortcuts are on.
PaneStack {
    EBGroup {
        Repeater {
            model: ShortcutsModel {
                id: shortcuts
            }

            ShortcutRow {
                // A delegate cannot be bound to its file's ids before Qt 6.5; they are found all the same.
                // qmllint disable unqualified
                onFlipped: (index, on) => shortcuts.setOn(index, on)
                // qmllint enable unqualified
            }
        }
    }
    EBNote {
        text: qsTr("They work only while Mission Control is open, on the window under the pointer.")
    }
}
