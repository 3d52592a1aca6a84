import QtQuick
import Corvane.Gallery

/// A scene of sections, one below the other, as large as they are.
Scene {
    default property alias sections: column.data

    implicitWidth: column.implicitWidth + 2 * column.x
    implicitHeight: column.implicitHeight + 2 * column.y

    Column {
        id: column

        x: 24
        y: 24
        spacing: 24
    }
}
