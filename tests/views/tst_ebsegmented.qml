import QtQuick
import QtTest
import Embera.Tokens
import Embera.Controls
import Embera.Testing

KitTestCase {
    id: testCase

    name: "EBSegmented"

    property var stored: "medium"

    EBSegmented {
        id: segmented

        x: 20
        y: 20
        label: "Button size"
        options: testCase.sizes
        selection: testCase.stored
        onSelected: value => testCase.stored = value
    }
    TextMetrics {
        id: metrics

        font: EBType.font("small", Font.Medium)
    }

    readonly property var sizes: [{value: "small", title: "Small"}, {value: "medium", title: "Medium"},
                                  {value: "large", title: "Extra large"}]

    function cleanup() {
        segmented.options = testCase.sizes;
        segmented.enabled = true;
        testCase.stored = "medium";
        testCase.forceActiveFocus();
    }

    function segment(index) {
        return allIn(segmented, child => child instanceof Segment)[index];
    }
    function titleWidth(title) {
        metrics.text = title;
        return metrics.advanceWidth;
    }
    function highlighted() {
        const found = [];
        for (let i = 0; i < segmented.options.length; ++i) {
            const item = segment(i);
            if (isNear(pixel(item, item.width / 2, 2), EB.segOn))
                found.push(i);
        }
        return found.join();
    }

    function test_each_segment_is_its_title_plus_28() {
        let x = 2;
        for (let i = 0; i < 3; ++i) {
            fuzzyCompare(segment(i).width, titleWidth(testCase.sizes[i].title) + 28, 0.1);
            compare(segment(i).height, 24);
            compare(segment(i).mapToItem(segmented, 0, 0).x, x);
            compare(segment(i).mapToItem(segmented, 0, 0).y, 2);
            x += segment(i).width + 2;
        }
        compare(segmented.width, x);
        compare(segmented.height, 28);
    }

    function test_colors() {
        const on = segment(1);
        comparePixel(segmented, segmented.width / 2, 0, over(EB.chip, EB.paper));
        comparePixel(segment(0), 10, 12, over(EB.chip, EB.paper));
        comparePixel(on, on.width / 2, 2, EB.segOn);
        comparePixel(on, on.width / 2, 0, over(EB.lineStrong, EB.segOn));
        compareColor(on.contentItem.color, EB.ink);
        compareColor(segment(0).contentItem.color, EB.inkMuted);
        compare(on.contentItem.font.pixelSize, 12);
        compare(on.contentItem.font.weight, Font.Medium);
        comparePixel(segmented, 0, 0, EB.paper);
    }

    function test_a_click_anywhere_in_a_segment_selects_at_once() {
        mouseClick(segment(2), 1, 1);
        compare(testCase.stored, "large");
        compare(highlighted(), "2");
        mouseClick(segment(0), segment(0).width - 1, 23);
        compare(testCase.stored, "small");
        compare(highlighted(), "0");
    }

    function test_follows_its_caller_after_a_click() {
        mouseClick(segment(2));
        testCase.stored = "small";
        compare(highlighted(), "0");
    }

    function test_a_value_not_among_the_options_highlights_nothing() {
        testCase.stored = "enormous";
        compare(segmented.selectedIndex, -1);
        compare(highlighted(), "");
        mouseClick(segment(1));
        compare(testCase.stored, "medium");
        compare(highlighted(), "1");
    }

    function test_of_equal_values_the_first_is_highlighted() {
        segmented.options = [{value: 1, title: "One"}, {value: 2, title: "Two"}, {value: 2, title: "Also two"}];
        testCase.stored = 2;
        compare(highlighted(), "1");
        mouseClick(segment(2));
        compare(testCase.stored, 2);
        compare(highlighted(), "1");
    }

    function test_numbers_work_as_values() {
        segmented.options = [{value: 0, title: "None"}, {value: 8.5, title: "Some"}];
        testCase.stored = 8.5;
        compare(highlighted(), "1");
        mouseClick(segment(0));
        compare(testCase.stored, 0);
    }

    function test_declining_caller_keeps_its_value() {
        segmented.selection = "medium";
        mouseClick(segment(0));
        compare(highlighted(), "1");
        compare(segment(0).isOn, false);
        segmented.selection = Qt.binding(() => testCase.stored);
    }

    function test_disabled() {
        segmented.enabled = false;
        mouseClick(segment(0));
        compare(testCase.stored, "medium");
        comparePixel(segment(0), 10, 12, over(EB.chip, EB.paper, 0.4));
    }

    function test_arrow_keys_move_the_selection() {
        segment(1).forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Right);
        compare(testCase.stored, "large");
        verify(segment(2).visualFocus);
        keyClick(Qt.Key_Right);
        compare(testCase.stored, "large");
        keyClick(Qt.Key_Left);
        compare(testCase.stored, "medium");
        verify(segment(1).visualFocus);
        keyClick(Qt.Key_Up);
        compare(testCase.stored, "small");
        keyClick(Qt.Key_Down);
        compare(testCase.stored, "medium");
        keyClick(Qt.Key_End);
        compare(testCase.stored, "large");
        keyClick(Qt.Key_Home);
        compare(testCase.stored, "small");
    }

    function test_arrow_keys_are_mirrored_from_right_to_left() {
        mirror();
        verify(segment(0).x > segment(2).x);
        segment(1).forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Right);
        compare(testCase.stored, "small");
        keyClick(Qt.Key_Left);
        compare(testCase.stored, "medium");
        keyClick(Qt.Key_End);
        compare(testCase.stored, "large");
    }

    function test_one_tab_stop() {
        testCase.forceActiveFocus();
        keyClick(Qt.Key_Tab);
        verify(segment(1).activeFocus);
        keyClick(Qt.Key_Tab);
        verify(!segment(0).activeFocus && !segment(1).activeFocus && !segment(2).activeFocus
               || testCase.Window.activeFocusItem === segment(1));
    }

    function test_without_a_selection_the_keyboard_starts_at_the_first() {
        testCase.stored = "enormous";
        testCase.forceActiveFocus();
        keyClick(Qt.Key_Tab);
        verify(segment(0).activeFocus);
        keyClick(Qt.Key_Space);
        compare(testCase.stored, "small");
    }
}
