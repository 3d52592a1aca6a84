import QtQuick

/// A pane's children, one below the other and 12 points apart.
Column {
    width: parent?.width ?? implicitWidth
    topPadding: 8
    spacing: 12
}
