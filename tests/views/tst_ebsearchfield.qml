import QtQuick
import QtTest
import Embera.Tokens
import Embera.Glyphs
import Embera.Controls

KitTestCase {
    id: testCase

    name: "EBSearchField"

    EBSearchField {
        id: search

        x: 20
        y: 20
        width: 200
        placeholder: "Search"
    }
    SignalSpy {
        id: ups

        target: search
        signalName: "movedUp"
    }
    SignalSpy {
        id: downs

        target: search
        signalName: "movedDown"
    }

    readonly property Item field: allIn(search, child => child instanceof TextInput)[0]
    readonly property Item clearButton: allIn(search, child => child instanceof Pressable)[0]

    function cleanup() {
        search.text = "";
        search.enabled = true;
        testCase.forceActiveFocus();
        ups.clear();
        downs.clear();
    }

    function test_measures() {
        compare(search.implicitHeight, 28);
        comparePixel(search, 100, 2, over(EB.chip, EB.paper));
        comparePixel(search, 0, 0, EB.paper);
        compare(field.font.pixelSize, 13);
        compare(field.font.weight, Font.Normal);
        compareColor(field.color, EB.ink);
        // 10 to the glyph of 13, 6 to the text.
        compare(field.x, 29);
        compare(search.width - field.x - field.width, 10);
        search.text = "a";
        // 6 from the text to the glyph of 11, 10 to the end.
        compare(search.width - field.x - field.width, 27);
        const cross = allIn(clearButton, child => child instanceof Glyph)[0];
        compare(cross.name, "close");
        compare(cross.size, 11);
        compareColor(cross.color, EB.inkMuted);
    }

    function test_placeholder_shows_while_empty() {
        const before = countPixels(search, over(EB.chip, EB.paper));
        search.placeholder = "";
        tryVerify(() => countPixels(search, over(EB.chip, EB.paper)) > before + 50);
        search.placeholder = "Search";
    }

    function test_typing_updates_the_text_on_every_key() {
        search.activate();
        keyClick(Qt.Key_G);
        compare(search.text, "g");
        keyClick(Qt.Key_A);
        compare(search.text, "ga");
        keyClick(Qt.Key_Return);
        compare(search.text, "ga");
        testCase.forceActiveFocus();
        compare(search.text, "ga");
    }

    function test_clear_button_shows_only_with_text_and_empties_it() {
        compare(clearButton.visible, false);
        search.activate();
        keyClick(Qt.Key_G);
        compare(clearButton.visible, true);
        mouseClick(clearButton);
        compare(search.text, "");
        compare(clearButton.visible, false);
    }

    function test_the_keyboard_reaches_the_clear_button() {
        search.activate();
        keyClick(Qt.Key_G);
        keyClick(Qt.Key_Tab);
        verify(clearButton.visualFocus);
        keyClick(Qt.Key_Return);
        compare(search.text, "");
    }

    function test_escape_clears() {
        search.activate();
        keyClick(Qt.Key_G);
        keyClick(Qt.Key_Escape);
        compare(search.text, "");
        verify(field.activeFocus);
    }

    function test_activate_selects_the_whole_text() {
        search.text = "layouts";
        search.activate();
        verify(field.activeFocus);
        compare(field.selectedText, "layouts");
        verify(countPixels(search, EB.indigo) > 50);
        keyClick(Qt.Key_B);
        compare(search.text, "b");
    }

    function test_up_and_down_are_passed_on() {
        search.activate();
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Up);
        compare(downs.count, 2);
        compare(ups.count, 1);
    }

    function test_keyboard_focus_draws_nothing_around_it() {
        const ground = countPixels(testCase, EB.paper);
        testCase.forceActiveFocus();
        keyClick(Qt.Key_Tab);
        verify(field.activeFocus);
        waitForRendering(search);
        compare(countPixels(testCase, EB.paper), ground);
    }

    function test_is_mirrored_from_right_to_left() {
        mirror();
        // Empty first: the text that stands in for the missing one keeps clear of the glyph too.
        compare(search.width - field.x - field.width, 29);
        compare(field.x, 10);
        search.text = "a";
        compare(search.width - field.x - field.width, 29);
        compare(field.x, 27);
        compare(clearButton.x, 0);
    }
}
