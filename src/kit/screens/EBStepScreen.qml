import QtQuick
import Embera.Tokens
import Embera.Controls
import Embera.Marks
import Embera.Rows
import Embera.Screens

/// A step of a guide: beside a loud panel with all steps, what the step is about, the rows with what there is to do, and
/// its buttons. Reaches under the window's title bar. What it has no room for scrolls.
Item {
    id: screen

    /// The product's raw string, for everything inside.
    required property string app
    /// The titles of all steps, and the place of this one; see `EBStepList`.
    property alias steps: list.steps
    property alias current: list.current
    property alias kicker: label.text
    property alias title: heading.text
    property alias text: paragraph.text
    /// The longest text that may come to stand there: its height is kept free, so that nothing below moves.
    property string longestText
    /// What stands in the card; rows and the rules between them.
    default property alias rows: card.content
    /// The buttons.
    property alias actions: buttons.data

    EBEnvironment.ebApp: app
    implicitWidth: 560
    implicitHeight: 388

    Rectangle {
        id: panel

        anchors {
            left: parent.left
            top: parent.top
            bottom: parent.bottom
        }
        width: ScreenGeometry.panelWidth
        color: EBEnvironment.loud
        clip: true

        DotField {
            app: screen.app
            size: Qt.size(ScreenGeometry.panelWidth, 388)
            cell: 20
            seed: 8
            density: 0.72
            ramp: 50
            margin: 2
            calm: panel.LayoutMirroring.enabled ? ScreenGeometry.mirroredPanelCalm : ScreenGeometry.panelCalm
        }
        EBStepList {
            id: list

            anchors {
                left: parent.left
                top: parent.top
                leftMargin: 16
                topMargin: 56
            }
            maximumWidth: panel.width - 2 * 16
            onLoud: true // qmllint disable
        }
        Mark {
            anchors {
                left: parent.left
                bottom: parent.bottom
                leftMargin: 16 - 14
                bottomMargin: 16 - 10
            }
            app: screen.app
            size: 118
            color: EBEnvironment.onLoud
            Accessible.ignored: true
        }
    }
    Rectangle {
        anchors {
            left: panel.right
            right: parent.right
            top: parent.top
            bottom: parent.bottom
        }
        color: EB.paper

        ScrollArea {
            anchors.fill: parent
            contentHeight: column.y + column.height + 8

            Column {
                id: column

                anchors {
                    left: parent.left
                    right: parent.right
                    top: parent.top
                    leftMargin: 28
                    rightMargin: 26
                    topMargin: 44
                }
                spacing: 10

                EBLabel {
                    id: label

                    width: parent.width
                }
                EBText {
                    id: heading

                    width: Math.min(300, parent.width)
                    role: "heading"
                    horizontalAlignment: Text.AlignLeft
                    wrapMode: Text.Wrap
                    // Read aloud when the screen comes up; Tab goes on from here.
                    focus: true
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                EBParagraph {
                    id: paragraph

                    width: Math.min(310, parent.width)
                    height: Math.max(implicitHeight, heightOf(screen.longestText))
                    color: EB.inkMuted
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
                Column {
                    width: parent.width
                    topPadding: 8

                    EBGroup {
                        id: card
                    }
                }
                Column {
                    width: parent.width
                    topPadding: 8

                    ActionRow {
                        id: buttons

                        width: parent.width
                    }
                }
            }
        }
    }
}
