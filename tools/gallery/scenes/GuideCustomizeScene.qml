import Corvane.Shared
import Corvane.Gallery

/// The guide's choice of a look.
GuideSheet {
    step: "customize"
    store: ({[Key.showMinimizeButton]: true})
}
