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
        id: storedEnabled
        key: Key.layoutsEnabled
    }
    AppStorage {
        id: storedShelf
        key: Key.layoutsShelf
    }
    AppStorage {
        id: storedGap
        key: Key.layoutsGap
    }
    AppStorage {
        id: storedLaunchApps
        key: Key.layoutsLaunchApps
    }

    EBGroup {
        EBSwitchRow {
            enabled: Key.isWritable(Key.layoutsEnabled)
            title: qsTr("Snap and arrange windows")
            detail: qsTr("In Mission Control: snap the window under the pointer, compose layouts and put them back.")
            isOn: storedEnabled.value
            onFlipped: isOn => storedEnabled.value = isOn
        }
        EBSwitchRow {
            enabled: storedEnabled.value && Key.isWritable(Key.layoutsShelf)
            title: qsTr("Layouts shelf")
            detail: qsTr("A Layouts handle at the bottom of Mission Control. Point at it to open your layouts and templates.")
            isOn: storedShelf.value
            onFlipped: isOn => storedShelf.value = isOn
        }
        EBRow {
            enabled: storedEnabled.value && Key.isWritable(Key.layoutsGap)
            title: qsTr("Gaps")
            detail: qsTr("Space between arranged windows.")

            EBSegmented {
                label: qsTr("Gaps")
                options: pane.gaps
                selection: storedGap.value
                onSelected: value => storedGap.value = value
            }
        }
        EBSwitchRow {
            enabled: storedEnabled.value && Key.isWritable(Key.layoutsLaunchApps)
            title: qsTr("Open apps that aren't running")
            detail: qsTr("When a saved layout is put back.")
            isOn: storedLaunchApps.value
            onFlipped: isOn => storedLaunchApps.value = isOn
        }
    }
    GroupLabel {
        text: qsTr("Saved layouts")
    }
    SavedLayouts {
        enabled: Key.isWritable(Key.layoutsSaved)
        viewTop: pane.viewTop - y
        viewBottom: pane.viewBottom - y
    }
    GroupLabel {
        text: qsTr("In Mission Control")
    }
    EBGroup {
        Repeater {
            model: pane.tips

            EBRow {
                id: tip

                /// {title, detail, keys}; an empty detail is none.
                required property var modelData

                title: modelData.title
                detail: modelData.detail

                KeyCap {
                    keys: tip.modelData.keys
                }
            }
        }
    }
    EBNote {
        text: qsTr("Point at a window first. Click a layout on the shelf to put its windows back, ⌥-click to delete it. Click a template, then the windows that go in it, or drag a window onto a slot.")
    }
}
