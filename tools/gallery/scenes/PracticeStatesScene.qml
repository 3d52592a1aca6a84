pragma ComponentBehavior: Bound
import QtQuick
import Corvane.Demo
import Corvane.Overlay
import Corvane.Gallery

/// The pretend windows in every state: hovered in each size and theme, with all buttons or with Close alone, minimised,
/// closed, hidden and full screen; and the chips, one of them lit.
Sheet {
    keys: ["Tab"]

    DemoModel {
        id: hovered

        Component.onCompleted: enter(0)
    }
    DemoModel {
        id: full

        Component.onCompleted: {
            enter(5);
            apply("maximize", 5);
        }
    }
    DemoModel {
        id: practised

        Component.onCompleted: {
            apply("minimize", 1);
            apply("close", 2);
            apply("maximize", 3);
            apply("hide", 4);
        }
    }
    DemoModel {
        id: pulsed

        Component.onCompleted: apply("minimize", 1)
    }
    DemoModel {
        id: still
    }

    Section {
        title: qsTr("Hovered, in every theme and size; the first has the keyboard focus")

        Column {
            topPadding: 16
            leftPadding: 16
            spacing: 28

            Repeater {
                model: ButtonChoices.sizes

                Row {
                    id: measure

                    required property var modelData

                    spacing: 28

                    Repeater {
                        model: ButtonChoices.themes

                        DemoCell {
                            required property var modelData

                            model: hovered
                            win: hovered.wins[0]
                            theme: modelData.value
                            size: measure.modelData.value
                            showMinimize: true
                            showMaximize: true
                        }
                    }
                }
            }
        }
    }
    Section {
        title: qsTr("Close alone; full screen and hovered")

        Row {
            topPadding: 16
            leftPadding: 16
            spacing: 28

            DemoCell {
                model: hovered
                win: hovered.wins[0]
                theme: "classic"
                size: "medium"
            }
            DemoCell {
                model: full
                win: full.wins[5]
                theme: "classic"
                size: "medium"
            }
        }
    }
    Section {
        title: qsTr("Second minimised, third closed, fourth full screen, fifth hidden")
        contentWidth: 504

        HandsOnMissionControl {
            model: practised
        }
    }
    Section {
        title: qsTr("Every shortcut, none lit, and one lit")

        ShortcutChips {
            model: still
            shown: ["close", "closeAll", "minimize", "maximize", "hide", "hideOthers", "kill"]
        }
        ShortcutChips {
            model: pulsed
            shown: ["close", "minimize", "maximize"]
        }
    }
}
