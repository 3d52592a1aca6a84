import QtQuick
import Embera.Controls
import Embera.Rows
import Corvane.Gallery

/// Rows: with and without a disc, with a detail of one line and of more, and with what stands at their trailing edge.
Sheet {
    Section {
        title: qsTr("Texts")
        contentWidth: 400

        // Rules of different insets, so they stand among the rows.
        EBGroup {
            Column {
                width: parent.width

                EBRow {
                    title: qsTr("A title alone")
                }
                EBRule {}
                EBRow {
                    title: qsTr("A title")
                    detail: qsTr("And its detail.")
                }
                EBRule {
                    inset: 16
                }
                EBRow {
                    glyph: "wins"
                    title: qsTr("With a glyph")
                }
                EBRule {
                    inset: 56
                }
                EBRow {
                    glyph: "eye"
                    title: qsTr("With a glyph")
                    detail: qsTr("And a detail that is so long that it goes on in a second line below the first one.")
                }
                EBRule {
                    inset: 16
                }
                EBRow {
                    title: qsTr("A title that is so long that even the whole width of the card is not enough for it")
                    detail: qsTr("And its detail.")
                }
            }
        }
    }
    Section {
        title: qsTr("At the trailing edge")
        contentWidth: 400

        EBGroup {
            EBSwitchRow {
                title: qsTr("A switch")
                detail: qsTr("It is on.")
                isOn: true
            }
            EBSwitchRow {
                glyph: "power"
                title: qsTr("A switch that cannot be flipped")
                detail: qsTr("Its row stays as it is, and the text keeps clear of the switch.")
                enabled: false
            }
            EBRow {
                title: qsTr("A button")

                EBButton {
                    variant: "secondary"
                    size: "xs"
                    text: qsTr("Open")
                }
            }
            EBRow {
                title: qsTr("A status")

                EBStatus {
                    state: "allowed"
                }
            }
            EBRow {
                title: qsTr("A chooser")
                detail: qsTr("Beside it the text wraps.")

                EBSegmented {
                    label: qsTr("Size")
                    options: [{value: "small", title: qsTr("Small")}, {value: "medium", title: qsTr("Medium")}, {value: "large", title: qsTr("Large")}]
                    selection: "small"
                }
            }
            EBRow {
                glyph: "apps"
                title: qsTr("Two buttons")

                EBIconButton {
                    glyph: "undo"
                    label: qsTr("Rename")
                }
                EBIconButton {
                    glyph: "close"
                    label: qsTr("Delete")
                }
            }
        }
    }
    Section {
        title: qsTr("Mirrored")
        contentWidth: 400
        LayoutMirroring.enabled: true
        LayoutMirroring.childrenInherit: true

        EBGroup {
            EBSwitchRow {
                glyph: "power"
                title: qsTr("A switch")
                detail: qsTr("It is on.")
                isOn: true
            }
            EBRow {
                title: qsTr("A status")

                EBStatus {
                    state: "waiting"
                }
            }
        }
    }
}
