import QtQuick
import QtTest
import Embera.Tokens
import Embera.Window

KitTestCase {
    id: testCase

    name: "WindowButton"

    Row {
        x: 20
        y: 20
        spacing: 8

        WindowButton {
            id: close

            glyph: "close"
        }
        WindowButton {
            id: minimize

            glyph: "minus"
        }
        WindowButton {
            id: zoom

            glyph: "plus"
        }
    }

    function test_glyph_stands_in_the_middle_data() {
        return [{tag: "close", button: close}, {tag: "minimize", button: minimize}, {tag: "zoom", button: zoom}];
    }
    function test_glyph_stands_in_the_middle(data) {
        const image = grabImage(testCase);
        const from = data.button.mapToItem(testCase, 0, 0);
        const last = data.button.width - 1;
        compare(data.button.height, data.button.width);
        const at = (x, y) => image.pixel(from.x + x, from.y + y);
        verify(!isNear(at(last / 2, last / 2), at(last / 2, 3)), "there is a glyph");
        for (let y = 0; y <= last; ++y) {
            for (let x = 0; x <= last; ++x) {
                verify(isNear(at(x, y), at(last - x, y), 0.03), `${x}, ${y}`);
                verify(isNear(at(x, y), at(x, last - y), 0.03), `${x}, ${y}`);
            }
        }
    }

    function test_cross_is_clear() {
        const middle = (close.width - 1) / 2;
        const ground = pixel(close, middle, 3);
        // At the crossing, and on one of the arms.
        for (const place of [middle, middle + 1]) {
            const found = pixel(close, place, place);
            verify(Math.abs(found.r - ground.r) >= 0.75 * Math.abs(EB.inkMuted.r - ground.r), `at ${place}: ${found}`);
        }
    }
}
