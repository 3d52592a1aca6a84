import QtQuick
import QtTest
import Embera.Tokens
import Embera.Controls
import Embera.Testing

KitTestCase {
    id: testCase

    name: "EBButton"

    EBButton {
        id: button

        x: 20
        y: 20
        text: "Continue"
    }
    TextMetrics {
        id: lead

        font: EBType.font("lead")
        text: "Continue"
    }
    SignalSpy {
        id: clicks

        target: button
        signalName: "clicked"
    }

    function cleanup() {
        button.variant = "primary";
        button.size = "md";
        button.arrow = false;
        button.enabled = true;
        button.text = lead.text = "Continue";
        button.focus = false;
        button.width = undefined;
        button.height = undefined;
        clicks.clear();
    }

    function labelWidth(role, weight = 0) {
        lead.font = EBType.font(role, weight);
        return Math.ceil(lead.advanceWidth);
    }

    function test_size_follows_the_label_data() {
        return [
            {tag: "md", size: "md", role: "lead", weight: 0, height: 40, padding: 20, spacing: 10, badge: 30, after: 5},
            {tag: "sm", size: "sm", role: "bodyStrong", weight: 0, height: 32, padding: 15, spacing: 8, badge: 24, after: 4},
            {tag: "xs", size: "xs", role: "small", weight: Font.DemiBold, height: 24, padding: 11, spacing: 8, badge: 30, after: 5}];
    }
    function test_size_follows_the_label(data) {
        button.size = data.size;
        const label = labelWidth(data.role, data.weight);
        compare(button.width, data.padding + label + data.padding);
        compare(button.height, data.height);
        button.arrow = true;
        compare(button.width, data.padding + label + data.spacing + data.badge + data.after);
        compare(button.height, data.height);
        button.variant = "plain";
        compare(button.width, 8 + label + data.spacing + data.badge + data.after);
        button.arrow = false;
        compare(button.width, 8 + label + 8);
    }

    function test_it_keeps_its_ideal_size_data() {
        return [{tag: "larger", width: 300, height: 100}, {tag: "smaller", width: 60, height: 20}];
    }
    function test_it_keeps_its_ideal_size(data) {
        const ideal = Qt.size(button.implicitWidth, button.implicitHeight);
        button.x = 100;
        button.y = 100;
        button.width = data.width;
        button.height = data.height;
        waitForRendering(button);
        const left = 100 + Math.floor((data.width - ideal.width) / 2);
        const top = 100 + (data.height - ideal.height) / 2;
        const isInk = (x, y) => isNear(grabImage(testCase).pixel(x, y), EB.ink);
        verify(isInk(left + 1, top + 20) && isInk(left + ideal.width - 2, top + 20));
        verify(!isInk(left - 2, top + 20) && !isInk(left + ideal.width + 1, top + 20));
        verify(isInk(left + ideal.width / 2, top + 1) && isInk(left + ideal.width / 2, top + 38));
        verify(!isInk(left + ideal.width / 2, top - 2) && !isInk(left + ideal.width / 2, top + 41));
        mouseClick(testCase, left + 10, top + 20);
        compare(clicks.count, 1);
        mouseClick(testCase, left - 8, top + 20);
        mouseClick(testCase, left + ideal.width / 2, top - 8);
        compare(clicks.count, 1);
        button.x = 20;
        button.y = 20;
    }

    function test_primary_is_ink_with_a_light_label() {
        comparePixel(button, 10, 20, EB.ink);
        verify(countPixels(button, EB.onInk) > 10);
        comparePixel(button, 0, 0, EB.paper);
    }

    function test_label_stands_between_equal_paddings() {
        button.text = "HHH";
        waitForRendering(button);
        let left = -1, right = -1, top = -1, bottom = -1;
        const image = grabImage(testCase);
        for (let y = 8; y < button.height - 8; ++y) {
            for (let x = 10; x < button.width - 10; ++x) {
                if (isNear(image.pixel(button.x + x, button.y + y), EB.ink, 0.3))
                    continue;
                left = left < 0 ? x : Math.min(left, x);
                right = Math.max(right, x);
                top = top < 0 ? y : top;
                bottom = y;
            }
        }
        fuzzyCompare(left, button.width - 1 - right, 1);
        fuzzyCompare(top, button.height - 1 - bottom, 1);
        verify(left >= 20);
    }

    function test_pressed_looks_at_once_data() {
        return [{tag: "primary", variant: "primary"}, {tag: "secondary", variant: "secondary"},
                {tag: "onLoud", variant: "onLoud"}, {tag: "plain", variant: "plain"}];
    }
    function test_pressed_looks_at_once(data) {
        button.variant = data.variant;
        const rest = {primary: EB.ink, secondary: EB.paper, onLoud: EB.onLoudIndigo, plain: EB.paper};
        const washed = over(EB.chip, EB.paper);
        const held = {primary: over(EB.ink, EB.paper, 0.82), secondary: washed,
                      onLoud: over(EB.onLoudIndigo, EB.paper, 0.85), plain: washed};
        comparePixel(button, 6, 20, rest[data.variant]);
        mousePress(button);
        comparePixelAtOnce(button, 6, 20, held[data.variant]);
        mouseRelease(button);
        comparePixelAtOnce(button, 6, 20, rest[data.variant]);
    }

    function test_the_pointer_over_it_changes_nothing_data() {
        return test_pressed_looks_at_once_data();
    }
    function test_the_pointer_over_it_changes_nothing(data) {
        button.variant = data.variant;
        waitForRendering(button);
        const before = grabImage(button);
        mouseMove(button, 30, 20);
        mouseMove(button, 32, 20);
        verify(grabImage(button).equals(before));
    }

    function test_a_long_label_stays_on_one_line() {
        const lines = () => {
            const image = grabImage(testCase);
            let count = 0;
            for (let y = 22, was = false; y < 58; ++y) {
                let isText = false;
                for (let x = 60; x < 120 && !isText; ++x)
                    isText = isNear(image.pixel(x, y), EB.onInk, 0.2);
                count += isText && !was ? 1 : 0;
                was = isText;
            }
            return count;
        };
        button.text = lead.text = "A label of many words, far longer than any button should have";
        waitForRendering(button);
        compare(button.height, 40);
        compare(button.width, 20 + labelWidth("lead") + 20);
        compare(lines(), 1);
    }

    function test_secondary_keeps_its_border_while_pressed() {
        button.variant = "secondary";
        comparePixel(button, button.width / 2, 0, over(EB.lineStrong, EB.paper));
        comparePixel(button, button.width / 2, 1, EB.paper);
        mousePress(button);
        comparePixel(button, button.width / 2, 1, over(EB.chip, EB.paper));
        comparePixel(button, button.width / 2, 0, over(EB.lineStrong, over(EB.chip, EB.paper)));
        mouseRelease(button);
    }

    function test_onLoud_follows_the_product_data() {
        return [{tag: "quiller", fill: "onLoudCoral", text: "loudCoral"},
                {tag: "corvane", fill: "onLoudIndigo", text: "loudIndigo"},
                {tag: "parcelo", fill: "onLoudTeal", text: "loudTeal"}];
    }
    function test_onLoud_follows_the_product(data) {
        button.variant = "onLoud";
        testCase.product = data.tag;
        comparePixel(button, 10, 20, EB[data.fill]);
        verify(countPixels(button, EB[data.text]) > 5);
    }

    function test_follows_the_appearance() {
        Desktop.dark = true;
        comparePixel(button, 10, 20, EB.ink);
        verify(EB.ink.r > 0.9);
    }

    // The label does not let the faded capsule shine through: it is one picture at 40 %.
    function test_disabled_fades_as_one_picture() {
        button.enabled = false;
        comparePixel(button, 10, 20, over(EB.ink, EB.paper, 0.4));
        verify(countPixels(button, over(EB.onInk, EB.paper, 0.4)) > 10);
        button.arrow = true;
        const badge = over(EB.onInk, EB.ink, 0.18);
        comparePixel(button, button.width - 10, 20, over(badge, EB.paper, 0.4));
    }

    function test_disabled_does_nothing() {
        button.enabled = false;
        mouseClick(button);
        compare(clicks.count, 0);
    }

    function test_arrow_stands_at_the_trailing_end() {
        button.arrow = true;
        const badge = over(EB.onInk, EB.ink, 0.18);
        comparePixel(button, button.width - 5 - 3, 20, badge);
        comparePixel(button, button.width - 3, 20, EB.ink);
        mirror();
        comparePixel(button, 5 + 3, 20, badge);
        comparePixel(button, 2, 20, EB.ink);
    }

    function test_badge_of_the_smallest_size_stands_out_of_the_capsule() {
        button.variant = "secondary";
        button.size = "xs";
        button.arrow = true;
        compare(button.height, 24);
        comparePixel(button, button.width - 5 - 15, -2, over(EB.ink, EB.paper, 0.18));
        comparePixel(button, button.width - 5 - 15, -4, EB.paper);
        comparePixel(button, button.width - 5 - 15, 25, over(EB.ink, EB.paper, 0.18));
    }

    function test_space_and_return_press_data() {
        return [{tag: "space", key: Qt.Key_Space}, {tag: "return", key: Qt.Key_Return}, {tag: "enter", key: Qt.Key_Enter}];
    }
    function test_space_and_return_press(data) {
        button.forceActiveFocus(Qt.TabFocusReason);
        keyClick(data.key);
        compare(clicks.count, 1);
    }

    function test_unknown_names_read_as_the_first() {
        button.variant = "loudest";
        button.size = "xxl";
        compare(button.height, 40);
        comparePixel(button, 10, 20, EB.ink);
    }
}
