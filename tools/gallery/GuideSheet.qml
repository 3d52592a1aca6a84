import Embera.Tokens
import Corvane.Gallery

/// The guide window, which belongs to one product.
GuideScene {
    EBEnvironment.ebApp: "corvane"
}
