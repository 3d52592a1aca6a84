import Corvane.Shared
import Corvane.Gallery

/// The Layouts page after a layout was deleted, while the name of the other one is typed over.
SettingsSheet {
    page: "layouts"
    // Past the search, the pages and the four settings to the button that deletes the first layout, then from that of the
    // next one back to its name.
    keys: ["Tab", "Tab", "Tab", "Tab", "Tab", "Tab", "Tab", "Tab", "Space", "Backtab", "End", "s"]
    store: ({
            [Key.layoutsSaved]: '[{"created":1,"id":"11111111-1111-4111-8111-111111111111","name":"Work","windows":[]},{"created":2,"id":"22222222-2222-4222-8222-222222222222","name":"Play","windows":[{"app":"Browser","bundleID":"b","rect":{"h":1,"w":0.5,"x":0,"y":0},"title":"t"},{"app":"Notes","bundleID":"n","rect":{"h":1,"w":0.5,"x":0.5,"y":0},"title":"t"}]}]'
        })
}
