import QtQuick
import Embera.Tokens
import Embera.Controls
import Embera.Rows
import Corvane.Settings.Window

/// The heading and the content of the selected page. A page for which the window has no room scrolls, by the keyboard too.
ScrollArea {
    id: area

    required property SettingsModel model

    /// Scrolls where the key says; false when it says nothing, or there is nothing to scroll.
    function scrollByKey(key: int) : bool {
        const page = height - 60;
        const places = {
            [Qt.Key_PageUp]: contentY - page,
            [Qt.Key_PageDown]: contentY + page,
            [Qt.Key_Home]: 0,
            [Qt.Key_End]: contentHeight
        };
        if (!scrolls || places[key] === undefined)
            return false;
        scrollTo(places[key]);
        return true;
    }

    implicitHeight: page.y + page.implicitHeight + 16
    contentHeight: implicitHeight
    whole: content

    Connections {
        target: area.model

        function onSelectionChanged() {
            area.contentY = 0;
        }
    }
    Binding {
        target: content.item as PaneStack
        property: "viewTop"
        value: area.contentY - page.y - pane.y
    }
    Binding {
        target: content.item as PaneStack
        property: "viewBottom"
        // Until it is anchored the area is as high as the page.
        value: area.contentY + Math.min(area.height, area.Window.height) - page.y - pane.y
    }
    Column {
        id: page
        anchors {
            left: parent.left
            top: parent.top
            leftMargin: 16
            topMargin: 18
        }
        width: area.width - 16 - 24

        EBLabel {
            width: parent.width
            //: The line above a page's heading; %1 is the page's number.
            text: qsTr("Settings · %1").arg(String(area.model.number).padStart(2, "0"))
        }
        EBText {
            width: parent.width
            horizontalAlignment: Text.AlignLeft
            role: "title"
            text: area.model.title
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        FocusScope {
            id: pane
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
