import QtQuick
import QtTest
import Embera.Tokens
import Embera.Controls
import Embera.Rows
import Embera.Screens
import Embera.Testing

ScreenTestCase {
    id: testCase

    name: "EBStageScreen"

    EBStageScreen {
        id: screen

        app: "parcelo"
        kicker: "Step 02"
        title: "Give it a try"
        text: "A sentence."
        content: [
            Item {
                id: stage

                width: parent?.width ?? 0
                height: 120
            }
        ]
        actions: [
            KeyCap {
                id: cap

                keys: "⌘W"
            },
            EBSpacer {},
            EBButton {
                id: button

                text: "Continue"
            }
        ]
    }

    Component {
        id: growing

        EBStageScreen {
            app: "corvane"
            actions: [
                Item {
                    implicitWidth: inside.childrenRect.width
                    implicitHeight: inside.childrenRect.height

                    Item {
                        id: inside

                        Row {
                            spacing: 10

                            Repeater {
                                model: ["⌘W", "⌘M", "⌘F"].filter(keys => keys !== "")

                                KeyCap {
                                    required property string modelData

                                    keys: modelData
                                }
                            }
                        }
                    }
                },
                EBSpacer {},
                EBButton {
                    text: "Continue"
                }
            ]
        }
    }

    function cleanup() {
        screen.counter = "";
        screen.text = "A sentence.";
        stage.height = 120;
    }
    function labels() {
        return allIn(screen, item => item instanceof EBLabel && item.visible);
    }
    function rect(item) {
        return rectIn(item, screen);
    }

    function test_is_560_by_388_on_paper() {
        compare(screen.width, 560);
        compare(screen.height, 388);
        for (const dark of [false, true]) {
            Desktop.dark = dark;
            comparePixel(screen, 0, 0, EB.paper);
            comparePixel(screen, 559, 387, EB.paper);
        }
    }

    function test_product_is_set_for_everything_inside() {
        compare(stage.EBEnvironment.ebApp, "parcelo");
        compare(button.EBEnvironment.ebApp, "parcelo");
    }

    function test_stack() {
        const kicker = labels()[0];
        const title = textIn(screen, "Give it a try");
        const text = textIn(screen, "A sentence.");
        compare([rect(kicker).x, rect(kicker).y], [28, 36]);
        compare([rect(title).x, rect(title).y], [28, 36 + kicker.height]);
        compare(title.topPadding, 8);
        compare([rect(text).x, rect(text).y], [28, rect(title).y + title.height]);
        compare(text.topPadding, 4);
        compare(rect(stage), Qt.rect(28, rect(text).y + text.height + 14, 504, 120));
        compare(rect(button).y, rect(stage).y + 120);
        compare(rect(button).x + button.width, 560 - 28);
        compare(rect(cap).x, 28);
        compare(rect(cap).y + cap.height / 2, rect(button).y + button.height / 2);
    }

    function test_type_roles_and_colours() {
        const title = textIn(screen, "Give it a try");
        compare(title.role, "heading");
        compareColor(title.color, EB.ink);
        compare(title.Accessible.role, Accessible.Heading);
        const text = textIn(screen, "A sentence.");
        compare(text.role, "body");
        compareColor(text.color, EB.inkMuted);
        compare(text.Accessible.role, Accessible.StaticText);
    }

    function test_without_a_counter_there_is_only_the_kicker() {
        compare(labels().map(label => label.text), ["Step 02"]);
        compare(labels()[0].tone, "muted");
        verify(!labels()[0].small);
        compare(labels()[0].width, 504);
    }

    function test_the_counter_stands_opposite_the_kicker() {
        screen.counter = "02 / 05";
        const [kicker, counter] = labels();
        compare(labels().map(label => label.text), ["Step 02", "02 / 05"]);
        compare(counter.tone, "muted");
        verify(!counter.small);
        compare(rect(counter).y, 36);
        compare(rect(counter).x + counter.width, 560 - 28);
        compare(rect(kicker).x + kicker.width, rect(counter).x - 8);
    }

    function test_a_long_text_wraps_and_leaves_less_room() {
        const room = screen.room;
        screen.text = "A sentence that goes on and on. ".repeat(8);
        const text = textIn(screen, screen.text);
        tryVerify(() => text.lineCount > 1);
        verify(!text.truncated);
        tryVerify(() => screen.room < room);
        tryVerify(() => rect(stage).y === rect(text).y + text.height + 14);
    }

    function test_a_stage_that_fills_the_room_puts_the_buttons_16_above_the_edge() {
        stage.height = Qt.binding(() => screen.room);
        tryVerify(() => rect(button).y + button.height === 388 - 16);
        compare(rect(stage).y + stage.height, rect(button).y);
    }

    function test_actions_may_grow_while_they_are_made() {
        const made = createTemporaryObject(growing, testCase);
        const last = allIn(made, item => item instanceof EBButton)[0];
        tryVerify(() => rectIn(last, made).x + last.width === 560 - 28);
    }

    function test_it_is_mirrored_from_right_to_left() {
        screen.counter = "02 / 05";
        mirror();
        compare(rect(labels()[0]).x + labels()[0].width, 560 - 28);
        compare(rect(labels()[1]).x, 28);
        compare(rect(button).x, 28);
        compare(textIn(screen, "Give it a try").effectiveHorizontalAlignment, Text.AlignRight);
    }
}
