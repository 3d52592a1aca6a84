import QtQuick
import QtTest
import Embera.Controls

/// What everything that is pressed has in common.
KitTestCase {
    id: testCase

    name: "Pressable"

    Pressable {
        id: first

        width: 40
        height: 20
        text: "First"
    }
    Pressable {
        id: second

        y: 30
        width: 40
        height: 20
        text: "Second"
    }
    SignalSpy {
        id: clicks

        target: first
        signalName: "clicked"
    }

    function init() {
        second.tabStop = true;
        first.visible = true;
        first.enabled = true;
        testCase.forceActiveFocus();
        clicks.clear();
    }

    function test_what_is_let_go_outside_is_not_clicked() {
        mousePress(first, 5, 5);
        verify(first.pressed);
        mouseMove(first, 5, 25);
        verify(!first.pressed);
        mouseRelease(first, 5, 25);
        compare(clicks.count, 0);
    }
    function test_what_comes_back_before_it_is_let_go_is_clicked() {
        mousePress(first, 5, 5);
        mouseMove(first, 5, 25);
        mouseMove(first, 5, 5);
        verify(first.pressed);
        mouseRelease(first, 5, 5);
        compare(clicks.count, 1);
    }
    function test_a_double_click_is_two() {
        mouseDoubleClickSequence(first, 5, 5);
        compare(clicks.count, 2);
    }
    function test_a_finger_clicks() {
        const touch = touchEvent(first);
        touch.press(0, first, 5, 5).commit();
        verify(first.pressed);
        touch.release(0, first, 5, 5).commit();
        verify(!first.pressed);
        compare(clicks.count, 1);
    }
    function test_a_key_that_is_held_clicks_when_it_is_let_go() {
        first.forceActiveFocus(Qt.TabFocusReason);
        keyPress(Qt.Key_Space);
        verify(first.pressed);
        compare(clicks.count, 0);
        keyRelease(Qt.Key_Space);
        compare(clicks.count, 1);
    }
    function test_what_loses_the_focus_while_a_key_is_held_is_not_clicked() {
        first.forceActiveFocus(Qt.TabFocusReason);
        keyPress(Qt.Key_Space);
        second.forceActiveFocus(Qt.TabFocusReason);
        verify(!first.pressed);
        keyRelease(Qt.Key_Space);
        compare(clicks.count, 0);
    }
    function test_what_goes_while_it_is_pressed_is_not_clicked_data() {
        return [{tag: "visible"}, {tag: "enabled"}];
    }
    function test_what_goes_while_it_is_pressed_is_not_clicked(data) {
        mousePress(first, 5, 5);
        first[data.tag] = false;
        verify(!first.pressed);
        mouseRelease(first, 5, 5);
        compare(clicks.count, 0);
    }
    function test_what_is_not_shown_gives_the_focus_away() {
        first.forceActiveFocus(Qt.TabFocusReason);
        verify(first.visualFocus);
        first.visible = false;
        verify(!first.focus);
        verify(!first.visualFocus);
    }
    function test_tab_passes_by_what_is_no_stop_and_goes_on_from_there() {
        second.tabStop = false;
        first.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Tab);
        verify(!second.activeFocus);
        second.forceActiveFocus(Qt.OtherFocusReason);
        verify(!second.visualFocus);
        keyClick(Qt.Key_Backtab);
        verify(first.visualFocus);
    }
}
