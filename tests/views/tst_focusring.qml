import QtQuick
import QtTest
import Embera.Tokens
import Embera.Controls

KitTestCase {
    id: testCase

    name: "FocusRing"

    EBButton {
        id: button

        x: 20
        y: 20
        text: "Continue"
    }
    EBSwitch {
        id: toggle

        x: 20
        y: 100
        label: "Switch"
    }
    EBIconButton {
        id: icon

        x: 120
        y: 100
        glyph: "close"
        label: "Close"
    }
    EBSegmented {
        id: segmented

        x: 20
        y: 160
        label: "Size"
        options: [{value: 1, title: "One"}, {value: 2, title: "Two"}]
        selection: 2
    }
    EBSearchField {
        id: search

        x: 20
        y: 220
        placeholder: "Search"
    }

    function cleanup() {
        testCase.forceActiveFocus();
        search.text = "";
    }

    // 2 points of nothing around the shape, then 2 points of accent.
    function compareRing(item, accent) {
        const middle = item.width / 2;
        comparePixel(item, middle, -1, EB.paper, 0.05);
        comparePixel(item, middle, -2, EB.paper, 0.05);
        comparePixel(item, middle, -3, accent, 0.05);
        comparePixel(item, middle, -4, accent, 0.05);
        comparePixel(item, middle, -5, EB.paper, 0.05);
        comparePixel(item, middle, item.height + 2, accent, 0.05);
        comparePixel(item, -3, item.height / 2, accent, 0.05);
        comparePixel(item, item.width + 2, item.height / 2, accent, 0.05);
        comparePixel(item, -4, -4, EB.paper, 0.05);
    }
    function compareNoRing(item) {
        for (let distance = 1; distance <= 4; ++distance) {
            comparePixel(item, item.width / 2, -distance, EB.paper);
            comparePixel(item, -distance, item.height / 2, EB.paper);
        }
    }

    function test_tab_reaches_every_control_and_shows_it() {
        testCase.forceActiveFocus();
        for (const control of [button, toggle, icon, segmented]) {
            compareNoRing(control);
            keyClick(Qt.Key_Tab);
            compareRing(control, EB.indigo);
        }
        keyClick(Qt.Key_Tab);
        compareNoRing(segmented);
        compareNoRing(search);
        keyClick(Qt.Key_A);
        compare(search.text, "a");
        keyClick(Qt.Key_Tab);
        compare(testCase.Window.activeFocusItem.text, "Clear search");
        keyClick(Qt.Key_Backtab);
        keyClick(Qt.Key_Backtab);
        compareRing(segmented, EB.indigo);
        keyClick(Qt.Key_Backtab);
        compareRing(icon, EB.indigo);
    }

    function test_ring_is_the_products_color() {
        testCase.product = "parcelo";
        button.forceActiveFocus(Qt.TabFocusReason);
        compareRing(button, EB.teal);
    }

    function test_focus_from_the_mouse_shows_no_ring() {
        mouseClick(toggle);
        compareNoRing(toggle);
        mouseClick(button);
        compareNoRing(button);
        mouseClick(segmented, 10, 10);
        compareNoRing(segmented);
        mouseClick(search, 60, 14);
        compareNoRing(search);
    }

    function test_ring_takes_no_room() {
        const width = button.implicitWidth;
        const height = button.implicitHeight;
        button.forceActiveFocus(Qt.TabFocusReason);
        compare(button.implicitWidth, width);
        compare(button.implicitHeight, height);
    }
}
