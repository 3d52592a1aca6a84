import Embera.Tokens
import Corvane.Gallery

/// The settings window of the product around it.
SettingsWindowScene {
    app: EBEnvironment.ebApp
}
