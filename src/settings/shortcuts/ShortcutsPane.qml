pragma ComponentBehavior: Bound
import QtQuick
import Embera.Controls
import Embera.Rows
import Corvane.Settings.Shortcuts

/// The Shortcuts page: which of the agent's shortcuts are on.
PaneStack {
    EBGroup {
        Repeater {
            model: ShortcutsModel {
                id: shortcuts
            }

            EBRow {
                id: row

                required property int index
                required property string label
                required property string keys
                required property bool on
                required property bool writable

                enabled: writable
                title: label

                KeyCap {
                    keys: row.keys
                }
                EBSwitch {
                    label: row.label
                    isOn: row.on
                    onFlipped: on => shortcuts.setOn(row.index, on)
                }
            }
        }
    }
    EBNote {
        text: qsTr("They work only while Mission Control is open, on the window under the pointer.")
    }
}
