import Corvane.Gallery

/// The screen that opens a guide in a window of 900 × 388 points.
LoudSheet {
    implicitWidth: 900
    implicitHeight: 388
}
