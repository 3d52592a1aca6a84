import Corvane.Shared
import Corvane.Gallery

/// The Layouts page with saved layouts, one of them with a name too long to show, and snapping switched off.
SettingsSheet {
    page: "layouts"
    store: ({
            [Key.layoutsEnabled]: false,
            [Key.layoutsGap]: 6,
            [Key.layoutsSaved]: '[{"created":1,"id":"11111111-1111-4111-8111-111111111111","name":"Work","windows":[{"app":"Browser","bundleID":"b","rect":{"h":1,"w":0.5,"x":0,"y":0},"title":"t"},{"app":"Notes","bundleID":"n","rect":{"h":0.5,"w":0.5,"x":0.5,"y":0},"title":"t"},{"app":"Terminal","bundleID":"t","rect":{"h":0.5,"w":0.5,"x":0.5,"y":0.5},"title":"t"}]},{"created":2,"id":"22222222-2222-4222-8222-222222222222","name":"A layout whose name is longer than its field is wide","windows":[{"app":"Browser","bundleID":"b","rect":{"h":1,"w":1,"x":0,"y":0},"title":"t"}]}]'
        })
}
