import QtQuick
import "../views"

/// A test case over an area that holds a whole screen, with what is needed to look into one.
KitTestCase {
    id: testCase

    width: 640
    height: 440

    /// An item's rectangle in the coordinates of `of`.
    function rectIn(item, of) {
        const corner = item.mapToItem(of, 0, 0);
        const end = item.mapToItem(of, item.width, item.height);
        return Qt.rect(Math.min(corner.x, end.x), Math.min(corner.y, end.y), Math.abs(end.x - corner.x), Math.abs(end.y - corner.y));
    }
}
