import QtQuick
import Embera.Controls
import Embera.Rows
import Corvane.Shared
import Corvane.Settings.General

/// The General page: what ties the agent to the desktop. It shows what the store holds, whoever wrote it.
PaneStack {
    id: pane

    AppStorage {
        id: iconHidden
        key: Key.menuBarIconHidden
    }
    AppStorage {
        id: trusted
        key: Key.agentAccessibilityTrusted
    }
    AppStorage {
        id: launchAtLogin
        key: Key.agentLaunchAtLogin
    }
    AppStorage {
        id: loginNeedsApproval
        key: Key.agentLaunchAtLoginNeedsApproval
    }

    EBGroup {
        width: parent.width

        EBSwitchRow {
            enabled: Key.isWritable(Key.agentLaunchAtLogin)
            title: qsTr("Start at login")
            detail: loginNeedsApproval.value ? qsTr("Waiting for your OK in System Settings › General › Login Items.") : qsTr("So the buttons are there whenever you open Mission Control.")
            isOn: launchAtLogin.value || loginNeedsApproval.value
            onFlipped: value => GeneralActions.setLaunchAtLogin(value)
        }
        Loader {
            width: parent.width
            active: loginNeedsApproval.value
            visible: active

            sourceComponent: EBRow {
                title: qsTr("Login Items")
                detail: qsTr("Allow Corvane there to finish.")

                EBButton {
                    variant: "secondary"
                    size: "xs"
                    text: qsTr("Open")
                    onClicked: GeneralActions.openLoginItems()
                }
            }
        }
        EBSwitchRow {
            enabled: Key.isWritable(Key.menuBarIconHidden)
            title: qsTr("Show in the menu bar")
            detail: qsTr("Open Corvane from Applications to come back here.")
            isOn: !iconHidden.value
            onFlipped: value => GeneralActions.setMenuBarIconShown(value)
        }
    }
    EBGroup {
        width: parent.width

        EBRow {
            title: qsTr("Accessibility")
            detail: trusted.value ? qsTr("Corvane can see which window you point at.") : qsTr("Needed to see which window you point at in Mission Control.")

            Loader {
                active: trusted.value
                visible: active
                sourceComponent: EBStatus {
                    state: "allowed"
                }
            }
            EBButton {
                visible: !trusted.value
                variant: "secondary"
                size: "xs"
                text: qsTr("Open Settings")
                onClicked: GeneralActions.requestAccessibility()
            }
        }
        EBRow {
            title: qsTr("Welcome guide")
            detail: qsTr("Try it again in a pretend Mission Control.")

            EBButton {
                variant: "secondary"
                size: "xs"
                text: qsTr("Show Guide")
                onClicked: GeneralActions.showGuide()
            }
        }
    }
}
