#include "Motion.h"

#include "Platform.h"

#include <QPointF>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

struct Oscillator {
    qreal frequency;
    qreal damping;

    struct State {
        qreal position;
        qreal velocity;
    };

    // The distance still to go and its derivative solve d'' + 2 ζω d' + ω² d = 0 from d = 1, d' = 0.
    State at(qreal time) const
    {
        const qreal decay = damping * frequency;
        const qreal fade = std::exp(-decay * time);
        const qreal square = frequency * frequency * (1 - damping * damping);
        if (std::abs(square) < 1e-9 * frequency * frequency)
            return {1 - fade * (1 + decay * time), fade * decay * decay * time};
        if (square > 0) {
            const qreal swing = std::sqrt(square);
            const qreal sine = std::sin(swing * time);
            return {1 - fade * (std::cos(swing * time) + decay / swing * sine),
                    fade * frequency * frequency / swing * sine};
        }
        // Written with the two decay rates: the hyperbolic functions would overflow late in the course.
        const qreal spread = std::sqrt(-square);
        const qreal slow = std::exp((spread - decay) * time);
        const qreal fast = std::exp((-spread - decay) * time);
        return {1 - ((slow + fast) + decay / spread * (slow - fast)) / 2,
                frequency * frequency / spread * (slow - fast) / 2};
    }

    // How fast the slower part of the motion dies down, per second.
    qreal decay() const
    {
        const qreal overdamping = damping > 1 ? std::sqrt(damping * damping - 1) : 0;
        return frequency * (damping - overdamping);
    }

    // When the largest distance that can still occur falls below a thousandth.
    qreal settling() const
    {
        constexpr qreal rest = 0.001;
        if (damping < 1)
            return std::log(1 / (rest * std::sqrt(1 - damping * damping))) / (damping * frequency);
        qreal late = 1 / frequency;
        while (1 - at(late).position > rest)
            late *= 1.05;
        return late;
    }
};

// An easing curve of Qt has room for ten pieces; with more it writes beyond its memory.
constexpr int pieces = 10;

// The moments where the pieces meet: they grow longer as the motion dies down.
qreal joint(const Oscillator &oscillator, int number, qreal seconds)
{
    const qreal rate = oscillator.decay() / 4;
    return -std::log(1 - qreal(number) / pieces * (1 - std::exp(-rate * seconds))) / rate;
}

// Cubics through the joints with the right slopes there, which follow the oscillator to half a hundredth.
QEasingCurve sampled(const Oscillator &oscillator, qreal seconds)
{
    QEasingCurve curve(QEasingCurve::BezierSpline);
    qreal start = 0;
    Oscillator::State from = oscillator.at(0);
    for (int piece = 1; piece <= pieces; ++piece) {
        const bool last = piece == pieces;
        const qreal end = last ? seconds : joint(oscillator, piece, seconds);
        const Oscillator::State to = last ? Oscillator::State{1, 0} : oscillator.at(end);
        const qreal third = (end - start) / 3;
        curve.addCubicBezierSegment(QPointF((start + third) / seconds, from.position + from.velocity * third),
                                    QPointF((end - third) / seconds, to.position - to.velocity * third),
                                    QPointF(last ? 1 : end / seconds, to.position));
        start = end;
        from = to;
    }
    return curve;
}

QEasingCurve bezier(QPointF first, QPointF second)
{
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment(first, second, QPointF(1, 1));
    return curve;
}

}

int Motion::duration(qreal seconds)
{
    if (!(seconds > 0) || !std::isfinite(seconds) || Platform::current().appearance().shouldReduceMotion())
        return 0;
    return qRound(seconds * 1000);
}

QEasingCurve Motion::easeOut()
{
    return bezier(QPointF(0, 0), QPointF(0.58, 1));
}

QEasingCurve Motion::easeInOut()
{
    return bezier(QPointF(0.42, 0), QPointF(0.58, 1));
}

MotionSpring Motion::spring(qreal response, qreal dampingFraction)
{
    if (!(response > 0) || !std::isfinite(response) || std::isnan(dampingFraction))
        return {};
    const Oscillator oscillator{2 * std::numbers::pi / response, std::clamp(dampingFraction, 0.3, 1.3)};
    const qreal seconds = oscillator.settling();
    return {sampled(oscillator, seconds), seconds};
}
