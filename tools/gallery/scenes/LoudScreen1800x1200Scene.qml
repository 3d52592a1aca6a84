import Corvane.Gallery

/// The screen that opens a guide in a window of 1800 × 1200 points.
LoudSheet {
    implicitWidth: 1800
    implicitHeight: 1200
}
