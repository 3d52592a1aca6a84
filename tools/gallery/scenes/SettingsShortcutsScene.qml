import Corvane.Gallery

/// The settings window with its Shortcuts page.
SettingsSheet {
    page: "shortcuts"
}
