import Corvane.Gallery

/// The settings window with its Layouts page before the first layout is saved.
SettingsSheet {
    page: "layouts"
}
