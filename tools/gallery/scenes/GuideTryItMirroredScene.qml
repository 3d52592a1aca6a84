import QtQuick
import Corvane.Gallery

/// The guide's practice for writing that runs from right to left.
GuideSheet {
    step: "tryIt"
    LayoutMirroring.enabled: true
    LayoutMirroring.childrenInherit: true
}
