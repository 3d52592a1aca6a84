import QtQuick
import Embera.Tokens

/// A text at an edge, on as many lines as it takes. Where a single word would be left for the last one, the lines are made
/// about equally long.
EBText {
    id: paragraph

    /// What that takes from the width, in points.
    property real slack: 0

    /// The height that `other` takes in place of the text, in points.
    function heightOf(other: string): real {
        return contentHeight / Math.max(1, lineCount) * EBType.lineCount(other, font, width);
    }
    // Not a binding, nor called when the number of lines changes: that is in the middle of laying out.
    function balance() {
        slack = lineCount > 1 ? width - EBType.balancedWidth(text, font, width) : 0;
    }

    horizontalAlignment: Text.AlignLeft
    wrapMode: Text.Wrap
    rightPadding: (effectiveHorizontalAlignment === Text.AlignRight ? 0 : slack) - font.letterSpacing
    leftPadding: effectiveHorizontalAlignment === Text.AlignRight ? slack : 0
    onWidthChanged: balance()
    onTextChanged: balance()
    onFontChanged: balance()
    Component.onCompleted: balance()
}
