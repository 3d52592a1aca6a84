import QtQuick
import Embera.Controls
import Embera.Rows
import Embera.Screens
import Corvane.Onboarding
import Corvane.Onboarding.Tile

/// The permission that the agent needs, with the tile to drag where it cannot float below System Settings. The buttons keep
/// their place when the permission arrives and, where the tile floats, while it is asked for.
EBStepScreen {
    id: screen

    required property OnboardingFlow flow
    readonly property string missing: flow.agentMissing && !flow.trusted ? qsTr("Corvane is not running.") : ""

    app: "corvane"
    steps: flow.steps
    current: 2
    kicker: flow.kicker("access")
    title: qsTr("One permission, then you're done")
    text: flow.trusted ? qsTr("Corvane can now see which window you point at.") : longestText
    longestText: qsTr("macOS asks you first before Corvane can tell which window the pointer is on. Nothing is recorded or sent anywhere.")

    onMissingChanged: announcement.say(missing)

    // Not among the rows, between which there are rules.
    data: Announcement {
        id: announcement
    }

    EBRow {
        glyph: "key"
        title: qsTr("Accessibility")
        detail: screen.missing ? screen.missing
              : screen.flow.trusted ? qsTr("Allowed in System Settings.")
              : screen.flow.accessRequested ? longestDetail
              : qsTr("Opens Privacy & Security in System Settings.")
        longestDetail: screen.flow.carriesTile ? qsTr("Switch on Corvane in the list in System Settings.")
                     : qsTr("Switch on Corvane in the list. Not there? Drag in the tile under System Settings.")

        EBStatus {
            state: screen.flow.trusted ? "allowed" : "waiting"
        }
    }
    // There as soon as there is a list to drop it onto. It stays, so that nothing jumps when the permission arrives.
    DragTile {
        width: parent.width
        visible: screen.flow.carriesTile && screen.flow.accessRequested
        enabled: !screen.flow.trusted
        opacity: enabled ? 1 : KitMetrics.disabledOpacity
        appURL: screen.flow.appURL
        floats: false
    }

    // In a wide face the way back goes to a line of its own. Nothing shows of its padding, which may lie in the margin.
    actions: Flow {
        width: parent.width + 14
        spacing: 10

        EBButton {
            visible: !screen.flow.trusted
            text: screen.missing ? qsTr("Try Again") : screen.flow.accessRequested ? qsTr("Open Again") : qsTr("Open System Settings")
            size: "sm"
            onClicked: screen.flow.requestAccess()
        }
        EBButton {
            visible: !screen.flow.trusted
            text: qsTr("Skip")
            variant: "secondary"
            size: "sm"
            onClicked: screen.flow.next()
        }
        EBButton {
            visible: screen.flow.trusted
            text: qsTr("Continue")
            size: "sm"
            onClicked: screen.flow.next()
        }
        BackButton {
            flow: screen.flow
        }
    }
}
