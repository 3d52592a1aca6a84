import QtQuick
import Corvane.Onboarding

/// The onboarding: one screen at a time, that of the flow's step.
Item {
    id: view

    required property OnboardingFlow flow

    implicitWidth: 560
    implicitHeight: 388
    LayoutMirroring.childrenInherit: true

    StepHolder {
        flow: view.flow
        step: "welcome"
        screen: "WelcomeStep.qml"
    }
    StepHolder {
        flow: view.flow
        step: "tryIt"
        screen: "TryItStep.qml"
    }
    StepHolder {
        flow: view.flow
        step: "access"
        screen: "AccessStep.qml"
    }
    StepHolder {
        flow: view.flow
        step: "customize"
        screen: "CustomizeStep.qml"
    }
    StepHolder {
        flow: view.flow
        step: "done"
        screen: "DoneStep.qml"
    }
}
