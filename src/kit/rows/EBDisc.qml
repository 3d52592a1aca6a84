import QtQuick
import Embera.Tokens
import Embera.Glyphs
import Embera.Controls

/// A glyph in a circle.
ContinuousRectangle {
    id: disc

    property string glyph
    property bool small: false
    property bool on: false

    implicitWidth: small ? KitMetrics.smallDiscDiameter : KitMetrics.discDiameter
    implicitHeight: implicitWidth
    color: on ? EBEnvironment.accent : "transparent"
    strokeColor: EB.lineStrong
    strokeWidth: on ? 0 : 1

    Glyph {
        anchors.fill: parent
        name: disc.glyph
        size: disc.small ? KitMetrics.smallDiscGlyph : KitMetrics.discGlyph
        color: disc.on ? EBEnvironment.onAccent : EB.ink
    }
}
