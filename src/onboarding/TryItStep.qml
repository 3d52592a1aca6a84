import QtQuick
import Embera.Controls
import Embera.Screens
import Corvane.Demo
import Corvane.Onboarding

/// The practice, with the hint that fits what was practised already.
EBStageScreen {
    id: screen

    required property OnboardingFlow flow

    app: "corvane"
    kicker: flow.kicker("tryIt")
    title: qsTr("Give it a try")
    text: flow.hint
    isLive: true

    Item {
        width: parent.width
        implicitHeight: Math.max(screen.room, practice.implicitHeight)

        HandsOnMissionControl {
            id: practice

            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            model: screen.flow.demo
        }
        EBIconButton {
            anchors {
                right: parent.right
                bottom: parent.bottom
                bottomMargin: 14
            }
            glyph: "refresh"
            label: qsTr("Reset windows")
            size: 24
            onClicked: screen.flow.demo.reset()
        }
    }

    actions: [
        ShortcutChips {
            model: screen.flow.demo
            shown: ["close", "minimize", "maximize"]
        },
        EBSpacer { },
        EBButton {
            text: qsTr("Continue")
            size: "sm"
            onClicked: screen.flow.next()
        }
    ]
}
