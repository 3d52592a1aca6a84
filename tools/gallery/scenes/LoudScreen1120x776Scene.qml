import Corvane.Gallery

/// The screen that opens a guide in a window of 1120 × 776 points.
LoudSheet {
    implicitWidth: 1120
    implicitHeight: 776
}
