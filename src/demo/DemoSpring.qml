import QtQuick
import Embera.Tokens
import Corvane.Demo

/// A change that moves with the model's spring of that moment, from wherever it is.
NumberAnimation {
    required property DemoModel model

    duration: EB.reduceMotion ? 0 : Motion.duration(model?.spring.seconds ?? 0)
    easing: model?.spring.easing ?? Motion.easeOut
}
