import QtQuick
import QtTest
import Embera.Tokens
import Embera.Controls

KitTestCase {
    id: testCase

    name: "EBIconButton"

    EBIconButton {
        id: button

        x: 20
        y: 20
        glyph: "minus"
        label: "Remove"
        size: 28
    }
    EBIconButton {
        id: other

        x: 60
        y: 20
        glyph: "minus"
        label: "Other"
    }
    SignalSpy {
        id: clicks

        target: button
        signalName: "clicked"
    }

    function cleanup() {
        button.enabled = true;
        button.focus = false;
        clicks.clear();
    }

    function test_measures() {
        compare(button.width, 28);
        compare(button.height, 28);
        fuzzyCompare(button.contentItem.size, 16.24, 0.0001);
        compareColor(button.contentItem.color, EB.inkMuted);
    }

    function test_circle_appears_while_hovered() {
        comparePixel(button, 3, 14, EB.paper);
        mouseMove(button, 14, 5);
        comparePixelAtOnce(button, 3, 14, over(EB.chip, EB.paper));
        comparePixel(button, 1, 1, EB.paper);
        mouseMove(testCase, testCase.width - 1, testCase.height - 1);
        comparePixelAtOnce(button, 3, 14, EB.paper);
    }

    function toolTip(text = "Remove") {
        return textIn(testCase.Window.contentItem, text);
    }

    function test_a_tool_tip_says_what_it_does() {
        button.y = 100;
        verify(!toolTip());
        mouseMove(button, 14, 14);
        tryVerify(() => toolTip() !== null);
        verify(toolTip().mapToItem(testCase, 0, toolTip().height).y <= button.y);
        button.label = "Take away";
        verify(toolTip("Take away"));
        button.label = "Remove";
        mouseMove(testCase, testCase.width - 1, testCase.height - 1);
        tryVerify(() => toolTip() === null);
        button.forceActiveFocus(Qt.TabFocusReason);
        tryVerify(() => toolTip() !== null);
        button.focus = false;
        tryVerify(() => toolTip() === null);
        button.y = 20;
    }

    Component {
        id: tip

        EBToolTip { }
    }

    // As a row does that goes in the moment in which its tip comes up.
    function test_a_tool_tip_of_what_is_taken_out_of_the_window_does_not_come_up() {
        const place = button.parent;
        const taken = createTemporaryObject(tip, testCase, {target: button, delay: 1});
        button.parent = null;
        const later = createTemporaryObject(tip, testCase, {target: other, delay: 20});
        tryVerify(() => later.visible);
        verify(!taken.visible);
        button.parent = place;
    }

    function test_a_click_in_the_circle_presses_and_in_a_corner_misses() {
        mouseClick(button, 14, 14);
        compare(clicks.count, 1);
        mouseClick(button, 1, 1);
        mouseClick(button, 27, 27);
        compare(clicks.count, 1);
        mouseClick(button, 14, 1);
        compare(clicks.count, 2);
    }

    function test_pressing_changes_nothing_but_the_hover() {
        mouseMove(button, 14, 5);
        mousePress(button, 14, 5);
        comparePixel(button, 3, 14, over(EB.chip, EB.paper));
        mouseRelease(button, 14, 5);
    }

    function test_glyph_stands_in_the_middle() {
        comparePixel(button, 14, 4, EB.paper);
        verify(!isNear(pixel(button, 14, 14), EB.paper));
        verify(isNear(pixel(button, 14, 18), EB.paper));
    }

    function test_disabled() {
        button.enabled = false;
        mouseClick(button);
        compare(clicks.count, 0);
        compare(button.opacity, 0.4);
    }

    function test_space_and_return_press_data() {
        return [{tag: "space", key: Qt.Key_Space}, {tag: "return", key: Qt.Key_Return}, {tag: "enter", key: Qt.Key_Enter}];
    }
    function test_space_and_return_press(data) {
        button.forceActiveFocus(Qt.TabFocusReason);
        keyClick(data.key);
        compare(clicks.count, 1);
    }
}
