import QtQuick
import Corvane.Gallery

/// The guide's permission step for writing that runs from right to left.
GuideSheet {
    step: "access"
    LayoutMirroring.enabled: true
    LayoutMirroring.childrenInherit: true
}
