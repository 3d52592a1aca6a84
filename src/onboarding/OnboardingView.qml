import QtQuick
import Embera.Tokens
import Corvane.Onboarding

/// The onboarding: one screen at a time, that of the flow's step.
Item {
    id: view

    required property OnboardingFlow flow

    implicitWidth: 560
    implicitHeight: 388
    EBEnvironment.ebApp: "corvane"

    StepHolder {
        flow: view.flow
        step: "welcome"
        sourceComponent: WelcomeStep {
            flow: view.flow
        }
    }
    StepHolder {
        flow: view.flow
        step: "tryIt"
        sourceComponent: TryItStep {
            flow: view.flow
        }
    }
    StepHolder {
        flow: view.flow
        step: "access"
        sourceComponent: AccessStep {
            flow: view.flow
        }
    }
    StepHolder {
        flow: view.flow
        step: "customize"
        sourceComponent: CustomizeStep {
            flow: view.flow
        }
    }
    StepHolder {
        flow: view.flow
        step: "done"
        sourceComponent: DoneStep {
            flow: view.flow
        }
    }
}
