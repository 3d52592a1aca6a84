import Corvane.Gallery

/// The guide's permission step before anything was asked for.
GuideSheet {
    step: "access"
}
