import QtQuick
import Embera.Tokens
import Corvane.Demo

/// Animates a change with the model's spring of that moment, from the current value.
NumberAnimation {
    required property DemoModel model

    duration: EB.reduceMotion ? 0 : Motion.duration(model?.spring.seconds ?? 0)
    easing: model?.spring.easing ?? Motion.easeOut
}
