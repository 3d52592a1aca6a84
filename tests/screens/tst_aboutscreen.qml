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

    name: "EBAboutScreen"

    EBAboutScreen {
        id: screen

        app: "corvane"
        version: "1.4 (212)"
        blurb: "Close, minimize and full-screen windows right in Mission Control, with buttons on every window and the shortcuts you already know."
        website: "https://example.com/"
    }

    function cleanup() {
        screen.app = "corvane";
        screen.offersUpdates = false;
        screen.website = "https://example.com/";
    }
    function buttons() {
        return allIn(screen, item => item instanceof EBButton && item.visible);
    }
    function rect(item) {
        return rectIn(item, screen);
    }

    function test_is_460_by_380_on_paper() {
        compare(screen.width, 460);
        compare(screen.height, 380);
        for (const dark of [false, true]) {
            Desktop.dark = dark;
            comparePixel(screen, 0, 0, EB.paper);
            comparePixel(screen, 459, 379, EB.paper);
        }
    }

    function test_drawing_fills_a_well() {
        const well = allIn(screen, item => item instanceof EBWell)[0];
        compare(rect(well), Qt.rect(24, 40, 460 - 2 * 24, 116));
        // The ground between two lines of the drawing's grid, and the paper beside the well's corner.
        comparePixel(well, 40, 32, EB.sunk);
        comparePixel(well, 1, 1, EB.paper);
        const drawing = allIn(well, item => item instanceof MarkConstruction)[0];
        compare(rect(drawing), rect(well));
        compare(drawing.app, "corvane");
    }

    function test_texts_are_stacked() {
        const name = textIn(screen, "Corvane");
        const version = textIn(screen, "1.4 (212)");
        const blurb = textIn(screen, screen.blurb);
        compare([rect(name).x, rect(name).y], [26, 40 + 116 + 14]);
        compare([rect(version).x, rect(version).y], [26, rect(name).y + name.height + 8]);
        compare([rect(blurb).x, rect(blurb).y], [26, rect(version).y + version.height + 8]);
        compare(blurb.width, 460 - 2 * 26);
        verify(blurb.lineCount > 1);
        compare([name.role, version.role, blurb.role], ["title", "caption", "body"]);
        compare(name.font.pixelSize, 34);
        fuzzyCompare(name.font.letterSpacing, -1.19, 1 / 64);
        compare(name.Accessible.role, Accessible.Heading);
        compare([version.Accessible.name, blurb.Accessible.name], ["1.4 (212)", screen.blurb]);
    }

    function test_name_is_the_products_data() {
        return [{tag: "quiller", name: "Quiller"}, {tag: "corvane", name: "Corvane"}, {tag: "parcelo", name: "Parcelo"}];
    }
    function test_name_is_the_products(data) {
        screen.app = data.tag;
        verify(textIn(screen, data.name));
        compare(allIn(screen, item => item instanceof MarkConstruction)[0].Accessible.name, `The ${data.name} mark drawn on its grid`);
    }

    function test_without_updates_there_is_the_website_and_the_credit() {
        compare(buttons().map(button => button.text), ["Website ↗︎"]);
        compare(Array.from("↗︎").map(character => character.codePointAt(0)), [0x2197, 0xFE0E]);
        tryVerify(() => rect(buttons()[0]).x === 26);
        verify(textIn(screen, "Made by Vexmoor").visible);
    }

    function test_with_updates_their_button_comes_first() {
        screen.offersUpdates = true;
        compare(buttons().map(button => button.text), ["Check for Updates", "Website ↗︎"]);
        tryVerify(() => rect(buttons()[1]).x === 26 + buttons()[0].width + 10);
    }

    function test_without_a_website_its_button_is_gone() {
        screen.website = "";
        compare(buttons().length, 0);
    }

    function test_row_is_centred_14_above_the_edge() {
        const [website] = buttons();
        const credit = textIn(screen, "Made by Vexmoor");
        compare(rect(website).y + website.height, 380 - 14);
        fuzzyCompare(rect(credit).y + credit.height / 2, rect(website).y + website.height / 2, 0.5);
        compare(rect(credit).x + credit.width, 460 - 26);
        compare(credit.lineCount, 1);
        const blurb = textIn(screen, screen.blurb);
        verify(rect(website).y >= rect(blurb).y + blurb.height + 10);
    }

    function test_it_is_mirrored_from_right_to_left() {
        mirror();
        const [website] = buttons();
        compare(rect(website).x + website.width, 460 - 26);
        compare(rect(textIn(screen, "Made by Vexmoor")).x, 26);
        compare(textIn(screen, "Corvane").effectiveHorizontalAlignment, Text.AlignRight);
    }
}
