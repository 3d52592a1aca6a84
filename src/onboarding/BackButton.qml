import QtQuick
import Embera.Controls
import Corvane.Onboarding

/// One step back.
EBButton {
    required property OnboardingFlow flow

    text: qsTr("Back")
    variant: "plain"
    size: "sm"
    onClicked: flow.back()
}
