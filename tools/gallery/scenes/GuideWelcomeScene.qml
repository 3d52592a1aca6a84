import Corvane.Gallery

/// The guide's first screen.
GuideSheet {
    step: "welcome"
}
