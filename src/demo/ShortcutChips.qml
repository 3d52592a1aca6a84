pragma ComponentBehavior: Bound
import QtQuick
import Embera.Controls
import Corvane.Demo

/// The shortcuts that are practised, in a row that shakes when one is pressed over no window. One element for
/// accessibility.
Shake {
    id: chips

    required property DemoModel model
    /// The shortcuts in order, by their case names; any other text is left out.
    property var shown: []
    readonly property var known: shown.filter(hotkey => ShortcutVocabulary.name(hotkey) !== "")

    trigger: model?.nudge ?? 0
    Accessible.role: Accessible.StaticText
    Accessible.name: known.map(hotkey => KeySymbols.spelled(ShortcutVocabulary.keys(hotkey)) + ", "
                               + ShortcutVocabulary.name(hotkey)).join(", ")
    Accessible.ignored: known.length === 0

    Row {
        spacing: 10

        Repeater {
            model: chips.known

            ShortcutChip {
                required property string modelData

                anchors.verticalCenter: parent?.verticalCenter
                hotkey: modelData
                isLit: chips.model?.flash === hotkey
            }
        }
    }
}
