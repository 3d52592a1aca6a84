import QtQuick
import QtTest
import Embera.Tokens
import Embera.Controls
import Embera.Marks
import Embera.Rows
import Embera.Screens
import Embera.Testing

ScreenTestCase {
    id: testCase

    name: "EBLoudScreen"

    EBLoudScreen {
        id: screen

        app: "corvane"
        appeared: true
        copy: "A text that takes more than one line in a column that is two hundred and twenty points wide."
        button: "Get started"
        arrow: true
        hero: "Hero"
        seed: 21
    }
    Item {
        id: elsewhere
    }
    EBButton {
        id: otherButton

        y: 400
        text: "Other"
    }
    SignalSpy {
        id: actions

        target: screen
        signalName: "action"
    }
    SignalSpy {
        id: secondaryActions

        target: screen
        signalName: "secondaryAction"
    }
    SignalSpy {
        id: otherClicks

        target: otherButton
        signalName: "clicked"
    }

    function cleanup() {
        screen.app = "corvane";
        screen.width = 560;
        screen.height = 388;
        screen.copy = "A text that takes more than one line in a column that is two hundred and twenty points wide.";
        screen.counter = "";
        screen.secondary = "";
        screen.button = "Get started";
        screen.enabled = true;
        screen.visible = true;
        elsewhere.focus = true;
        actions.clear();
        secondaryActions.clear();
        otherClicks.clear();
    }
    function only(matches) {
        const found = allIn(screen, matches);
        compare(found.length, 1);
        return found[0];
    }
    function mainButton() {
        return only(item => item instanceof EBButton);
    }
    function quietButton() {
        return only(item => item instanceof QuietButton);
    }
    function counter() {
        return only(item => item instanceof EBLabel);
    }
    function rect(item) {
        return rectIn(item, screen);
    }

    function test_colours_are_the_products_data() {
        return [{tag: "quiller", loud: "loudCoral", on: "onLoudCoral"}, {tag: "corvane", loud: "loudIndigo", on: "onLoudIndigo"}, {tag: "parcelo", loud: "loudTeal", on: "onLoudTeal"}];
    }
    function test_colours_are_the_products(data) {
        testCase.product = data.tag === "corvane" ? "quiller" : "corvane";
        screen.app = data.tag;
        screen.counter = "Count";
        screen.secondary = "Not now";
        for (const dark of [false, true]) {
            Desktop.dark = dark;
            comparePixel(screen, 62, 48, EB[data.loud]);
            comparePixel(screen, 559, 210, EB[data.loud]);
            for (const text of [screen.copy, "Hero", "Not now"])
                compareColor(textIn(screen, text).color, EB[data.on]);
        }
        const mark = only(item => item instanceof Mark);
        compare(mark.app, data.tag);
        compareColor(mark.color, EB[data.on]);
        compare(only(item => item instanceof DotField).app, data.tag);
        compare(counter().tone, "onLoud");
        compareColor(textIn(screen, "COUNT").color, EB[data.on]);
    }

    function test_geometry_follows_the_size_data() {
        return [
            {tag: "560x388", width: 560, height: 388, k: 1, m: 220},
            {tag: "900x388", width: 900, height: 388, k: 1, m: 220},
            {tag: "1120x776", width: 1120, height: 776, k: 2, m: 275},
            {tag: "1800x1200", width: 1800, height: 1200, k: 1200 / 388, m: 275},
            {tag: "500x300", width: 500, height: 300, k: 1, m: 220}];
    }
    function test_geometry_follows_the_size(data) {
        screen.width = data.width;
        screen.height = data.height;
        screen.counter = "Count";
        const k = data.k;
        const mark = only(item => item instanceof Mark);
        fuzzyCompare(mark.size, 74 * k, 1e-6);
        compare(mark.scale, 1);
        fuzzyCompare(rect(mark).x, 24 * k, 1e-6);
        fuzzyCompare(rect(mark).y, 52 * k, 1e-6);

        const word = textIn(screen, "Hero");
        compare(word.font.pixelSize, Math.round(160 * k));
        fuzzyCompare(word.font.letterSpacing, -9.6 * k, 0.05);
        verify(word.font.family.startsWith("Instrument Sans"));
        // From the leading end of the screen's foot.
        fuzzyCompare(rect(word).x, -14 * k, 1e-6);
        fuzzyCompare(rect(word).y + word.height, data.height + 21 * k, 1e-6);
        compare(word.opacity, 1);

        const dots = only(item => item instanceof DotField);
        compare(dots.size, Qt.size(data.width, data.height));
        compare([dots.cell, dots.seed, dots.density, dots.ramp, dots.margin], [22, 21, 0.7, 80, 2]);
        compare(dots.opacity, 1);
        compare(dots.calm.length, 5);
        compare([dots.calm[2].x, dots.calm[2].r], [62 * k, 56 * k]);

        const copy = textIn(screen, screen.copy);
        compare(copy.width, data.m);
        fuzzyCompare(rect(copy).x + data.m, data.width - 32 * k, 1e-6);
        const column = copy.parent;
        fuzzyCompare(rect(column).y + column.height / 2, 120 * k, 1e-6);

        const count = counter();
        fuzzyCompare(rect(count).x + count.width, data.width - 20, 1e-6);
        compare(rect(count).y, 14);
    }

    function test_layers_lie_in_their_order() {
        const layers = [item => item instanceof DotField, item => item instanceof EBLabel, item => item instanceof Mark,
            item => item instanceof Text && item.text === "Hero", item => item instanceof Column];
        const places = layers.map(matches => Array.from(screen.children).findIndex(matches));
        verify(places.every((place, index) => place > (index === 0 ? 0 : places[index - 1])), String(places));
        verify(screen.clip);
    }

    function test_column_is_spaced_by_16() {
        screen.secondary = "Not now";
        const copy = textIn(screen, screen.copy);
        const main = mainButton();
        compare(main.variant, "onLoud");
        compare(main.size, "md");
        compare(main.text, "Get started");
        verify(main.arrow);
        compare(copy.role, "body");
        compare(copy.font.letterSpacing, 0);
        verify(copy.lineCount > 1);
        tryVerify(() => rect(quietButton()).y === rect(main).y + main.height + 16);
        compare(rect(main).y, rect(copy).y + copy.height + 16);
        for (const item of [main, quietButton()])
            compare(rect(item).x, rect(copy).x);
        const title = textIn(quietButton(), "Not now");
        compare(title.role, "small");
        compare(title.opacity, 0.8);
    }

    function test_a_long_copy_goes_on_below_and_not_into_the_counter() {
        screen.copy = "A text that goes on and on and on, and on. ".repeat(9);
        const column = textIn(screen, screen.copy).parent;
        tryVerify(() => column.height > 200);
        compare(rect(column).y, 48);
    }

    function test_a_wide_button_widens_the_column_away_from_the_edge() {
        screen.button = "A title that is much wider than the column";
        const main = mainButton();
        tryVerify(() => main.width > 220);
        tryVerify(() => rect(main).x + main.width === 560 - 32);
        compare(rect(textIn(screen, screen.copy)).x, rect(main).x);
    }

    function test_what_is_absent_is_not_shown() {
        verify(!counter().visible);
        verify(!quietButton().visible);
        screen.counter = "Count";
        verify(counter().visible);
        screen.secondary = "Not now";
        verify(quietButton().visible);
    }

    function test_clicks() {
        screen.secondary = "Not now";
        mouseClick(mainButton());
        compare([actions.count, secondaryActions.count], [1, 0]);
        waitForRendering(screen);
        mouseClick(quietButton());
        compare([actions.count, secondaryActions.count], [1, 1]);
    }

    function test_return_presses_the_main_button_data() {
        return [{tag: "Return", key: Qt.Key_Return, modifiers: Qt.NoModifier}, {tag: "Enter", key: Qt.Key_Enter, modifiers: Qt.KeypadModifier}];
    }
    function test_return_presses_the_main_button(data) {
        keyClick(data.key, data.modifiers);
        compare(actions.count, 1);
        mainButton().forceActiveFocus(Qt.TabFocusReason);
        keyClick(data.key, data.modifiers);
        compare(actions.count, 2);
    }

    function test_return_presses_the_button_that_has_the_focus() {
        screen.secondary = "Not now";
        quietButton().forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        compare([actions.count, secondaryActions.count], [0, 1]);
        otherButton.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        compare([actions.count, secondaryActions.count, otherClicks.count], [0, 1, 1]);
    }

    function test_a_screen_that_is_hidden_or_disabled_takes_no_key() {
        screen.enabled = false;
        keyClick(Qt.Key_Return);
        screen.enabled = true;
        screen.visible = false;
        keyClick(Qt.Key_Return);
        compare(actions.count, 0);
    }

    function test_tab_goes_from_the_main_button_to_the_second() {
        screen.secondary = "Not now";
        screen.forceActiveFocus();
        verify(mainButton().activeFocus);
        keyClick(Qt.Key_Space);
        compare(actions.count, 1);
        keyClick(Qt.Key_Tab);
        verify(quietButton().activeFocus);
        keyClick(Qt.Key_Space);
        compare(secondaryActions.count, 1);
    }

    function test_focus_is_seen_on_the_loud_colour() {
        screen.secondary = "Not now";
        for (const button of [mainButton(), quietButton()]) {
            button.forceActiveFocus(Qt.TabFocusReason);
            comparePixel(button, button.width / 2, -3, EB.onLoudIndigo, 0.04);
        }
    }

    function test_it_is_mirrored_from_right_to_left() {
        screen.counter = "Count";
        mirror();
        compare(rect(only(item => item instanceof Mark)).x, 560 - 24 - 74);
        const word = textIn(screen, "Hero");
        compare(rect(word).x + word.width, 560 + 14);
        compare(rect(counter()).x, 20);
        const copy = textIn(screen, screen.copy);
        compare(rect(copy).x, 32);
        compare(copy.effectiveHorizontalAlignment, Text.AlignRight);
        compare(rect(mainButton()).x + mainButton().width, 32 + 220);
        compare(only(item => item instanceof DotField).calm[3].x, 144);
    }
}
