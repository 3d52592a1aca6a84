pragma ComponentBehavior: Bound
import QtQuick
import Corvane.Demo
import Corvane.Overlay
import Corvane.Gallery

/// The motions of the practice at fixed instants, from left to right: a window is minimised, the buttons come and go,
/// the chips shake.
Sheet {
    id: sheet

    /// Seconds.
    readonly property list<real> instants: [0, 0.04, 0.08, 0.12, 0.16, 0.2, 0.28, 0.36, 0.5]

    DemoModel {
        id: practice
    }

    Section {
        title: qsTr("Minimised, from 0 to 0.5 seconds")

        Row {
            height: 210
            spacing: 16

            Repeater {
                model: sheet.instants

                FakeWindow {
                    required property real modelData
                    readonly property real share: Course.of(practice.spring, modelData)

                    y: 120 * share
                    width: 128
                    height: 74
                    opacity: 1 - share
                    compact: true
                    app: practice.wins[0].app
                    title: practice.wins[0].title
                    glyph: practice.wins[0].glyph
                }
            }
        }
    }
    Repeater {
        model: [{title: qsTr("The buttons come"), from: 0, to: 1}, {title: qsTr("The buttons go"), from: 1, to: 0}]

        Section {
            id: way

            required property var modelData

            title: modelData.title

            Row {
                topPadding: 14
                leftPadding: 14
                spacing: 16

                Repeater {
                    model: sheet.instants

                    FakeWindow {
                        id: fake

                        required property real modelData
                        readonly property real share: way.modelData.from + (way.modelData.to - way.modelData.from)
                                                      * Course.of(practice.spring, modelData)

                        width: 128
                        height: 74
                        compact: true
                        app: practice.wins[0].app
                        title: practice.wins[0].title
                        glyph: practice.wins[0].glyph

                        ButtonCluster {
                            x: hang.x
                            y: hang.y
                            theme: "classic"
                            diameter: 20
                            spacing: 3
                            showMinimize: true
                            showMaximize: true
                            transformOrigin: Item.Left
                            scale: 0.3 + 0.7 * fake.share
                            opacity: fake.share
                        }
                    }
                }
            }
        }
    }
    Section {
        title: qsTr("The chips shake: every 0.05 seconds")

        Repeater {
            model: [0, 6, 0, 6, 0, 6, 6, 0]

            ShortcutChips {
                required property int modelData

                x: modelData
                model: practice
                shown: ["close", "minimize", "maximize"]
            }
        }
    }
}
