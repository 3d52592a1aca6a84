import Corvane.Shared
import Corvane.Gallery

/// The General page while the login item waits for the person's approval.
SettingsSheet {
    page: "general"
    store: ({[Key.agentLaunchAtLoginNeedsApproval]: true})
}
