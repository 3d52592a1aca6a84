pragma ComponentBehavior: Bound
import QtQuick
import Embera.Rows
import Corvane.Settings.Layouts

/// The saved layouts, or a row that says that there are none yet.
EBGroup {
    id: group

    /// After a deletion the focus goes to the button that has moved into the place of the one pressed, and from the last
    /// one back to what stands above the list.
    function deleteRow(row: int, hadFocus: bool) {
        const above = rows.itemAt(0).nextItemInFocusChain(false);
        layouts.removeLayout(row);
        const next = rows.itemAt(Math.min(row, layouts.count - 1)) as LayoutRow;
        if (hadFocus)
            next ? next.focusDelete() : above.forceActiveFocus(Qt.BacktabFocusReason);
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
            onDeleted: (index, hadFocus) => group.deleteRow(index, hadFocus)
        }
    }
}
