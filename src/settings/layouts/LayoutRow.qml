import QtQuick
import Embera.Tokens
import Embera.Controls
import Embera.Rows
import Corvane.Settings.Layouts

/// One saved layout: its thumbnail, its name to type over, and the button that deletes it. A rule stands above it, except
/// above the first one.
FocusScope {
    id: entry

    /// The layout's place in the list, from 0, and how many there are.
    required property int row
    required property int count
    required property string name
    /// The name as it is read out.
    required property string spokenName
    required property var layout

    /// The person gave the layout in that row another name.
    signal renamed(row: int, name: string)
    /// The person asked for the layout in that row to be deleted, perhaps with the keyboard.
    signal deleted(row: int, byKeyboard: bool)

    /// Gives the delete button the focus, as the keyboard would.
    function focusDelete() {
        button.forceActiveFocus(Qt.TabFocusReason);
    }

    width: parent?.width ?? implicitWidth
    Accessible.role: Accessible.Grouping
    Accessible.name: spokenName
    //: The place of a layout in the list, and how many there are.
    Accessible.description: qsTr("%1 of %2").arg(row + 1).arg(count)

    EBRule {
        y: -height
        visible: entry.row > 0
        inset: KitMetrics.rowInset
    }
    LayoutPreview {
        id: preview
        anchors {
            left: parent.left
            leftMargin: 16
            verticalCenter: parent.verticalCenter
        }
        width: 72
        // Inside the margins 66 x 36 are left, so that halves and thirds end on whole points.
        height: 42
        layout: entry.layout
        color: EB.sunk
        windowColor: EB.surface
        borderColor: EB.lineStrong
        Accessible.role: Accessible.Graphic
        Accessible.name: label
    }
    LayoutNameField {
        anchors {
            left: preview.right
            leftMargin: 12 - padding
            right: button.left
            rightMargin: 12
            verticalCenter: parent.verticalCenter
        }
        name: entry.name
        label: qsTr("Name of layout %1").arg(entry.row + 1)
        onCommitted: name => entry.renamed(entry.row, name)
    }
    EBIconButton {
        id: button
        anchors {
            right: parent.right
            rightMargin: 12
            verticalCenter: parent.verticalCenter
        }
        glyph: "close"
        size: 24
        label: qsTr("Delete %1").arg(entry.spokenName)
        onClicked: entry.deleted(entry.row, visualFocus)
    }
}
