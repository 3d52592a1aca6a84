import QtQuick
import QtTest
import Embera.Tokens
import Embera.Controls
import Embera.Testing

KitTestCase {
    id: testCase

    name: "KeyCap"

    KeyCap {
        id: cap

        x: 40
        y: 40
        keys: "⌘W"
    }
    TextMetrics {
        id: label

        font: EBType.font("small", Font.DemiBold)
        text: cap.keys
    }

    function cleanup() {
        cap.keys = "⌘W";
        Desktop.dark = false;
    }

    function text() {
        // The cap has nothing else in it.
        return cap.children[0];
    }

    function test_a_short_combination_has_the_least_size() {
        cap.keys = "⌘";
        compare(cap.width, 34);
        compare(cap.height, 22);
    }

    function test_a_long_one_has_eight_points_at_its_sides() {
        cap.keys = "⌃⌥⇧⌘F12";
        verify(label.advanceWidth > 34 - 2 * 8);
        fuzzyCompare(cap.width, label.advanceWidth + 2 * 8, 1);
        compare(cap.height, 22);
        fuzzyCompare(text().x, 8, 1);
    }

    function test_the_label_is_small_and_semibold() {
        compare(text().font.pixelSize, EBType.font("small").pixelSize);
        compare(text().font.weight, Font.DemiBold);
    }

    function test_it_is_ink_on_chip_data() {
        return [{tag: "light", dark: false}, {tag: "dark", dark: true}];
    }
    function test_it_is_ink_on_chip(data) {
        Desktop.dark = data.dark;
        compareColor(text().color, EB.ink);
        comparePixel(cap, 3, 11, over(EB.chip, EB.paper));
    }

    function tip() {
        return findText(testCase.Window.contentItem, "Ctrl+W");
    }
    function findText(item, text) {
        if (item instanceof Text && item.text === text)
            return item;
        return Array.from(item.children).reduce((found, child) => found ?? findText(child, text), null);
    }

    function test_a_tool_tip_says_which_keys_these_are_here() {
        compare(cap.Accessible.name, "Ctrl+W");
        verify(!tip());
        mouseMove(cap, 10, 10);
        tryVerify(() => tip());
        verify(tip().mapToItem(testCase, 0, tip().height).y <= cap.y);
        mouseMove(testCase, testCase.width - 1, testCase.height - 1);
        tryVerify(() => !tip());
    }

    function test_its_corners_have_a_radius_of_six() {
        compare(cap.radius, 6);
        comparePixel(cap, 0, 0, EB.paper);
        comparePixel(cap, 8, 0, over(EB.chip, EB.paper));
        comparePixel(cap, 0, 8, over(EB.chip, EB.paper));
    }
}
