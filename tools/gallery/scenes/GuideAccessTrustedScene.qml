import Corvane.Shared
import Corvane.Gallery

/// The guide's permission step with the permission there.
GuideSheet {
    step: "access"
    store: ({[Key.agentAccessibilityTrusted]: true})
}
