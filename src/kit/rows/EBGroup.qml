import QtQuick
import Embera.Tokens
import Embera.Controls

/// A card around rows and the rules between them.
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
    }
    // Over the content, so that nothing in it hides the edge.
    ContinuousRectangle {
        anchors.fill: parent
        radius: card.radius
        strokeColor: EB.line
        strokeWidth: 1
    }
}
