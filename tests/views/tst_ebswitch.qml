import QtQuick
import QtTest
import Embera.Tokens
import Embera.Controls
import Embera.Testing

KitTestCase {
    id: testCase

    name: "EBSwitch"

    property bool stored: false
    property bool declines: false

    EBSwitch {
        id: toggle

        x: 20
        y: 20
        label: "Show in menu bar"
        isOn: testCase.stored
        onFlipped: isOn => testCase.stored = testCase.declines ? testCase.stored : isOn
    }
    SignalSpy {
        id: flips

        target: toggle
        signalName: "flipped"
    }

    function cleanup() {
        toggle.enabled = true;
        testCase.declines = false;
        testCase.stored = false;
        waitForRest();
        flips.clear();
    }

    /// Where the knob's leading end is; 2 when off, 10 when on.
    function knobX() {
        const image = grabImage(testCase);
        for (let x = 0; x < toggle.width; ++x) {
            if (isNear(image.pixel(toggle.x + x, toggle.y + 11), EB.knob, 0.1))
                return x;
        }
        return -1;
    }
    function waitForRest() {
        tryCompare(toggle.contentItem, "position", testCase.stored ? 1 : 0);
    }

    function test_measures() {
        compare(toggle.width, 36);
        compare(toggle.height, 22);
    }

    function test_off_is_a_track_with_a_bordered_knob_at_the_leading_end() {
        comparePixel(toggle, 31, 11, over(EB.track, EB.paper));
        comparePixel(toggle, 14, 11, EB.knob);
        comparePixel(toggle, 14, 1, over(EB.track, EB.paper));
        comparePixel(toggle, 14, 2, over(EB.lineStrong, EB.knob));
        comparePixel(toggle, 14, 3, EB.knob);
        comparePixel(toggle, 14, 19, over(EB.lineStrong, EB.knob));
        comparePixel(toggle, 14, 20, over(EB.track, EB.paper));
        comparePixel(toggle, 0, 0, EB.paper);
    }

    function test_on_is_the_products_accent_with_a_bare_knob_at_the_trailing_end_data() {
        return [{tag: "quiller", accent: "coral"}, {tag: "corvane", accent: "indigo"}, {tag: "parcelo", accent: "teal"}];
    }
    function test_on_is_the_products_accent_with_a_bare_knob_at_the_trailing_end(data) {
        testCase.product = data.tag;
        testCase.stored = true;
        comparePixel(toggle, 5, 11, EB[data.accent]);
        comparePixel(toggle, 22, 2, EB.knob);
        comparePixel(toggle, 22, 1, EB[data.accent]);
        compare(knobX(), 10);
    }

    function test_a_click_anywhere_asks_for_the_other_value() {
        mouseClick(toggle, 1, 11);
        compare(flips.count, 1);
        compare(flips.signalArguments[0][0], true);
        compare(testCase.stored, true);
        mouseClick(toggle, 34, 11);
        compare(flips.signalArguments[1][0], false);
        compare(testCase.stored, false);
    }

    function test_keeps_following_its_caller_after_clicks() {
        mouseClick(toggle);
        waitForRest();
        testCase.stored = false;
        compare(toggle.isOn, false);
        tryVerify(() => knobX() < 6);
    }

    function test_shows_what_the_caller_says_even_if_it_declines() {
        testCase.declines = true;
        mouseClick(toggle);
        compare(flips.count, 1);
        compare(toggle.isOn, false);
        compare(toggle.isOn, false);
        mouseClick(toggle);
        compare(flips.signalArguments[1][0], true);
    }

    // The Bézier curve of (0, 0) and (0.58, 1) over 0.15 seconds.
    function test_a_click_slides_the_knob_and_mixes_the_track_data() {
        return [{tag: "at a fifth", after: 30, share: 0.3084}, {tag: "half way", after: 75, share: 0.6846},
                {tag: "at the end", after: 150, share: 1}];
    }
    function test_a_click_slides_the_knob_and_mixes_the_track(data) {
        Desktop.holdsAnimations = true;
        mouseClick(toggle);
        compare(toggle.isOn, true);
        compare(toggle.contentItem.position, 0);
        verify(Desktop.advance(data.after - 1));
        verify(toggle.contentItem.position < data.share);
        verify(Desktop.advance(1));
        fuzzyCompare(toggle.contentItem.position, data.share, 0.0005);
        const off = over(EB.track, EB.paper), on = EB.indigo, share = data.share;
        comparePixel(toggle, 1, 11, Qt.rgba(off.r + (on.r - off.r) * share, off.g + (on.g - off.g) * share,
                                            off.b + (on.b - off.b) * share, 1));
        verify(Math.abs(knobX() - (2 + 8 * share)) < 1);
        Desktop.advance(150);
    }

    function test_a_change_from_outside_does_not_slide() {
        testCase.stored = true;
        compare(toggle.contentItem.position, 1);
    }

    function test_reduced_motion_changes_at_once() {
        Desktop.reduceMotion = true;
        mouseClick(toggle);
        compare(toggle.contentItem.position, 1);
        Desktop.reduceMotion = false;
        mouseClick(toggle);
        verify(toggle.contentItem.position > 0);
    }

    function test_disabled_is_left_alone() {
        toggle.enabled = false;
        mouseClick(toggle);
        compare(flips.count, 0);
        compare(testCase.stored, false);
    }

    function test_disabled_fades_as_one_picture() {
        toggle.enabled = false;
        testCase.stored = true;
        comparePixel(toggle, 5, 11, over(EB.indigo, EB.paper, 0.4));
        comparePixel(toggle, 22, 11, over(EB.knob, EB.paper, 0.4));
        testCase.stored = false;
        comparePixel(toggle, 31, 11, over(EB.track, EB.paper, 0.4));
        comparePixel(toggle, 14, 11, over(EB.knob, EB.paper, 0.4));
    }

    function test_on_is_at_the_left_from_right_to_left() {
        mirror();
        testCase.stored = true;
        tryVerify(() => knobX() === 2);
        comparePixel(toggle, 31, 11, EB.indigo);
        testCase.stored = false;
        tryVerify(() => knobX() > 8);
    }

    function test_keys_flip_data() {
        return [{tag: "space", key: Qt.Key_Space}, {tag: "return", key: Qt.Key_Return}, {tag: "enter", key: Qt.Key_Enter}];
    }
    function test_keys_flip(data) {
        toggle.forceActiveFocus(Qt.TabFocusReason);
        keyClick(data.key);
        compare(testCase.stored, true);
        compare(flips.count, 1);
    }
}
