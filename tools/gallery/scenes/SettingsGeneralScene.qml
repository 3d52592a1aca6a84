import Corvane.Gallery

/// The settings window as it first opens.
SettingsSheet {
    page: "general"
}
