pragma ComponentBehavior: Bound
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
                onFlipped: (index, on) => shortcuts.setOn(index, on)
            }
        }
    }
    EBNote {
        text: qsTr("They work only while Mission Control is open, on the window under the pointer.")
    }
}
