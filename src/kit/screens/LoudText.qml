import QtQuick
import Embera.Tokens

/// A running text in the colour for loud grounds.
EBText {
    color: EBEnvironment.onLoud
    horizontalAlignment: Text.AlignLeft
    wrapMode: Text.Wrap
    balanced: true
}
