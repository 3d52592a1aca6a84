import QtQuick
import QtTest
import Embera.Tokens
import Embera.Controls
import Embera.Rows
import Embera.Testing

KitTestCase {
    id: testCase

    name: "Rows"
    width: 600
    height: 600

    PaneStack {
        id: pane

        width: 300

        GroupLabel {
            id: groupLabel

            text: "Appearance"
        }
        EBGroup {
            id: group

            EBRow {
                id: plainRow

                title: "Title"

                EBSwitch {
                    id: trailingSwitch

                    label: "Title"
                }
            }
            EBRow {
                id: hiddenRow

                title: "Sometimes"
                visible: false
            }
            EBRow {
                id: longRow

                glyph: "gear"
                title: "Title"
                detail: "A detail that is so long that it cannot stand in one line of a card as narrow as this one."
            }
            EBSwitchRow {
                id: switchRow

                property bool stored: false

                title: "Switched"
                isOn: stored
                onFlipped: isOn => stored = isOn
            }
        }
        EBGroup {
            id: narrowGroup

            Item {
                id: narrow

                implicitWidth: 101
                implicitHeight: 20
                width: implicitWidth
                height: implicitHeight
            }
            EBRow {
                id: fullRow

                EBSwitch {
                    id: lowItem

                    label: "Low"
                }
                EBButton {
                    id: highItem

                    text: "High"
                }
                EBDisc {
                    id: lastItem

                    glyph: "plus"
                }
            }
        }
        EBNote {
            id: note

            text: "A note that is so long that it cannot stand in one line of a pane as narrow as this one."
        }
        EBWell {
            id: well

            Item {
                width: parent.width
                height: 50
            }
        }
    }
    Column {
        x: 320
        spacing: 8

        EBLabel {
            id: label

            text: "General"
        }
        EBStatus {
            id: status
        }
        EBDisc {
            id: disc

            glyph: "plus"
        }
        EBRule {
            id: rule

            width: 200
            inset: 16
        }
        EBGroup {
            id: otherGroup

            width: 200

            EBRow {
                title: "First"
            }
            EBRow {
                id: secondRow

                title: "Second"
            }
        }
    }
    TextMetrics {
        id: metrics
    }

    function cleanup() {
        label.small = false;
        label.tone = "muted";
        status.state = "waiting";
        status.text = "";
        disc.small = false;
        disc.on = false;
        plainRow.minHeight = 40;
        switchRow.stored = false;
        hiddenRow.visible = false;
        plainRow.visible = true;
        testCase.LayoutMirroring.enabled = false;
    }

    function topOf(item) {
        return item.mapToItem(pane, 0, 0).y;
    }

    function test_pane_stacks_12_apart_and_8_below_its_top() {
        compare(groupLabel.y, 8);
        compare(group.y, groupLabel.y + groupLabel.height + 12);
        compare(narrowGroup.y, group.y + group.height + 12);
        compare(group.x, 0);
    }

    function test_group_label_hangs_8_above_its_card() {
        const text = textIn(groupLabel, "APPEARANCE");
        compare(topOf(text), 8 + 4);
        compare(text.mapToItem(pane, 0, 0).x, 16);
        compare(group.y - (topOf(text) + text.height), 8);
    }

    function test_label_is_capitals_in_the_mono_face() {
        const text = textIn(label, "GENERAL");
        compare(text.font.pixelSize, 10);
        // Fonts keep their spacing in steps of a 64th.
        fuzzyCompare(text.font.letterSpacing, 1.4, 1 / 64);
        verify(text.font.family.startsWith("Geist Mono"));
        compareColor(text.color, EB.inkMuted);
        label.small = true;
        compare(text.font.pixelSize, 9);
        fuzzyCompare(text.font.letterSpacing, 1.26, 1 / 64);
    }

    function test_label_tones() {
        const text = textIn(label, "GENERAL");
        label.tone = "ink";
        compareColor(text.color, EB.ink);
        label.tone = "onLoud";
        compareColor(text.color, EB.onLoudIndigo);
        testCase.product = "quiller";
        compareColor(text.color, EB.onLoudCoral);
        label.tone = "unknown";
        compareColor(text.color, EB.inkMuted);
    }

    function test_group_is_a_bordered_card_with_round_corners() {
        compare(group.width, 300);
        compare(group.height, plainRow.height + 1 + longRow.height + 1 + switchRow.height);
        comparePixel(group, 150, 4, EB.surface);
        comparePixel(group, 150, 0, over(EB.line, EB.surface));
        comparePixel(group, 0, 30, over(EB.line, EB.surface));
        comparePixel(group, 1, 1, EB.paper);
        comparePixel(group, 299, group.height - 1, EB.paper);
        Desktop.dark = true;
        comparePixel(group, 150, 4, EB.surface);
    }

    function test_a_groups_content_stands_in_its_middle() {
        compare(narrow.mapToItem(narrowGroup, 0, 0).x, 99);
        compare(fullRow.mapToItem(narrowGroup, 0, 0).x, 0);
        testCase.LayoutMirroring.childrenInherit = true;
        testCase.LayoutMirroring.enabled = true;
        compare(narrow.mapToItem(narrowGroup, 0, 0).x, 99);
        narrow.width = 51;
        tryVerify(() => narrow.mapToItem(narrowGroup, 0, 0).x === 124);
        narrow.width = 101;
    }

    function test_trailing_items_are_centred_on_one_line() {
        compare(fullRow.height, 40 + 2 * 6);
        for (const item of [lowItem, highItem, lastItem])
            compare(item.mapToItem(fullRow, 0, item.height / 2).y, fullRow.height / 2);
        compare(highItem.x, lowItem.x + lowItem.width + 12);
    }

    function test_rule_is_a_hairline_from_its_inset_on() {
        compare(rule.height, 1);
        compare(rule.width, 200);
        comparePixel(rule, 15, 0, EB.paper);
        comparePixel(rule, 16, 0, over(EB.line, EB.paper));
        comparePixel(rule, 199, 0, over(EB.line, EB.paper));
        mirror();
        comparePixel(rule, 184, 0, EB.paper);
        comparePixel(rule, 183, 0, over(EB.line, EB.paper));
        comparePixel(rule, 0, 0, over(EB.line, EB.paper));
    }

    /// Whether a rule lies above the row, from the padding of the rows on to the other edge of the card.
    function isRuledOff(row) {
        const line = over(EB.line, EB.surface);
        const place = x => group.mapFromItem(row, 0, 0).y - 1 >= 0 ? pixel(row, x, -1) : EB.surface;
        return isNear(place(16), line) && isNear(place(298), line) && isNear(place(15), EB.surface);
    }

    function test_rules_lie_between_the_rows_that_show() {
        compare(longRow.y, plainRow.height + 1);
        verify(!isRuledOff(plainRow));
        comparePixel(group, 150, -1, EB.paper);
        verify(isRuledOff(longRow));
        verify(isRuledOff(switchRow));
        hiddenRow.visible = true;
        tryCompare(hiddenRow, "y", plainRow.height + 1);
        tryVerify(() => isRuledOff(hiddenRow) && isRuledOff(longRow) && isRuledOff(switchRow));
        compare(group.height, plainRow.height + 1 + hiddenRow.height + 1 + longRow.height + 1 + switchRow.height);
        hiddenRow.visible = false;
        tryCompare(longRow, "y", plainRow.height + 1);
        tryVerify(() => isRuledOff(longRow) && isRuledOff(switchRow));
        hiddenRow.visible = true;
        // Without the first row the second one is the first.
        plainRow.visible = false;
        tryCompare(hiddenRow, "y", 0);
        tryVerify(() => isRuledOff(longRow));
        verify(isNear(pixel(hiddenRow, 150, 1), EB.surface));
    }

    function test_rules_are_indented_on_the_leading_side() {
        const line = over(EB.line, EB.surface);
        comparePixel(secondRow, 15, -1, EB.surface);
        comparePixel(secondRow, 16, -1, line);
        comparePixel(secondRow, 198, -1, line);
        mirror();
        comparePixel(secondRow, 200 - 16, -1, EB.surface);
        comparePixel(secondRow, 200 - 17, -1, line);
        comparePixel(secondRow, 1, -1, line);
    }

    function test_row_with_only_a_title_is_40_high() {
        compare(plainRow.height, 40);
        const title = textIn(plainRow, "Title");
        compare(title.font.pixelSize, 13);
        compare(title.font.weight, Font.DemiBold);
        compare(title.mapToItem(plainRow, 0, 0).x, 16);
        fuzzyCompare(title.mapToItem(plainRow, 0, 0).y + title.height / 2, 20, 0.5);
    }

    function test_trailing_content_stands_at_the_trailing_edge() {
        const at = trailingSwitch.mapToItem(plainRow, 0, 0);
        compare(at.x, 300 - 16 - 36);
        compare(at.y, 9);
        mirror();
        compare(trailingSwitch.mapToItem(plainRow, 0, 0).x, 16);
    }

    function test_row_grows_with_a_detail_that_wraps() {
        const title = textIn(longRow, "Title");
        const detail = textIn(longRow, longRow.detail);
        verify(detail.lineCount > 1);
        verify(!detail.truncated);
        compare(longRow.height, Math.max(40, 6 + title.height + 1 + detail.height + 6));
        verify(longRow.height > 40);
        compare(title.mapToItem(longRow, 0, 0).y, 6);
        compare(detail.mapToItem(longRow, 0, 0).y, 6 + title.height + 1);
        compare(detail.font.pixelSize, 11);
        compareColor(detail.color, EB.inkMuted);
        // 16, the disc of 28, 12.
        compare(title.mapToItem(longRow, 0, 0).x, 56);
        compare(title.width, 300 - 56 - 16);
    }

    function test_row_content_keeps_its_minimum_height() {
        plainRow.minHeight = 64;
        compare(plainRow.height, 64);
        plainRow.minHeight = 0;
        compare(plainRow.height, 22 + 12);
    }

    function test_title_is_leading_from_right_to_left() {
        mirror();
        const title = textIn(longRow, "Title");
        compare(title.mapToItem(longRow, title.width, 0).x, 300 - 56);
        compare(title.effectiveHorizontalAlignment, Text.AlignRight);
    }

    function test_switch_row_flips_its_callers_value() {
        const at = switchRow.width - 16 - 18;
        mouseClick(switchRow, at, switchRow.height / 2);
        compare(switchRow.stored, true);
        compare(switchRow.isOn, true);
        switchRow.stored = false;
        compare(switchRow.isOn, false);
        mouseClick(switchRow, 40, switchRow.height / 2);
        compare(switchRow.stored, false);
    }

    function test_note_wraps_between_paddings_of_16() {
        compare(note.width, 300);
        compare(note.leftPadding, 16);
        compare(note.rightPadding, 16);
        verify(note.lineCount > 1);
        compare(note.font.pixelSize, 11);
        compareColor(note.color, EB.inkMuted);
    }

    function test_well_is_sunk_without_a_border() {
        compare(well.width, 300);
        compare(well.height, 50);
        comparePixel(well, 150, 0, EB.sunk);
        comparePixel(well, 150, 25, EB.sunk);
        comparePixel(well, 1, 1, EB.paper);
    }

    function test_status_waits_in_the_products_accent() {
        compare(status.isAllowed, false);
        const word = textIn(status, "Waiting");
        compareColor(word.color, EB.inkMuted);
        compare(word.font.pixelSize, 12);
        compare(word.font.weight, Font.DemiBold);
        compare(word.x, 7 + 7);
        comparePixel(status, 3, Math.floor(status.height / 2), EB.indigo);
        testCase.product = "parcelo";
        comparePixel(status, 3, Math.floor(status.height / 2), EB.teal);
    }

    function test_status_allowed_is_green() {
        status.state = "allowed";
        compareColor(textIn(status, "Allowed").color, EB.ink);
        comparePixel(status, 3, Math.floor(status.height / 2), EB.ok);
        status.text = "Granted";
        verify(textIn(status, "Granted"));
    }

    function test_disc_off_is_a_bordered_circle() {
        compare(disc.width, 28);
        verify(isNear(pixel(disc, 14, 0), over(EB.lineStrong, EB.paper), 0.03));
        comparePixel(disc, 14, 3, EB.paper);
        // The arms of its plus reach 4.6 points from the middle.
        comparePixel(disc, 14, 14, EB.ink);
        verify(isNear(pixel(disc, 14 + 4, 14), EB.ink, 0.2));
        comparePixel(disc, 14 + 6, 14, EB.paper);
    }

    function test_small_disc_that_is_on() {
        disc.small = true;
        disc.on = true;
        testCase.product = "parcelo";
        compare(disc.width, 22);
        compare(disc.height, 22);
        // Here they reach 3.7 points.
        comparePixel(disc, 11, 11, EB.onTeal);
        verify(isNear(pixel(disc, 11 + 3, 11), EB.onTeal, 0.2));
        comparePixel(disc, 11 - 5, 11, EB.teal);
        comparePixel(disc, 11, 2, EB.teal);
        verify(isNear(pixel(disc, 11, 0), EB.teal, 0.06));
        comparePixel(disc, 0, 0, EB.paper);
    }

    function test_nothing_clips_in_a_wide_face() {
        const detail = textIn(longRow, longRow.detail);
        const height = longRow.height;
        detail.font.family = "DejaVu Sans";
        tryVerify(() => longRow.height > height);
        verify(!detail.truncated);
        verify(detail.contentWidth <= detail.width);
        verify(longRow.height >= 12 + detail.contentHeight);
        detail.font = Qt.binding(() => EBType.font("caption"));
        tryCompare(longRow, "height", height);
    }
}
