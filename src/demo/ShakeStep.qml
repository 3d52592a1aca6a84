import QtQuick
import Embera.Tokens

/// One swing of a shake, evenly fast.
NumberAnimation {
    property: "x"
    // Asked anew when the wish for less motion changes: a shake that was wished away may be wished back.
    duration: EB.reduceMotion ? 0 : Motion.duration(0.05)
}
