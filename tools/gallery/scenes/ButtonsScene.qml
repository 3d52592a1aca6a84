import QtQuick
import Corvane.Gallery

/// The text button: its quiet variants and its sizes; the first one has the keyboard focus.
Sheet {
    focused: first.atRest

    Section {
        title: qsTr("Primary")

        ButtonStates {
            id: first

            variant: "primary"
            size: "md"
        }
        ButtonStates {
            variant: "primary"
            size: "sm"
        }
        ButtonStates {
            variant: "primary"
            size: "xs"
        }
    }
    Section {
        title: qsTr("Secondary")

        ButtonStates {
            variant: "secondary"
            size: "md"
        }
        ButtonStates {
            variant: "secondary"
            size: "sm"
        }
        ButtonStates {
            variant: "secondary"
            size: "xs"
        }
    }
    Section {
        title: qsTr("Plain")

        ButtonStates {
            variant: "plain"
            size: "md"
        }
        ButtonStates {
            variant: "plain"
            size: "sm"
        }
        ButtonStates {
            variant: "plain"
            size: "xs"
        }
    }
    Section {
        title: qsTr("Mirrored")
        LayoutMirroring.enabled: true
        LayoutMirroring.childrenInherit: true

        ButtonStates {
            variant: "secondary"
            size: "sm"
        }
    }
}
