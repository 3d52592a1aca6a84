import QtQuick
import QtQuick.Templates as T
import Embera.Tokens
import Embera.Rows
import Corvane.Settings.Window

/// The heading and the content of the selected page. A page taller than the window scrolls, and follows the focus.
Flickable {
    id: area

    required property SettingsModel model
    readonly property Item focusItem: Window.activeFocusItem

    function reveal(top: real, bottom: real) {
        contentY = Math.max(Math.min(contentY, top), bottom - height);
    }

    implicitHeight: page.y + page.implicitHeight + 16
    contentHeight: implicitHeight
    interactive: contentHeight > height
    boundsBehavior: Flickable.StopAtBounds
    clip: interactive
    onFocusItemChanged: if (interactive && loader.activeFocus)
        reveal(focusItem.mapToItem(contentItem, 0, -18).y, focusItem.mapToItem(contentItem, 0, focusItem.height + 18).y)

    T.ScrollBar.vertical: T.ScrollBar {
        width: 10
        padding: 2
        visible: area.interactive
        contentItem: Rectangle {
            radius: width / 2
            color: EB.lineStrong
        }
    }

    Column {
        id: page
        x: 16
        y: 18
        width: area.width - 16 - 24

        EBLabel {
            //: The line above a page's heading; %1 is the page's number.
            text: qsTr("Settings · %1").arg(String(area.model.number).padStart(2, "0"))
        }
        EBText {
            role: "title"
            text: area.model.title
            Accessible.role: Accessible.Heading
        }
        FocusScope {
            id: loader
            width: parent.width
            implicitHeight: content.implicitHeight

            Loader {
                id: content
                width: parent.width
                source: area.model.content
            }
        }
    }
}
