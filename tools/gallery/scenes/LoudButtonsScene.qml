import QtQuick
import Corvane.Gallery

/// The button on the loud colours of the three products.
Sheet {
    Repeater {
        model: Catalogue.apps

        LoudPanel {
            id: panel

            required property var modelData

            app: modelData.value

            Repeater {
                model: ["md", "sm", "xs"]

                ButtonStates {
                    required property string modelData

                    variant: "onLoud"
                    size: modelData
                }
            }
        }
    }
}
