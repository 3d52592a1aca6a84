import QtQuick

/// A screen's actions beside each other, centred on one line. An `EBSpacer` among them pushes those after it to the
/// trailing edge.
Row {
    id: row

    readonly property var placed: Array.from(children).filter(child => child.visible && !(child instanceof EBSpacer) && child.width > 0)
    /// What the actions leave of the row's width for a spacer, of which there is at most one; in points.
    readonly property real free: Math.max(0, width - placed.reduce((taken, child) => taken + child.width + spacing, 0))

    spacing: 10
    // The one that came is the last.
    onChildrenChanged: if (children.length > 0)
        children[children.length - 1].anchors.verticalCenter = verticalCenter
}
