import QtQuick
import QtQuick.Templates as T
import Embera.Tokens
import Embera.Controls

/// A chooser over a short list of values. It highlights the first option whose value equals `selection`, which it
/// never sets itself; choosing an option emits `selected` with its value.
T.Control {
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

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: 2
    opacity: enabled ? 1 : 0.4
    Accessible.role: Accessible.Grouping
    Accessible.name: label
    Keys.onLeftPressed: choose(selectedIndex + (mirrored ? 1 : -1))
    Keys.onRightPressed: choose(selectedIndex + (mirrored ? -1 : 1))
    Keys.onUpPressed: choose(selectedIndex - 1)
    Keys.onDownPressed: choose(selectedIndex + 1)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
        if (event.accepted)
            choose(event.key === Qt.Key_Home ? 0 : options.length - 1);
    }

    background: ContinuousRectangle {
        id: capsule

        color: EB.chip
    }
    contentItem: Row {
        spacing: 2

        Repeater {
            id: segments

            model: control.options

            delegate: Segment {
                ringParent: capsule
                isOn: index === control.selectedIndex
                // One stop for the Tab key: the chosen segment, or the first one while none is chosen.
                focusPolicy: index === Math.max(0, control.selectedIndex) ? Qt.StrongFocus : Qt.ClickFocus
                onFlipped: control.selected(modelData.value)
            }
        }
    }
}
