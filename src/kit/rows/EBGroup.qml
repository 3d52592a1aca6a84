import QtQuick
import Embera.Tokens
import Embera.Controls

/// A card around rows and the rules between them.
ContinuousRectangle {
    default property alias content: rows.data

    implicitWidth: rows.implicitWidth
    implicitHeight: rows.implicitHeight
    width: parent?.width ?? implicitWidth
    radius: 16
    color: EB.surface
    strokeColor: EB.line
    strokeWidth: 1

    Column {
        id: rows

        width: parent.width
    }
}
