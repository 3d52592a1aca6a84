import QtQuick
import Corvane.Gallery

/// The settings window for writing that runs from right to left.
SettingsSheet {
    page: "general"
    LayoutMirroring.enabled: true
    LayoutMirroring.childrenInherit: true
}
