import QtQuick
import Embera.Tokens
import Embera.Controls
import Embera.Rows
import Corvane.Gallery

/// A whole panel of hand-drawn views, the declarative views of the same kind beside it, and the panel mirrored.
Sheet {
    id: sheet

    readonly property string product: EBEnvironment.displayName.toLowerCase()

    Row {
        spacing: 24

        PanelPicture {
            app: sheet.product
        }
        Column {
            width: 300

            EBRow {
                title: EBEnvironment.displayName
            }
            GroupLabel {
                text: qsTr("Windows")
            }
            Item {
                width: 1
                height: 8
            }
            EBRow {
                EBDisc {
                    glyph: "wins"
                    on: true
                }
                title: qsTr("Overview")
                detail: qsTr("Shows the buttons")
            }
            EBRow {
                glyph: "dock"
                title: qsTr("Dock")
            }
            EBRow {
                title: qsTr("Displays")
                detail: qsTr("Every display has its own overview, and its windows stay where they are.")
            }
            EBRow {
                title: qsTr("Close")

                KeyCap {
                    keys: "⌘W"
                }
                EBSwitch {
                    label: qsTr("Close")
                    isOn: true
                }
            }
            EBRow {
                title: qsTr("Minimize")

                KeyCap {
                    keys: "⌘M"
                }
                EBSwitch {
                    label: qsTr("Minimize")
                }
            }
            Row {
                leftPadding: 16
                topPadding: 6
                bottomPadding: 6
                spacing: 8

                EBButton {
                    text: qsTr("Continue")
                    size: "sm"
                }
                EBButton {
                    text: qsTr("Not Now")
                    variant: "secondary"
                    size: "sm"
                }
            }
            EBRule {}
            Row {
                leftPadding: 16
                topPadding: 6
                spacing: 8

                EBIconButton {
                    glyph: "gear"
                    label: qsTr("Settings")
                }
                EBIconButton {
                    glyph: "info"
                    label: qsTr("About")
                }
                EBIconButton {
                    glyph: "close"
                    label: qsTr("Close")
                }
            }
        }
        PanelPicture {
            app: sheet.product
            mirrored: true
        }
    }
}
