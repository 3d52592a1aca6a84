pragma ComponentBehavior: Bound
import QtQuick
import Embera.Tokens
import Embera.Controls

/// A chooser over a short list of values. It highlights the first option whose value equals `selection`, which it
/// never sets itself; choosing an option emits `selected` with its value.
ContinuousRectangle {
    id: control

    /// The name for accessibility; it is not drawn.
    property string label
    /// A list of {value, title}.
    property alias options: segments.options
    property alias selection: segments.selection
    /// The place of the highlighted option in the list; -1 when no option has that value.
    readonly property alias selectedIndex: segments.selectedIndex

    signal selected(value: var)

    implicitWidth: segments.implicitWidth + 2 * segments.x
    implicitHeight: segments.implicitHeight + 2 * segments.y
    color: EB.chip
    opacity: enabled ? 1 : KitMetrics.disabledOpacity
    Accessible.role: Accessible.Grouping
    Accessible.name: label

    ChoiceRow {
        id: segments

        x: 2
        y: 2
        spacing: 2
        onSelected: value => control.selected(value)

        delegate: Segment {
            id: segment

            ringParent: control
            isOn: index === segments.selectedIndex
            tabStop: segments.isTabStop(index)
            onFlipped: control.selected(modelData.value)
        }
    }
}
