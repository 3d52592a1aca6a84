import QtQuick
import QtTest
import Embera.Tokens
import Embera.Testing

/// A test case over one paper-coloured area, with the comparisons that views need.
TestCase {
    id: testCase

    property string product: "corvane"

    visible: true
    when: windowShown
    width: 480
    height: 320
    EBEnvironment.ebApp: product

    Rectangle {
        anchors.fill: parent
        color: EB.paper
        z: -1
    }

    function init() {
        failOnWarning(/.?/);
        Desktop.dark = false;
        Desktop.reduceMotion = false;
        Desktop.holdsAnimations = false;
        testCase.product = "corvane";
        testCase.LayoutMirroring.enabled = false;
        // Out of the way of whatever the next test hovers.
        mouseMove(testCase, width - 1, height - 1);
    }

    /// Every item inside that `matches`, in drawing order.
    function allIn(item, matches) {
        let found = [];
        for (const child of Array.from(item.children))
            found = found.concat(matches(child) ? [child] : [], allIn(child, matches));
        return found;
    }
    /// The text item inside that shows `text`; null when there is none.
    function textIn(item, text) {
        return allIn(item, child => child instanceof Text && child.text === text)[0] ?? null;
    }
    /// Lays everything out from right to left.
    function mirror() {
        testCase.LayoutMirroring.childrenInherit = true;
        testCase.LayoutMirroring.enabled = true;
    }

    /// `color` as it looks on an opaque `ground`, both faded by nothing or by `opacity`.
    function over(color, ground, opacity = 1) {
        const a = color.a * opacity;
        return Qt.rgba(color.r * a + ground.r * (1 - a), color.g * a + ground.g * (1 - a),
                       color.b * a + ground.b * (1 - a), 1);
    }

    /// Whether two colours differ by no more than rounding twice does: three steps of 255.
    function isNear(actual, expected, tolerance = 0.013) {
        return Math.abs(actual.r - expected.r) < tolerance && Math.abs(actual.g - expected.g) < tolerance
            && Math.abs(actual.b - expected.b) < tolerance;
    }

    function compareColor(actual, expected) {
        compare(String(actual), String(expected));
    }

    /// The pixel at the point (x, y) of an item.
    function pixel(item, x, y) {
        const at = item.mapToItem(testCase, x, y);
        return grabImage(testCase).pixel(Math.floor(at.x), Math.floor(at.y));
    }

    function comparePixel(item, x, y, expected, tolerance = 0.013) {
        let found = pixel(item, x, y);
        tryVerify(() => isNear(found = pixel(item, x, y), expected, tolerance), 1000,
                  `at ${x}, ${y}: ${found} instead of ${expected}`);
    }

    /// The same for what changes at once, without any patience.
    function comparePixelAtOnce(item, x, y, expected) {
        const found = pixel(item, x, y);
        verify(isNear(found, expected), `at ${x}, ${y}: ${found} instead of ${expected}`);
    }

    /// How many pixels of an item's rectangle have a colour.
    function countPixels(item, expected) {
        const image = grabImage(testCase);
        const from = item.mapToItem(testCase, 0, 0);
        let count = 0;
        for (let y = 0; y < item.height; ++y) {
            for (let x = 0; x < item.width; ++x)
                count += isNear(image.pixel(from.x + x, from.y + y), expected) ? 1 : 0;
        }
        return count;
    }
}
