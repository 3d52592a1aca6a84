pragma ComponentBehavior: Bound
import QtQuick
import Corvane.Overlay

/// The themes to choose from, one tile each. It marks the tile of `themeRaw`, which it never sets itself; choosing a
/// tile, also the marked one, emits `chosen` with its theme's raw string.
Row {
    id: tiles

    readonly property var themes: ButtonChoices.themes
    property string themeRaw
    /// For narrow places: smaller buttons, closer together, and no dot.
    property bool compact: false
    /// The place of the marked tile; -1 when no theme has that raw string.
    readonly property int chosenIndex: themes.findIndex(theme => theme.value === themeRaw)

    signal chosen(themeRaw: string)

    /// Chooses the theme at `index` from the keyboard; a place beyond the ends means the end.
    function choose(index: int) {
        const place = Math.max(0, Math.min(index, repeater.count - 1));
        if (place !== chosenIndex)
            chosen(themes[place].value);
        repeater.itemAt(Math.max(0, chosenIndex)).forceActiveFocus(Qt.TabFocusReason);
    }

    /// Chooses the theme `step` places to the right of the marked one.
    function chooseRight(step: int) {
        choose(chosenIndex + (effectiveLayoutDirection === Qt.RightToLeft ? -step : step));
    }

    width: parent?.width ?? implicitWidth
    spacing: compact ? 6 : 8
    Keys.onLeftPressed: chooseRight(-1)
    Keys.onRightPressed: chooseRight(1)
    Keys.onUpPressed: choose(chosenIndex - 1)
    Keys.onDownPressed: choose(chosenIndex + 1)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
        if (event.accepted)
            choose(event.key === Qt.Key_Home ? 0 : repeater.count - 1);
    }

    Repeater {
        id: repeater

        model: tiles.themes

        delegate: ThemeTile {
            width: (tiles.width - (repeater.count - 1) * tiles.spacing) / repeater.count
            compact: tiles.compact
            isChosen: index === tiles.chosenIndex
            // One stop for the Tab key: the marked tile, or the first one while none is. The focus stays where it is
            // when the choice changes from outside.
            focusPolicy: activeFocus || index === Math.max(0, tiles.chosenIndex) ? Qt.StrongFocus : Qt.ClickFocus
            onClicked: tiles.chosen(modelData.value)
        }
    }
}
