import QtQuick
import Embera.Controls
import Embera.Rows

/// A row with a switch. It shows `isOn`, which it never sets itself; a click emits `flipped(isOn)` with the new value.
EBRow {
    id: row

    property bool isOn: false

    signal flipped(bool isOn)

    EBSwitch {
        label: row.title
        isOn: row.isOn
        onFlipped: isOn => row.flipped(isOn)
    }
}
