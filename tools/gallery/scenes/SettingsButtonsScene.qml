import Corvane.Shared
import Corvane.Gallery

/// The settings window with its Buttons page, and all three buttons.
SettingsSheet {
    page: "buttons"
    store: ({[Key.showMinimizeButton]: true, [Key.showMaximizeButton]: true})
}
