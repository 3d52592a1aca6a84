import QtQuick
import Embera.Tokens
import Embera.Controls
import Embera.Rows

/// A hairline across the card.
Item {
    id: rule

    /// How far the line stays away from the leading edge, in points.
    property real inset: 0

    implicitHeight: KitMetrics.ruleHeight
    width: parent?.width ?? implicitWidth

    RuleFace {
        anchors {
            left: parent.left
            leftMargin: rule.inset
            right: parent.right
            top: parent.top
            bottom: parent.bottom
        }
        color: EB.line
    }
}
