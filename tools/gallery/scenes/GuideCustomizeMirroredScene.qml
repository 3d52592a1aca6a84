import QtQuick
import Corvane.Gallery

/// The guide's choice of a look for writing that runs from right to left.
GuideSheet {
    step: "customize"
    LayoutMirroring.enabled: true
    LayoutMirroring.childrenInherit: true
}
