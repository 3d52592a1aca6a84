import QtQuick
import Embera.Screens
import Corvane.Onboarding

/// What the product does, and the two ways on.
EBLoudScreen {
    required property OnboardingFlow flow

    app: "corvane"
    counter: flow.kicker("welcome")
    copy: qsTr("Close, minimize and full-screen windows right in Mission Control. Hover a window for its buttons, or use the shortcuts you already know.")
    button: qsTr("Get started")
    arrow: true
    hero: "Corvane"
    seed: 21
    secondary: qsTr("Skip setup")
    onAction: flow.next()
    onSecondaryAction: flow.skipSetup()
}
