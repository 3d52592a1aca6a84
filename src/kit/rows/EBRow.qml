import QtQuick
import Embera.Controls
import Embera.Rows

/// A row of a group, one element for accessibility that contains what stands in it.
EBRowContent {
    minHeight: KitMetrics.rowHeight
    Accessible.role: Accessible.Grouping
    Accessible.name: title
    Accessible.description: KeySymbols.spelled(detail)
}
