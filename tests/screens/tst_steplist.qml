import QtQuick
import QtTest
import Embera.Tokens
import Embera.Controls
import Embera.Screens
import Embera.Testing

ScreenTestCase {
    id: testCase

    name: "EBStepList"

    EBStepList {
        id: list

        steps: ["Welcome", "Try it", "Access"]
        current: 1
    }

    function cleanup() {
        list.steps = ["Welcome", "Try it", "Access"];
        list.current = 1;
        list.onLoud = false;
        list.maximumWidth = Infinity;
    }
    function rows() {
        return allIn(list, item => item instanceof Row);
    }
    function label(index) {
        return allIn(rows()[index], item => item instanceof Text)[0];
    }
    function dot(index) {
        return allIn(rows()[index], item => item instanceof ContinuousRectangle)[0];
    }

    function test_rows_are_10_apart_with_8_between_marker_and_label() {
        compare(rows().length, 3);
        for (let i = 0; i < 3; ++i) {
            const row = rows()[i];
            compare(row.x, 0);
            compare(rectIn(dot(i).parent, row).x, 0);
            compare(dot(i).parent.width, 8);
            compare(dot(i).parent.height, 8);
            compare(rectIn(label(i), row).x, 16);
            fuzzyCompare(rectIn(dot(i).parent, row).y + 4, row.height / 2, 0.5);
            if (i > 0)
                tryVerify(() => row.y === rows()[i - 1].y + rows()[i - 1].height + 10);
        }
    }

    function test_labels_are_numbered_capitals() {
        compare(label(0).text, "01 WELCOME");
        compare(label(1).text, "02 TRY IT");
        compare(label(2).text, "03 ACCESS");
    }

    function test_numbers_have_two_digits() {
        list.steps = Array.from({length: 12}, (none, index) => "step");
        compare(label(8).text, "09 STEP");
        compare(label(9).text, "10 STEP");
        compare(label(10).text, "11 STEP");
        compare(rows()[11].Accessible.name, "Step 12 of 12, step");
    }

    function test_current_step_is_larger() {
        for (const [index, role, size, tracking] of [[0, "monoSmall", 9, 1.26], [1, "mono", 10, 1.4], [2, "monoSmall", 9, 1.26]]) {
            compare(label(index).role, role);
            compare(label(index).font.pixelSize, size);
            fuzzyCompare(label(index).font.letterSpacing, tracking, 1 / 64);
        }
    }

    function test_markers() {
        const measures = [0, 1, 2].map(index => [dot(index).width, dot(index).height, dot(index).strokeWidth]);
        compare(measures, [[6, 6, 0], [8, 8, 0], [6, 6, 1]]);
        for (const index of [0, 1, 2])
            compare(rectIn(dot(index), dot(index).parent).x, index === 1 ? 0 : 1);
        comparePixel(dot(0), 3, 3, EB.inkMuted, 0.02);
        comparePixel(dot(1), 4, 4, EB.ink, 0.02);
        // The ring is hollow.
        comparePixel(dot(2), 3, 3, EB.paper, 0.02);
        compareColor(dot(2).strokeColor, EB.inkMuted);
        compareColor(dot(2).color, "#00000000");
    }

    function test_colours_on_paper() {
        for (const dark of [false, true]) {
            Desktop.dark = dark;
            compareColor(label(0).color, EB.inkMuted);
            compareColor(label(1).color, EB.ink);
            compareColor(label(2).color, EB.inkMuted);
            compareColor(dot(0).color, EB.inkMuted);
            compareColor(dot(1).color, EB.ink);
        }
    }

    function test_colours_on_loud_data() {
        return [{tag: "quiller", token: "onLoudCoral"}, {tag: "corvane", token: "onLoudIndigo"}, {tag: "parcelo", token: "onLoudTeal"}];
    }
    function test_colours_on_loud(data) {
        testCase.product = data.tag;
        list.onLoud = true;
        for (const index of [0, 1, 2]) {
            compareColor(label(index).color, EB[data.token]);
            compareColor(dot(index).strokeColor, EB[data.token]);
        }
        compareColor(dot(1).color, EB[data.token]);
    }

    function test_each_row_is_read_out() {
        const spoken = rows().map(row => row.Accessible.name);
        compare(spoken, ["Step 1 of 3, Welcome, done", "Step 2 of 3, Try it, current", "Step 3 of 3, Access"]);
        for (const index of [0, 1, 2])
            compare(rows()[index].Accessible.role, Accessible.StaticText);
    }

    function test_a_title_may_hold_a_place_holder() {
        list.steps = ["%1 and %2"];
        list.current = 0;
        compare(rows()[0].Accessible.name, "Step 1 of 1, %1 and %2, current");
    }

    function test_beyond_the_ends() {
        list.current = 3;
        compare(rows().map(row => row.place), [-1, -1, -1]);
        list.current = 40;
        compare(rows().map(row => row.Accessible.name), ["Step 1 of 3, Welcome, done", "Step 2 of 3, Try it, done", "Step 3 of 3, Access, done"]);
        compare(dot(2).strokeWidth, 0);
        list.current = -1;
        compare(rows().map(row => row.place), [1, 1, 1]);
        compare(label(0).role, "monoSmall");
        list.steps = [];
        compare(rows().length, 0);
    }

    function test_long_titles_wrap() {
        list.steps = ["A title that is far too long for one line", "Short"];
        compare(label(0).lineCount, 1);
        list.maximumWidth = 120;
        verify(label(0).lineCount > 1);
        verify(label(0).contentWidth <= 120 - 16);
        verify(list.width <= 120);
        tryVerify(() => rows()[1].y === rows()[0].height + 10);
    }

    function test_markers_lead_from_right_to_left() {
        mirror();
        for (const row of rows())
            compare(row.x + row.width, list.width);
        compare(rectIn(dot(1).parent, rows()[1]).x, rows()[1].width - 8);
        compare(label(1).effectiveHorizontalAlignment, Text.AlignRight);
    }
}
