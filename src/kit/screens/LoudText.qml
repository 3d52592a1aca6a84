import QtQuick
import Embera.Tokens

/// A running text in the colour for loud grounds.
EBParagraph {
    color: EBEnvironment.onLoud
}
