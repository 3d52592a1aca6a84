import QtQuick
import Embera.Tokens
import Embera.Controls
import Embera.Marks
import Embera.Rows
import Embera.Screens

/// What an About window shows: how the mark is drawn, the product with its version and what it does, and where to go
/// from here. Made for 460 × 380 points; reaches under the window's title bar.
Rectangle {
    id: screen

    /// The product's raw string, for everything inside.
    required property string app
    /// The version as it is to be read.
    property alias version: versionText.text
    property alias blurb: paragraph.text
    /// Whether there is a button to check for updates.
    property bool offersUpdates: false
    /// The product's page on the web, which the desktop opens; empty for none.
    property url website

    /// The person asks whether there is a newer version.
    signal checkForUpdates

    EBEnvironment.ebApp: app
    LayoutMirroring.childrenInherit: true
    implicitWidth: 460
    implicitHeight: 380
    color: EB.paper

    EBWell {
        id: well

        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            leftMargin: 24
            rightMargin: 24
            topMargin: 40
        }
        height: 116

        MarkConstruction {
            anchors.fill: parent
            app: screen.app
        }
    }
    Column {
        anchors {
            left: parent.left
            right: parent.right
            top: well.bottom
            leftMargin: 26
            rightMargin: 26
            topMargin: 14
        }
        spacing: 8

        EBText {
            width: parent.width
            text: EBEnvironment.displayName
            role: "title"
            horizontalAlignment: Text.AlignLeft
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        EBText {
            id: versionText

            width: parent.width
            role: "caption"
            color: EB.inkMuted
            horizontalAlignment: Text.AlignLeft
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        EBParagraph {
            id: paragraph

            width: parent.width
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
    ActionRow {
        anchors {
            left: parent.left
            right: parent.right
            bottom: parent.bottom
            leftMargin: 26
            rightMargin: 26
            bottomMargin: 14
        }

        EBButton {
            variant: "secondary"
            size: "sm"
            text: qsTr("Check for Updates")
            visible: screen.offersUpdates
            onClicked: screen.checkForUpdates()
        }
        EBButton {
            variant: "secondary"
            size: "sm"
            text: qsTr("Website ↗︎")
            visible: String(screen.website) !== ""
            onClicked: WebPage.open(screen.website)
        }
        EBSpacer {}
        EBText {
            text: qsTr("Made by Vexmoor")
            role: "caption"
            color: EB.inkMuted
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
