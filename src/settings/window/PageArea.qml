import QtQuick
import Embera.Tokens
import Embera.Rows
import Corvane.Settings.Window

/// The heading and the content of the selected page. A page for which the window has no room scrolls: by the wheel, the
/// bar, a finger and the keyboard, never by dragging with the mouse. It follows the focus.
Flickable {
    id: area

    required property SettingsModel model
    /// How high the window can become.
    required property real roomHeight
    readonly property bool scrolls: implicitHeight > Math.ceil(roomHeight)
    readonly property Item focusItem: Window.activeFocusItem

    function scrollTo(y: real) {
        contentY = Math.max(0, Math.min(y, contentHeight - height));
    }
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
    /// Scrolls as little as it takes to show what lies between the two heights.
    function reveal(top: real, bottom: real) {
        scrollTo(Math.max(Math.min(contentY, top), bottom - height));
    }

    implicitHeight: page.y + page.implicitHeight + 16
    contentHeight: implicitHeight
    interactive: false
    clip: scrolls
    // What had the focus may have gone: then the page has it as a whole, and stays where it is.
    onFocusItemChanged: if (scrolls && focusItem && focusItem !== content && pane.activeFocus)
        reveal(focusItem.mapToItem(contentItem, 0, -18).y, focusItem.mapToItem(contentItem, 0, focusItem.height + 18).y)

    Loader {
        parent: area
        active: area.scrolls
        anchors {
            right: parent.right
            top: parent.top
            bottom: parent.bottom
        }
        Component.onCompleted: setSource("PageScrollBar.qml", {area: area})
    }
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
        value: area.contentY + area.height - page.y - pane.y
    }
    WheelHandler {
        enabled: area.scrolls
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        // A notch of a wheel is 120 units, and scrolls 60 points.
        onWheel: event => area.scrollTo(area.contentY - (event.pixelDelta.y || event.angleDelta.y / 2))
    }
    DragHandler {
        property real start: 0

        enabled: area.scrolls
        acceptedDevices: PointerDevice.TouchScreen
        target: null
        onActiveChanged: start = area.contentY
        onActiveTranslationChanged: area.scrollTo(start - activeTranslation.y)
    }

    Column {
        id: page
        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            leftMargin: 16
            rightMargin: 24
            topMargin: 18
        }

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
