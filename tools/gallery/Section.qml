import QtQuick
import Embera.Rows

/// Something the scene shows, with its title above it. It is `contentWidth` points wide, or as wide as what it contains
/// while that is 0.
Column {
    id: section

    property string title
    property real contentWidth: 0
    default property alias content: inside.data

    spacing: 12

    EBLabel {
        text: section.title
    }
    Column {
        id: inside

        width: section.contentWidth > 0 ? section.contentWidth : implicitWidth
        spacing: 12
    }
}
