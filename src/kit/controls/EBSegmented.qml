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
    property var options: []
    property var selection
    /// The place of the highlighted option in the list; -1 when no option has that value.
    readonly property int selectedIndex: options.findIndex(option => option.value === selection)

    signal selected(value: var)

    /// Chooses the option at `index` from the keyboard; a place beyond the ends of the list means the end.
    function choose(index: int) {
        const place = Math.max(0, Math.min(index, options.length - 1));
        if (place !== selectedIndex)
            selected(options[place].value);
        segments.itemAt(Math.max(0, selectedIndex)).forceActiveFocus(Qt.TabFocusReason);
    }

    /// Chooses the option `step` places to the right of the highlighted one.
    function chooseRight(step: int) {
        choose(selectedIndex + (row.effectiveLayoutDirection === Qt.RightToLeft ? -step : step));
    }

    implicitWidth: row.implicitWidth + 2 * row.x
    implicitHeight: row.implicitHeight + 2 * row.y
    color: EB.chip
    opacity: enabled ? 1 : KitMetrics.disabledOpacity
    Accessible.role: Accessible.Grouping
    Accessible.name: label
    Keys.onLeftPressed: chooseRight(-1)
    Keys.onRightPressed: chooseRight(1)
    Keys.onUpPressed: choose(selectedIndex - 1)
    Keys.onDownPressed: choose(selectedIndex + 1)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
        if (event.accepted)
            choose(event.key === Qt.Key_Home ? 0 : options.length - 1);
    }

    Row {
        id: row

        x: 2
        y: 2
        spacing: 2

        Repeater {
            id: segments

            model: control.options

            delegate: Segment {
                ringParent: control
                isOn: index === control.selectedIndex
                // One stop for the Tab key: the chosen segment, or the first one while none is chosen. The focus stays
                // where it is when the choice changes from outside.
                focusPolicy: activeFocus || index === Math.max(0, control.selectedIndex) ? Qt.StrongFocus : Qt.ClickFocus
                onFlipped: control.selected(modelData.value)
            }
        }
    }
}
