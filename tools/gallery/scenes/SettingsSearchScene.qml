import Corvane.Gallery

/// The settings window with a search that finds the page by one of its keywords.
SettingsSheet {
    page: "general"
    keys: ["Tab", "p", "e", "r", "m"]
}
