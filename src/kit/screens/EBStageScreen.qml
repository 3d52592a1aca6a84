import QtQuick
import Embera.Tokens
import Embera.Controls
import Embera.Rows
import Embera.Screens

/// A step of a guide whose body is a stage of its own: a heading above it, buttons below it. Always 560 × 388 points;
/// reaches under the window's title bar. Where that is not enough the screen scrolls.
Rectangle {
    id: screen

    /// The product's raw string, for everything inside.
    required property string app
    property alias kicker: label.text
    /// Stands opposite the kicker; empty for none.
    property alias counter: count.text
    property alias title: heading.text
    property alias text: paragraph.text
    /// A change of the text is read out: it answers what the person has just done.
    property bool isLive: false
    /// The stage. Content that is to fill it takes `room` as its height.
    default property alias content: stage.data
    /// The buttons, directly below the stage.
    property alias actions: buttons.data
    /// The height that the texts and the buttons leave for the stage, in points.
    readonly property real room: Math.max(0, height - 16 - buttons.height - column.y - stage.y)

    EBEnvironment.ebApp: app
    implicitWidth: 560
    implicitHeight: 388
    width: implicitWidth
    height: implicitHeight
    color: EB.paper

    ScrollArea {
        anchors.fill: parent
        contentHeight: column.y + column.height + 16

        Column {
            id: column

            anchors {
                left: parent.left
                right: parent.right
                top: parent.top
                leftMargin: 28
                rightMargin: 28
                topMargin: 36
            }

            Item {
                width: parent.width
                implicitHeight: Math.max(label.implicitHeight, count.implicitHeight)

                EBLabel {
                    id: label

                    anchors {
                        left: parent.left
                        right: count.visible ? count.left : parent.right
                        rightMargin: count.visible ? 8 : 0
                    }
                }
                EBLabel {
                    id: count

                    anchors.right: parent.right
                    visible: text !== ""
                }
            }
            EBText {
                id: heading

                width: parent.width
                topPadding: 8
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

                width: parent.width
                topPadding: 4
                color: EB.inkMuted
                Accessible.role: screen.isLive ? Accessible.Notification : Accessible.StaticText
                Accessible.name: KeySymbols.spelled(text)
                Accessible.onNameChanged: if (screen.isLive)
                    Announcer.announce(paragraph)

                KeyHelp {
                    text: KeySymbols.keysIn(paragraph.text)
                }
            }
            Item {
                width: parent.width
                implicitHeight: 14
            }
            Item {
                id: stage

                width: parent.width
                implicitHeight: childrenRect.height
            }
            ActionRow {
                id: buttons

                width: parent.width
            }
        }
    }
}
