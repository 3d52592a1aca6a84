import QtQuick
import Embera.Tokens

/// One swing of a shake, evenly fast.
NumberAnimation {
    property: "x"
    duration: Motion.duration(0.05)
}
