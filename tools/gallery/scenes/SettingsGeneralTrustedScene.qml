import Corvane.Shared
import Corvane.Gallery

/// The General page when all is granted.
SettingsSheet {
    page: "general"
    store: ({[Key.agentAccessibilityTrusted]: true, [Key.agentLaunchAtLogin]: true})
}
