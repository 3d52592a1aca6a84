pragma ComponentBehavior: Bound
import QtQuick
import Embera.Controls
import Corvane.Overlay

/// The themes to choose from, one tile each. It marks the tile of `themeRaw`, which it never sets itself; choosing a
/// tile, also the marked one, emits `chosen` with its theme's raw string.
ChoiceRow {
    id: tiles

    property string themeRaw
    /// For narrow places: smaller buttons, closer together, and no dot.
    property bool compact: false

    signal chosen(themeRaw: string)

    width: parent?.width ?? implicitWidth
    spacing: compact ? 6 : 8
    options: ButtonChoices.themes
    selection: themeRaw
    onSelected: value => chosen(value)

    delegate: ThemeTile {
        id: tile

        width: (tiles.width - (tiles.count - 1) * tiles.spacing) / tiles.count
        compact: tiles.compact
        isChosen: index === tiles.selectedIndex
        tabStop: tiles.isTabStop(index)
        onClicked: tiles.chosen(modelData.value)
    }
}
