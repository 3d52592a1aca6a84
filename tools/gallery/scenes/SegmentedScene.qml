import QtQuick
import Embera.Controls
import Corvane.Gallery

/// The chooser over a short list: with each choice, without one, with numbers, disabled, mirrored; one has the focus.
Sheet {
    id: scene

    readonly property var sizes: [{value: "small", title: qsTr("Small")}, {value: "medium", title: qsTr("Medium")}, {value: "large", title: qsTr("Large")}]

    // The chooser itself cannot take the focus, its segments can: the Tab key finds the right one.
    keys: ["Tab"]

    Section {
        title: qsTr("Keyboard focus")

        EBSegmented {
            label: qsTr("Size")
            options: scene.sizes
            selection: "medium"
        }
    }
    Section {
        title: qsTr("First, last, none")

        EBSegmented {
            label: qsTr("Size")
            options: scene.sizes
            selection: "small"
        }
        EBSegmented {
            label: qsTr("Size")
            options: scene.sizes
            selection: "large"
        }
        EBSegmented {
            label: qsTr("Size")
            options: scene.sizes
        }
    }
    Section {
        title: qsTr("Numbers")

        EBSegmented {
            label: qsTr("Gap")
            options: [{value: 0, title: "0"}, {value: 4, title: "4"}, {value: 8, title: "8"}, {value: 12, title: "12"}, {value: 16, title: "16"}]
            selection: 8
        }
    }
    Section {
        title: qsTr("Disabled")

        EBSegmented {
            label: qsTr("Size")
            options: scene.sizes
            selection: "medium"
            enabled: false
        }
    }
    Section {
        title: qsTr("Mirrored")
        LayoutMirroring.enabled: true
        LayoutMirroring.childrenInherit: true

        EBSegmented {
            label: qsTr("Size")
            options: scene.sizes
            selection: "small"
        }
    }
}
