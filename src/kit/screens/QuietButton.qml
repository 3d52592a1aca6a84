import QtQuick
import Embera.Controls

/// The second action of a loud screen: nothing but its title.
Pressable {
    id: button

    implicitWidth: implicitContentWidth
    implicitHeight: implicitContentHeight

    contentItem: LoudText {
        text: button.text
        role: "small"
        opacity: 0.8
    }

    FocusRing {
        control: button
        radius: 6
        loud: true
    }
}
