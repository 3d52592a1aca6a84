pragma ComponentBehavior: Bound
import QtQuick

/// Choices side by side, of which one is chosen: the first whose value equals `selection`, which the row never sets
/// itself. It is one stop for the Tab key; the arrow keys, Home and End choose, which emits `selected`, and take the
/// focus along. What a choice looks like, and that a click chooses it, is its delegate's.
Row {
    id: choices

    /// A list of {value, title}.
    property var options: []
    property var selection
    /// Of the chosen one among the options; -1 when no option has that value.
    readonly property int selectedIndex: options.findIndex(option => option.value === selection)
    property alias delegate: repeater.delegate
    property alias count: repeater.count

    signal selected(value: var)

    /// Whether the Tab key stops at the choice: at the chosen one, or at the first one while none is. The focus stays
    /// where it is when the choice changes from outside.
    function isTabStop(index: int) : bool {
        return index === Math.max(0, selectedIndex);
    }
    /// Chooses the option at `index`; a place beyond the ends means the end.
    function choose(index: int) {
        const place = Math.max(0, Math.min(index, count - 1));
        if (place !== selectedIndex)
            selected(options[place].value);
        repeater.itemAt(Math.max(0, selectedIndex)).forceActiveFocus(Qt.TabFocusReason);
    }
    /// Chooses the option `step` places to the right of the chosen one.
    function chooseRight(step: int) {
        choose(selectedIndex + (effectiveLayoutDirection === Qt.RightToLeft ? -step : step));
    }

    Keys.onLeftPressed: chooseRight(-1)
    Keys.onRightPressed: chooseRight(1)
    Keys.onUpPressed: choose(selectedIndex - 1)
    Keys.onDownPressed: choose(selectedIndex + 1)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
        if (event.accepted)
            choose(event.key === Qt.Key_Home ? 0 : count - 1);
    }

    Repeater {
        id: repeater
        model: choices.options
    }
}
