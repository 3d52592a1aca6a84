import QtQuick
import Embera.Controls
import Corvane.Gallery

/// The search field: empty, filled, too full, disabled, mirrored; one is being typed into.
Sheet {
    keys: ["Tab", "m", "i", "n"]

    Section {
        title: qsTr("Typed into")

        EBSearchField {
            width: 180
            placeholder: qsTr("Search")
        }
    }
    Section {
        title: qsTr("Empty, filled, too full")

        EBSearchField {
            width: 180
            placeholder: qsTr("Search")
        }
        EBSearchField {
            width: 180
            placeholder: qsTr("Search the saved window layouts")
        }
        EBSearchField {
            width: 180
            text: qsTr("menu bar")
        }
        EBSearchField {
            width: 180
            text: qsTr("a text longer than the field is wide")
        }
    }
    Section {
        title: qsTr("Disabled")

        EBSearchField {
            width: 180
            placeholder: qsTr("Search")
            enabled: false
        }
    }
    Section {
        title: qsTr("Mirrored")
        LayoutMirroring.enabled: true
        LayoutMirroring.childrenInherit: true

        EBSearchField {
            width: 180
            placeholder: qsTr("Search")
        }
        EBSearchField {
            width: 180
            text: qsTr("menu bar")
        }
    }
}
