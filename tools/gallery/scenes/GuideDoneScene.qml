import Corvane.Gallery

/// The guide's last screen.
GuideSheet {
    step: "done"
}
