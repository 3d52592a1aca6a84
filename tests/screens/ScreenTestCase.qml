import QtQuick
import "../views"

/// A test case over an area that holds a whole screen, with what is needed to look into one.
KitTestCase {
    id: testCase

    width: 640
    height: 440

    /// Every item inside that `matches`, in drawing order.
    function allIn(item, matches) {
        let found = [];
        for (const child of Array.from(item.children))
            found = found.concat(matches(child) ? [child] : [], allIn(child, matches));
        return found;
    }
    function textIn(item, text) {
        return allIn(item, child => child instanceof Text && child.text === text)[0] ?? null;
    }
    /// An item's rectangle in the coordinates of `of`.
    function rectIn(item, of) {
        const corner = item.mapToItem(of, 0, 0);
        const end = item.mapToItem(of, item.width, item.height);
        return Qt.rect(Math.min(corner.x, end.x), Math.min(corner.y, end.y), Math.abs(end.x - corner.x), Math.abs(end.y - corner.y));
    }
    function mirror() {
        testCase.LayoutMirroring.childrenInherit = true;
        testCase.LayoutMirroring.enabled = true;
    }
}
