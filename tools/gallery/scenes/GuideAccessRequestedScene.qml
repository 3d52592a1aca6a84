import Corvane.Gallery

/// The guide's permission step once System Settings was opened.
GuideSheet {
    step: "access"
    accessRequested: true
}
