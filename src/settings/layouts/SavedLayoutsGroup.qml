pragma ComponentBehavior: Bound
import QtQuick
import Embera.Rows
import Corvane.Settings.Layouts

/// The saved layouts, or the word that there are none yet.
EBGroup {
    id: group

    /// After a deletion the focus goes to the button that has moved into the place of the one pressed.
    function deleteRow(row: int, byKeyboard: bool) {
        layouts.removeLayout(row);
        if (byKeyboard && layouts.count > 0)
            (rows.itemAt(Math.min(row, layouts.count - 1)) as LayoutRow).focusDelete();
    }

    EBRow {
        visible: layouts.count === 0
        title: qsTr("None yet")
        detail: qsTr("In Mission Control, click Save current, or a template.")
    }
    Repeater {
        id: rows
        model: LayoutsModel {
            id: layouts
        }

        LayoutRow {
            onRenamed: (index, name) => layouts.rename(index, name)
            onDeleted: (index, byKeyboard) => group.deleteRow(index, byKeyboard)
        }
    }
}
