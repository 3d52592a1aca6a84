pragma ComponentBehavior: Bound
import QtQuick
import Embera.Controls
import Embera.Rows
import Corvane.Settings.Layouts

/// The saved layouts, or the word that there are none yet, and after a deletion the way back from it. Only rows near the
/// view have items, however many layouts there are.
Column {
    id: list

    /// What is in view, in points below the upper edge of this item.
    required property real viewTop
    required property real viewBottom
    /// A thumbnail and what is free above and below it.
    readonly property real rowHeight: 58
    readonly property real pitch: rowHeight + KitMetrics.ruleHeight
    /// The rows in view and two more on either side.
    readonly property int firstNear: Math.max(0, Math.floor(viewTop / pitch) - 2)
    readonly property int lastNear: Math.min(layouts.count - 1, Math.floor(viewBottom / pitch) + 2)

    /// The item of a row, which has the focus next.
    function rowItem(row: int) : LayoutRow {
        near.keep(row);
        return rows.itemAt(near.placeOf(row)) as LayoutRow;
    }
    /// The focus of the keyboard goes to the button that has moved into the place of the one pressed, and from the last
    /// one back to what stands above the list.
    function deleteRow(row: int, byKeyboard: bool) {
        const above = rows.itemAt(0).nextItemInFocusChain(false);
        layouts.removeLayout(row);
        if (line.visible)
            line.announce();
        if (!byKeyboard)
            return;
        const next = rowItem(Math.min(row, layouts.count - 1));
        next ? next.focusDelete() : above.forceActiveFocus(Qt.BacktabFocusReason);
    }
    /// The focus stays while there is more to bring back, and then goes to the layout that has come back.
    function undo(byKeyboard: bool) {
        const row = layouts.undoRemoval();
        if (byKeyboard && layouts.removed === "")
            rowItem(row)?.focusDelete();
    }

    width: parent?.width ?? implicitWidth
    spacing: 12

    LayoutsModel {
        id: layouts
    }
    EBGroup {
        drawnFrom: layouts.count > 0 ? list.firstNear * list.pitch : 0
        drawnTo: layouts.count > 0 ? Math.min(height, (list.lastNear + 1) * list.pitch) : height

        EBRow {
            visible: layouts.count === 0
            title: qsTr("None yet")
            detail: qsTr("In Mission Control, click Save current, or a template.")
        }
        Item {
            width: parent.width
            implicitHeight: Math.max(0, layouts.count * list.pitch - KitMetrics.ruleHeight)

            Repeater {
                id: rows
                model: NearRows {
                    id: near
                    sourceModel: layouts
                    first: list.firstNear
                    last: list.lastNear
                }

                LayoutRow {
                    y: row * list.pitch
                    height: list.rowHeight
                    count: layouts.count
                    onActiveFocusChanged: if (activeFocus)
                        near.keep(row)
                    onRenamed: (row, name) => layouts.rename(row, name)
                    onDeleted: (row, byKeyboard) => list.deleteRow(row, byKeyboard)
                }
            }
        }
    }
    RemovalLine {
        id: line

        removed: layouts.removed
        onUndone: byKeyboard => list.undo(byKeyboard)
    }
}
