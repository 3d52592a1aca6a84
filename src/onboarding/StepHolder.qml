import QtQuick
import Embera.Tokens
import Embera.Controls
import Corvane.Onboarding

/// Makes a step's screen when the step begins and drops it when it has faded out. Two screens cross-fade while the step
/// changes, and only the new one can be used.
Loader {
    id: holder

    required property OnboardingFlow flow
    /// The step's case name.
    required property string step
    /// The file of the step's screen, which is given the flow.
    required property url screen
    readonly property bool isCurrent: flow.step === step

    anchors.fill: parent
    active: isCurrent || opacity > 0
    enabled: isCurrent
    focus: isCurrent
    opacity: isCurrent ? 1 : 0
    EBAccessible.hidden: !isCurrent
    Component.onCompleted: setSource(screen, {flow: flow})

    Behavior on opacity {
        NumberAnimation {
            // The setting counts that the flow began with.
            duration: holder.flow.reduceMotion ? 0 : 250
            easing: Motion.easeInOut
        }
    }
}
