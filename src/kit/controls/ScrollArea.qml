import QtQuick
import Embera.Controls

/// Content that scrolls where it is higher than the room there is: by the wheel, the bar and a finger, never by dragging
/// with the mouse. It follows the focus. `contentHeight` is set by whoever puts the content in.
Flickable {
    id: area

    /// What is on whole points may be measured between them.
    property bool scrolls: contentHeight > height + 1
    /// The content as a whole. It gets the focus when what had it has gone, and is then not scrolled to.
    property Item whole: null
    readonly property Item focusItem: Window.activeFocusItem

    function scrollTo(y: real) {
        contentY = Math.max(0, Math.min(y, contentHeight - height));
    }
    /// Scrolls as little as it takes to show the item with its ring.
    function reveal(item: Item) {
        const top = item.mapToItem(contentItem, 0, -18).y;
        const bottom = item.mapToItem(contentItem, 0, item.height + 18).y;
        scrollTo(Math.max(Math.min(contentY, top), bottom - height));
    }
    function holds(item: Item): bool {
        while (item && item !== contentItem)
            item = item.parent;
        return item !== null;
    }

    interactive: false
    clip: scrolls
    onScrollsChanged: scrollTo(scrolls ? contentY : 0)
    onFocusItemChanged: if (scrolls && focusItem !== whole && holds(focusItem))
        reveal(focusItem)

    Loader {
        parent: area
        active: area.scrolls
        anchors {
            right: parent.right
            top: parent.top
            bottom: parent.bottom
        }
        Component.onCompleted: setSource("ScrollBar.qml", {area: area})
    }
}
