pragma ComponentBehavior: Bound
import QtQuick
import Corvane.Gallery
import Corvane.Overlay

/// The overlay buttons in every theme and size, with each choice of the optional ones, over a window's corner.
Sheet {
    Repeater {
        model: ButtonChoices.themes

        Section {
            id: look

            required property var modelData

            title: modelData.title

            Column {
                spacing: 8

                Repeater {
                    model: ButtonChoices.sizes

                    Row {
                        id: measure

                        required property var modelData

                        spacing: 16

                        Repeater {
                            model: [[false, false], [true, false], [false, true], [true, true]]

                            Item {
                                id: choice

                                required property var modelData

                                width: 136
                                height: 90

                                FakeWindow {
                                    x: 16
                                    y: 16
                                    width: 120
                                    height: 74
                                    compact: true
                                    app: qsTr("Browser")
                                    title: qsTr("Start page")
                                }
                                ButtonCluster {
                                    theme: look.modelData.value
                                    diameter: ButtonChoices.diameter(measure.modelData.value)
                                    spacing: 4
                                    showMinimize: choice.modelData[0]
                                    showMaximize: choice.modelData[1]
                                }
                            }
                        }
                    }
                }
            }
        }
    }
}
