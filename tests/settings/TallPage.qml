import QtQuick
import Embera.Controls

/// A page higher than any screen it is tested on, with a button at each end.
Item {
    implicitHeight: 2400

    EBButton {
        text: "First"
    }
    EBButton {
        anchors.bottom: parent.bottom
        text: "Last"
    }
}
