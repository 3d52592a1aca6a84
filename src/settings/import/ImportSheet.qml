pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Embera.Tokens
import Embera.Controls
import Embera.Rows
import Corvane.Settings.Import

/// Over a window: a ring while a file may be dropped; once it is, what it would change, and whether the person wants that.
FocusScope {
    id: sheet

    /// Null until a file is dropped.
    property ImportOffer offer: null
    readonly property var changes: offer ? offer.changes : []
    /// Between the card and the edges of a window that is low, in points.
    readonly property int margin: 16

    signal accepted
    signal cancelled

    /// To be called once the offer is there.
    function begin() {
        (importButton.enabled ? importButton : cancelButton).forceActiveFocus(Qt.OtherFocusReason);
        Announcer.announce(title);
    }

    anchors.fill: parent
    LayoutMirroring.childrenInherit: true
    Keys.onEscapePressed: cancelled()
    Keys.onUpPressed: list.scrollBy(-40)
    Keys.onDownPressed: list.scrollBy(40)
    // The search behind must not take the focus.
    Keys.onShortcutOverride: event => event.accepted = event.matches(StandardKey.Find)

    ContinuousRectangle {
        anchors {
            fill: parent
            margins: 4
        }
        visible: !sheet.offer
        radius: 12
        strokeColor: EBEnvironment.accent
        strokeWidth: 2
    }
    Rectangle {
        anchors.fill: parent
        visible: sheet.offer
        color: EB.paper
        opacity: 0.6

        // What lies behind takes no clicks, and no pointer.
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
            hoverEnabled: true
            onWheel: wheel => list.scrollBy(-wheel.angleDelta.y / 2)
        }
    }
    ContinuousRectangle {
        id: card

        anchors.centerIn: parent
        visible: sheet.offer
        width: 400
        height: Math.min(column.implicitHeight + 2 * 24, sheet.height - 2 * sheet.margin)
        radius: 22
        color: EB.paper
        strokeColor: EB.lineStrong
        strokeWidth: 1
        Accessible.role: Accessible.Dialog
        Accessible.name: title.text
        Accessible.description: file.text

        Column {
            id: column

            anchors {
                left: parent.left
                right: parent.right
                top: parent.top
                margins: 24
            }
            spacing: 12

            Column {
                width: parent.width
                spacing: 2

                EBText {
                    id: title

                    width: parent.width
                    role: "heading"
                    horizontalAlignment: Text.AlignLeft
                    wrapMode: Text.Wrap
                    text: sheet.changes.length > 0 ? qsTr("Import these settings?") : qsTr("Nothing to import")
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                EBText {
                    id: file

                    width: parent.width
                    role: "caption"
                    color: EB.inkMuted
                    horizontalAlignment: Text.AlignLeft
                    elide: Text.ElideMiddle
                    text: sheet.offer ? sheet.offer.fileName : ""
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }
            EBParagraph {
                width: parent.width
                visible: sheet.changes.length === 0
                text: qsTr("Everything in this file is set already.")
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            Flickable {
                id: list

                function scrollBy(distance: real) {
                    contentY = Math.max(0, Math.min(contentY + distance, contentHeight - height));
                }

                width: parent.width
                visible: sheet.changes.length > 0
                height: Math.min(contentHeight, sheet.height - 2 * sheet.margin - 2 * 24 - 3 * column.spacing - title.parent.height - buttons.height - (failure.visible ? failure.height + column.spacing : 0))
                contentHeight: group.implicitHeight
                clip: contentHeight > height
                interactive: clip
                boundsBehavior: Flickable.StopAtBounds

                T.ScrollBar.vertical: T.ScrollBar {
                    width: 10
                    padding: 2
                    visible: list.clip
                    interactive: true
                    contentItem: Rectangle {
                        radius: width / 2
                        color: EB.lineStrong
                    }
                }
                EBGroup {
                    id: group

                    Repeater {
                        model: sheet.changes

                        EBRow {
                            id: row

                            /// {title, before, after}
                            required property var modelData

                            title: modelData.title
                            //: %1 is the value that a setting has before an import.
                            detail: qsTr("Now: %1").arg(modelData.before)

                            EBText {
                                width: Math.min(implicitWidth, 140)
                                role: "bodyStrong"
                                elide: Text.ElideRight
                                text: row.modelData.after
                                Accessible.role: Accessible.StaticText
                                Accessible.name: text
                            }
                        }
                    }
                }
            }
            // Read out whenever it comes up.
            EBParagraph {
                id: failure

                width: parent.width
                visible: text !== ""
                role: "caption"
                text: sheet.offer ? sheet.offer.failure : ""
                Accessible.role: Accessible.Notification
                Accessible.name: text
            }
            Row {
                id: buttons

                anchors.right: parent.right
                spacing: 8

                EBButton {
                    id: cancelButton

                    variant: "secondary"
                    size: "sm"
                    text: qsTr("Cancel")
                    KeyNavigation.tab: importButton.enabled ? importButton : cancelButton
                    KeyNavigation.backtab: importButton.enabled ? importButton : cancelButton
                    onClicked: sheet.cancelled()
                }
                EBButton {
                    id: importButton

                    size: "sm"
                    enabled: sheet.changes.length > 0
                    text: qsTr("Import")
                    KeyNavigation.tab: cancelButton
                    KeyNavigation.backtab: cancelButton
                    onClicked: sheet.accepted()
                }
            }
        }
    }
}
