#pragma once

#include <cmath>
#include <numbers>

/// The position after `time` of an oscillator with that response and damping, released at 0 and pulled to 1.
inline double sprung(double response, double damping, double time)
{
    const double omega = 2 * std::numbers::pi / response;
    const double swing = omega * std::sqrt(1 - damping * damping);
    return 1
        - std::exp(-damping * omega * time)
        * (std::cos(swing * time) + damping * omega / swing * std::sin(swing * time));
}
