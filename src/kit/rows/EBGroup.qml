pragma ComponentBehavior: Bound
import QtQuick
import Embera.Tokens
import Embera.Controls
import Embera.Rows

/// A card around rows, which stand in its middle, with a rule between each two that show.
Item {
    id: card

    default property alias content: rows.data
    /// What is drawn of the card, in points below its upper edge: all of it, unless somebody who knows that it is very
    /// long and what of it is in view says less. The corners are where the drawing ends.
    property real drawnFrom: 0
    property real drawnTo: height

    implicitWidth: rows.implicitWidth
    implicitHeight: rows.implicitHeight
    width: parent?.width ?? implicitWidth

    ContinuousRectangle {
        id: ground

        y: card.drawnFrom
        width: card.width
        height: card.drawnTo - card.drawnFrom
        radius: KitMetrics.cardRadius
        color: EB.surface
    }
    Column {
        id: rows

        width: parent.width
        spacing: KitMetrics.ruleHeight
        // The one that came is the last.
        onChildrenChanged: if (children.length > 0)
            children[children.length - 1].anchors.horizontalCenter = horizontalCenter
        onPositioningComplete: rules.model = Array.from(visibleChildren).filter(row => row.height > 0 && row.y > 0).map(row => row.y)
    }
    Repeater {
        id: rules

        RuleFace {
            required property real modelData

            y: modelData - height
            anchors {
                left: parent?.left
                leftMargin: KitMetrics.rowInset
                right: parent?.right
            }
            height: KitMetrics.ruleHeight
            color: EB.line
        }
    }
    // Over the content, so that nothing in it hides the edge.
    ContinuousRectangle {
        anchors.fill: ground
        radius: ground.radius
        strokeColor: EB.line
        strokeWidth: 1
    }
}
