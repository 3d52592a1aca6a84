pragma ComponentBehavior: Bound
import QtQuick
import Embera.Tokens
import Embera.Controls
import Embera.Rows

/// A card around rows, which stand in its middle, with a rule between each two that show.
ContinuousRectangle {
    id: card

    default property alias content: rows.data

    implicitWidth: rows.implicitWidth
    implicitHeight: rows.implicitHeight
    width: parent?.width ?? implicitWidth
    radius: KitMetrics.cardRadius
    color: EB.surface

    Column {
        id: rows

        width: parent.width
        spacing: KitMetrics.ruleHeight
        onChildrenChanged: Array.from(children).forEach(child => child.anchors.horizontalCenter = horizontalCenter)
        onPositioningComplete: rules.model = Array.from(visibleChildren).filter(row => row.height > 0 && row.y > 0).map(row => row.y)
    }
    Repeater {
        id: rules

        EBRule {
            required property real modelData

            y: modelData - height
            inset: KitMetrics.rowInset
        }
    }
    // Over the content, so that nothing in it hides the edge.
    ContinuousRectangle {
        anchors.fill: parent
        radius: card.radius
        strokeColor: EB.line
        strokeWidth: 1
    }
}
