import QtQuick
import Corvane.Gallery

/// The guide's first screen for writing that runs from right to left.
GuideSheet {
    step: "welcome"
    LayoutMirroring.enabled: true
    LayoutMirroring.childrenInherit: true
}
