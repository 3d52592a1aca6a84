import Corvane.Gallery

/// The guide's permission step with the tile in it, on a desktop that does not tell where System Settings stands.
GuideSheet {
    step: "access"
    accessRequested: true
    knowsWindows: false
}
