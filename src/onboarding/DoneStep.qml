import QtQuick
import Embera.Screens
import Corvane.Onboarding

/// How the window overview is opened, and whether the agent starts at login.
EBLoudScreen {
    required property OnboardingFlow flow
    readonly property string howTo: qsTr("Swipe up with three fingers or press F3 to open Mission Control, then hover any window.")

    app: "corvane"
    counter: flow.kicker("done")
    copy: flow.launchAtLogin ? howTo + qsTr(" Corvane starts at login.") : howTo
    button: qsTr("Open Mission Control")
    arrow: true
    hero: qsTr("Ready")
    // With this one the texts stay clear of dots in wide fonts too.
    seed: 5
    secondary: flow.launchAtLogin ? qsTr("Don't start at login") : qsTr("Not now")
    onAction: flow.finishSetup(flow.launchAtLogin, true)
    onSecondaryAction: flow.finishSetup(false, false)
}
