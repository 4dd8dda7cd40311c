// SPDX-License-Identifier: MIT
#pragma once

class QEasingCurve;

namespace zelk {

/// The way (0 to 1) that a spring has gone after `seconds`, let go at rest, which takes the shortest way without
/// swinging over: damping fraction 1. `response` is the seconds that one swing of it would take undamped.
double springWay(double seconds, double response);

/// The seconds after which such a spring is there to the eye: less than a ten-thousandth of the way is left.
constexpr double springRest(double response) {
    return 2 * response;
}

/// The same as the easing of an animation that takes springRest of any response.
QEasingCurve springEasing();

}  // namespace zelk
