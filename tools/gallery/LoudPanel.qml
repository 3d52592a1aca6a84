import QtQuick
import Embera.Tokens
import Embera.Controls

/// A product's loud colour with something on it.
ContinuousRectangle {
    id: panel

    required property string app
    default property alias content: inside.data

    EBEnvironment.ebApp: app
    implicitWidth: inside.implicitWidth + 2 * inside.x
    implicitHeight: inside.implicitHeight + 2 * inside.y
    radius: 16
    color: EBEnvironment.loud

    Column {
        id: inside

        x: 16
        y: 16
        spacing: 12
    }
}
