import QtQuick
import Embera.Controls
import Embera.Rows

/// One shortcut with its keys and its switch, below a rule unless it is the first.
Column {
    id: entry

    required property int index
    required property string label
    required property string keys
    required property bool on

    /// The person asked for the shortcut in row `index` to be on or off.
    signal flipped(index: int, on: bool)

    width: parent?.width ?? implicitWidth

    EBRule {
        visible: entry.index > 0
        inset: 16
    }
    EBRow {
        title: entry.label

        KeyCap {
            anchors.verticalCenter: parent?.verticalCenter
            keys: entry.keys
        }
        EBSwitch {
            anchors.verticalCenter: parent?.verticalCenter
            label: entry.label
            isOn: entry.on
            onFlipped: on => entry.flipped(entry.index, on)
        }
    }
}
