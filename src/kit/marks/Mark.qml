import QtQuick
import Embera.Tokens
import Embera.Marks

/// A product's mark, filled in one colour and read aloud by the product's name.
MarkFace {
    app: EBEnvironment.ebApp
    color: EB.ink
    Accessible.role: Accessible.Graphic
    Accessible.name: displayName
    Accessible.ignored: displayName === ""
}
