import QtQuick

/// A pane's children, one below the other and 12 points apart.
Column {
    /// What of the pane is in view, in points below its upper edge. A pane that scrolls is told by whoever scrolls it; any
    /// other begins at the top of its window.
    property real viewTop: 0
    property real viewBottom: Window.height

    width: parent?.width ?? implicitWidth
    topPadding: 8
    spacing: 12
}
