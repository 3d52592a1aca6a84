import QtQuick
import Embera.Tokens

/// Text in one of the type roles: sets the role's font and tracking.
Text {
    id: text

    /// One of the twelve roles, by name.
    property string role: "body"
    /// Overrides of the role; 0 keeps what the role says.
    property int weight: 0
    property real size: 0
    /// Where a single word would be left for the last line, the lines are made about equally long. For texts at an edge.
    property bool balanced: false
    /// What balancing takes from the width, in points.
    readonly property real slack: balanced && wrapMode !== Text.NoWrap ? width - EBType.balancedWidth(text.text, font, width) : 0

    /// The height that `other` takes in place of the text, in points.
    function heightOf(other: string): real {
        return contentHeight / Math.max(1, lineCount) * EBType.lineCount(other, font, width);
    }

    font: EBType.font(role, weight, size)
    color: EB.ink
    textFormat: Text.PlainText
    // Tracking is also added behind the last letter, where it would put a centred text off its middle.
    rightPadding: (effectiveHorizontalAlignment === Text.AlignRight ? 0 : slack) - font.letterSpacing
    leftPadding: effectiveHorizontalAlignment === Text.AlignRight ? slack : 0
}
