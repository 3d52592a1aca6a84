import QtQuick
import Embera.Rows

/// A row of a group, one element for accessibility that contains what stands in it.
EBRowContent {
    minHeight: 40
    Accessible.role: Accessible.Grouping
    Accessible.name: title
    Accessible.description: detail
}
