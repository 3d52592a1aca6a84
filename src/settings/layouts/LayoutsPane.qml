pragma ComponentBehavior: Bound
import QtQuick
import Embera.Controls
import Embera.Rows
import Corvane.Shared
import Corvane.Settings.Layouts

/// The Layouts page: what the agent does with windows in the overview, and the layouts it has saved. The settings are
/// stored and nothing more; the agent follows the store.
PaneStack {
    id: pane

    readonly property var gaps: [
        {value: 0, title: qsTr("None")},
        {value: 6, title: qsTr("Small")},
        {value: 12, title: qsTr("Large")}
    ]
    readonly property var tips: [
        {title: qsTr("Left or right half"), detail: qsTr("Again: two thirds, then a third."), keys: "⌘← ⌘→"},
        {title: qsTr("Top or bottom half"), detail: qsTr("On a side: a quarter."), keys: "⌘↑ ⌘↓"},
        {title: qsTr("Fill the screen"), detail: "", keys: "⌘↩"},
        {title: qsTr("Put a saved layout back"), detail: "", keys: "⌘1 … ⌘9"}
    ]

    AppStorage {
        id: enabled
        key: Key.layoutsEnabled
    }
    AppStorage {
        id: shelf
        key: Key.layoutsShelf
    }
    AppStorage {
        id: gap
        key: Key.layoutsGap
    }
    AppStorage {
        id: launchApps
        key: Key.layoutsLaunchApps
    }

    EBGroup {
        EBSwitchRow {
            title: qsTr("Snap and arrange windows")
            detail: qsTr("In Mission Control: snap the window under the pointer, compose layouts and put them back.")
            isOn: enabled.value
            onFlipped: isOn => enabled.value = isOn
        }
        EBRule {
            inset: 16
        }
        EBSwitchRow {
            enabled: enabled.value
            title: qsTr("Layouts shelf")
            detail: qsTr("A Layouts handle at the bottom of Mission Control. Point at it to open your layouts and templates.")
            isOn: shelf.value
            onFlipped: isOn => shelf.value = isOn
        }
        EBRule {
            inset: 16
        }
        EBRow {
            enabled: enabled.value
            title: qsTr("Gaps")
            detail: qsTr("Space between arranged windows.")

            EBSegmented {
                label: qsTr("Gaps")
                options: pane.gaps
                selection: gap.value
                onSelected: value => gap.value = value
            }
        }
        EBRule {
            inset: 16
        }
        EBSwitchRow {
            enabled: enabled.value
            title: qsTr("Open apps that aren't running")
            detail: qsTr("When a saved layout is put back.")
            isOn: launchApps.value
            onFlipped: isOn => launchApps.value = isOn
        }
    }
    GroupLabel {
        text: qsTr("Saved layouts")
    }
    SavedLayoutsGroup { }
    GroupLabel {
        text: qsTr("In Mission Control")
    }
    EBGroup {
        Repeater {
            model: pane.tips

            TipRow { }
        }
    }
    EBNote {
        text: qsTr("Point at a window first. Click a layout on the shelf to put its windows back, ⌥-click to delete it. Click a template, then the windows that go in it, or drag a window onto a slot.")
    }
}
