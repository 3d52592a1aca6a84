pragma ComponentBehavior: Bound
import QtQuick
import Embera.Rows
import Corvane.Settings.Layouts

/// The saved layouts, or the word that there are none yet, and after a deletion the way back from it.
Column {
    id: list

    /// The focus of the keyboard goes to the button that has moved into the place of the one pressed, and from the last
    /// one back to what stands above the list.
    function deleteRow(row: int, byKeyboard: bool) {
        const above = rows.itemAt(0).nextItemInFocusChain(false);
        layouts.removeLayout(row);
        if (line.visible)
            line.announce();
        const next = rows.itemAt(Math.min(row, layouts.count - 1)) as LayoutRow;
        if (byKeyboard)
            next ? next.focusDelete() : above.forceActiveFocus(Qt.BacktabFocusReason);
    }
    /// The focus stays while there is more to bring back, and then goes to the layout that has come back.
    function undo(byKeyboard: bool) {
        const row = rows.itemAt(layouts.undoRemoval()) as LayoutRow;
        if (byKeyboard && row && layouts.removed === "")
            row.focusDelete();
    }

    width: parent?.width ?? implicitWidth
    spacing: 12

    EBGroup {
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
                onDeleted: (index, byKeyboard) => list.deleteRow(index, byKeyboard)
            }
        }
    }
    RemovalLine {
        id: line

        removed: layouts.removed
        onUndone: byKeyboard => list.undo(byKeyboard)
    }
}
