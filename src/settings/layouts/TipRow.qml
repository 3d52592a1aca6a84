import QtQuick
import Embera.Controls
import Embera.Rows

/// What a key combination does in the overview, below a rule unless it is the first.
Column {
    id: tip

    required property int index
    /// {title, detail, keys}; an empty detail is none.
    required property var modelData

    width: parent?.width ?? implicitWidth

    EBRule {
        visible: tip.index > 0
        inset: 16
    }
    EBRow {
        title: tip.modelData.title
        detail: tip.modelData.detail

        KeyCap {
            keys: tip.modelData.keys
        }
    }
}
