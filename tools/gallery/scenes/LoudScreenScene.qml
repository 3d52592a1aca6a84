import Corvane.Gallery

/// The screen that opens a guide, as large as it is designed.
LoudSheet {}
