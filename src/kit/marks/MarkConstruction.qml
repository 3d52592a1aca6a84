import QtQuick
import Embera.Tokens
import Embera.Marks

/// A product's mark on its construction grid, with notes on how it is built. It fills the item it is given.
ConstructionDrawing {
    app: EBEnvironment.ebApp
    Accessible.role: Accessible.Graphic
    //: Read aloud; %1 is a product's name.
    Accessible.name: qsTr("The %1 mark drawn on its grid").arg(displayName)
    Accessible.ignored: displayName === ""
}
