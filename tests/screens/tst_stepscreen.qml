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

    name: "EBStepScreen"

    EBStepScreen {
        id: screen

        app: "corvane"
        steps: ["Welcome", "Try it", "Access"]
        current: 2
        kicker: "Step 03"
        title: "A heading that needs more than one line"
        text: "A paragraph that is so long that it does not fit into a single line of the column beside the panel."
        rows: [
            EBRow {
                id: row

                title: "Row"
            }
        ]
        actions: [
            EBButton {
                id: first

                text: "First"
            },
            EBButton {
                id: second

                text: "Second"
                size: "sm"
            },
            EBSpacer {
                id: spacer
            },
            EBButton {
                id: last

                text: "Last"
                size: "sm"
            }
        ]
    }

    function cleanup() {
        screen.app = "corvane";
        screen.width = 560;
        screen.height = 388;
        screen.title = "A heading that needs more than one line";
        spacer.visible = true;
        last.visible = true;
    }
    function only(matches) {
        const found = allIn(screen, matches);
        compare(found.length, 1);
        return found[0];
    }
    function field() {
        return only(item => item instanceof DotField);
    }
    function panel() {
        return field().parent;
    }
    function rect(item) {
        return rectIn(item, screen);
    }

    function test_panel_is_206_wide_and_clips() {
        compare(rect(panel()), Qt.rect(0, 0, 206, 388));
        verify(panel().clip);
        screen.height = 420;
        compare(panel().height, 420);
        compare(rect(field()), Qt.rect(0, 0, 206, 388));
    }

    function test_panel_has_the_products_colours_data() {
        return [{tag: "quiller", loud: "loudCoral", on: "onLoudCoral"}, {tag: "corvane", loud: "loudIndigo", on: "onLoudIndigo"}, {tag: "parcelo", loud: "loudTeal", on: "onLoudTeal"}];
    }
    function test_panel_has_the_products_colours(data) {
        // The product around the screen does not matter.
        testCase.product = data.tag === "corvane" ? "quiller" : "corvane";
        screen.app = data.tag;
        compareColor(panel().color, EB[data.loud]);
        comparePixel(screen, 16, 20, EB[data.loud]);
        compareColor(textIn(screen, "03 ACCESS").color, EB[data.on]);
        const mark = only(item => item instanceof Mark);
        compare(mark.app, data.tag);
        compareColor(mark.color, EB[data.on]);
        compare(field().app, data.tag);
        compare(row.EBEnvironment.ebApp, data.tag);
    }

    function test_dot_field() {
        const dots = field();
        compare([dots.cell, dots.seed, dots.density, dots.ramp, dots.margin], [20, 8, 0.72, 50, 2]);
        compare(dots.size, Qt.size(206, 388));
        compare(Array.from(dots.calm).map(zone => [zone.x, zone.y, zone.a, zone.r]), [[50, 20, 30, 18], [66, 116, 30, 72], [50, 330, 0, 70]]);
    }

    function test_steps_stand_56_below_the_top() {
        const list = only(item => item instanceof EBStepList);
        verify(list.onLoud);
        compare(Array.from(list.steps), ["Welcome", "Try it", "Access"]);
        compare(list.current, 2);
        compare(rect(list).x, 16);
        compare(rect(list).y, 56);
        compare(list.maximumWidth, 174);
    }

    function test_mark_reaches_out_of_the_panels_padding() {
        const mark = only(item => item instanceof Mark);
        compare(mark.size, 118);
        // 14 to the left of the padding of 16, and 10 below it.
        compare(rect(mark), Qt.rect(2, 388 - 16 + 10 - 118, 118, 118));
        verify(mark.Accessible.ignored);
    }

    function test_column_is_padded_and_stacked() {
        const kicker = only(item => item instanceof EBLabel);
        const title = textIn(screen, screen.title);
        const text = textIn(screen, screen.text);
        const card = only(item => item instanceof EBGroup);
        compare(kicker.tone, "muted");
        verify(!kicker.small);
        compare([rect(kicker).x, rect(kicker).y], [206 + 28, 44]);
        compare([rect(title).x, rect(title).y], [234, rect(kicker).y + kicker.height + 10]);
        compare([rect(text).x, rect(text).y], [234, rect(title).y + title.height + 10]);
        compare(rect(card), Qt.rect(234, rect(text).y + text.height + 10 + 8, 560 - 234 - 26, card.height));
        compare(rect(first), Qt.rect(234, rect(card).y + card.height + 10 + 8, first.width, 40));
    }

    function test_title_and_text_wrap_at_their_widths() {
        const title = textIn(screen, screen.title);
        const text = textIn(screen, screen.text);
        verify(title.lineCount > 1);
        verify(text.lineCount > 1);
        compare(title.width, 300);
        screen.width = 900;
        compare(title.width, 300);
        compare(text.width, 310);
        verify(!title.truncated && !text.truncated);
    }

    function test_type_roles_and_colours() {
        const title = textIn(screen, screen.title);
        compare(title.role, "heading");
        compare(title.font.pixelSize, 27);
        fuzzyCompare(title.font.letterSpacing, -0.81, 1 / 64);
        compareColor(title.color, EB.ink);
        compare(title.Accessible.role, Accessible.Heading);
        compare(title.Accessible.name, screen.title);
        const text = textIn(screen, screen.text);
        compare(text.role, "body");
        compare(text.font.letterSpacing, 0);
        compareColor(text.color, EB.inkMuted);
        compare(text.Accessible.role, Accessible.StaticText);
    }

    function test_column_is_paper_down_to_the_edges() {
        for (const dark of [false, true]) {
            Desktop.dark = dark;
            comparePixel(screen, 207, 1, EB.paper);
            comparePixel(screen, 559, 387, EB.paper);
        }
    }

    function test_actions_are_centred_and_10_apart() {
        compare(rect(second).x, rect(first).x + first.width + 10);
        compare(rect(second).y + second.height / 2, rect(first).y + first.height / 2);
        // What stands behind the spacer ends where the column does.
        compare(rect(last).x + last.width, 560 - 26);
        spacer.visible = false;
        tryVerify(() => rect(last).x === rect(second).x + second.width + 10);
        spacer.visible = true;
        last.visible = false;
        tryVerify(() => spacer.width === 300 - first.width - second.width - 2 * 10);
    }

    function test_it_is_mirrored_from_right_to_left() {
        mirror();
        compare(rect(panel()), Qt.rect(354, 0, 206, 388));
        compare(rect(only(item => item instanceof Mark)).x, 560 - 2 - 118);
        compare(rect(only(item => item instanceof EBLabel)).x, 26);
        compare(rect(first).x + first.width, 560 - 234);
        compare(rect(last).x, 26);
        compare(field().calm[0].x, 156);
        compare(textIn(screen, screen.title).effectiveHorizontalAlignment, Text.AlignRight);
    }
}
