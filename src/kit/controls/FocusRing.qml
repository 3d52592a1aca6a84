import QtQuick
import QtQuick.Templates as T
import Embera.Tokens
import Embera.Controls

/// The ring around a control that the keyboard has brought the focus to: 2 points thick, 2 points outside the shape
/// it is put into. It takes no part in the layout.
ContinuousRectangle {
    id: ring

    /// Whose focus it shows.
    required property T.Control control

    anchors.fill: parent
    anchors.margins: -(KitMetrics.ringGap + KitMetrics.ringWidth)
    strokeColor: EBEnvironment.accent
    strokeWidth: KitMetrics.ringWidth
    visible: control.visualFocus
}
