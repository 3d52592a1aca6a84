import QtQuick
import QtTest
import Embera.Tokens
import Embera.Glyphs

KitTestCase {
    id: testCase

    name: "Glyph"

    Glyph {
        id: glyph

        color: EB.ink
    }


    function cleanup() {
        glyph.name = "";
        glyph.size = 24;
        glyph.width = undefined;
        glyph.height = undefined;
    }

    function test_occupies_a_square_of_its_size() {
        glyph.size = 13;
        compare(glyph.implicitWidth, 13);
        compare(glyph.implicitHeight, 13);
    }

    function test_unknown_name_draws_nothing_data() {
        return [{tag: "nothing", name: ""}, {tag: "no glyph", name: "nosuchglyph"}, {tag: "capital", name: "Minus"}];
    }
    function test_unknown_name_draws_nothing(data) {
        glyph.name = data.name;
        compare(countPixels(glyph, EB.paper), 24 * 24);
        glyph.name = "minus";
        tryVerify(() => countPixels(glyph, EB.paper) < 24 * 24);
    }

    // A horizontal stroke from 5.5 to 18.5 on the grid, its ends round: as many rows dark as it is thick.
    function test_stroke_scales_with_the_size_data() {
        return [{tag: "24", size: 24, thickness: 1.6}, {tag: "12", size: 12, thickness: 0.8},
                {tag: "48", size: 48, thickness: 3.2}];
    }
    function test_stroke_scales_with_the_size(data) {
        glyph.name = "minus";
        glyph.size = data.size;
        let covered = 0;
        waitForRendering(glyph);
        for (let y = 0; y < data.size; ++y) {
            const found = pixel(glyph, data.size / 2, y);
            covered += (EB.paper.g - found.g) / (EB.paper.g - EB.ink.g);
        }
        verify(Math.abs(covered - data.thickness) < 0.06, `${covered} instead of ${data.thickness}`);
    }

    function test_stands_in_the_middle_of_a_larger_item() {
        glyph.name = "plus";
        glyph.size = 24;
        glyph.width = 48;
        glyph.height = 36;
        comparePixel(glyph, 24, 18, EB.ink);
        comparePixel(glyph, 4, 18, EB.paper);
        comparePixel(glyph, 24, 4, EB.paper);
    }

    function test_a_middle_line_is_sharp_at_any_size_data() {
        return [{tag: "11", size: 11}, {tag: "12", size: 12}, {tag: "13", size: 13}, {tag: "15", size: 15}];
    }
    function test_a_middle_line_is_sharp_at_any_size(data) {
        glyph.name = "minus";
        glyph.size = data.size;
        waitForRendering(glyph);
        let rows = 0;
        for (let y = 0; y < data.size; ++y)
            rows += isNear(pixel(glyph, data.size / 2, y), EB.paper) ? 0 : 1;
        compare(rows, 1);
    }

    function test_size_zero_draws_nothing() {
        glyph.name = "gear";
        glyph.width = 24;
        glyph.height = 24;
        glyph.size = 0;
        tryVerify(() => countPixels(glyph, EB.paper) === 24 * 24);
    }

    function test_is_drawn_in_its_color() {
        glyph.name = "dots";
        glyph.size = 48;
        glyph.color = EB.indigo;
        tryVerify(() => countPixels(glyph, EB.indigo) > 0);
        glyph.color = Qt.binding(() => EB.ink);
    }
}
