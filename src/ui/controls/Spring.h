// SPDX-License-Identifier: MIT
#pragma once

class QEasingCurve;

namespace zelk {

/// The progress (0 to 1) of a critically damped spring `seconds` after it starts from rest. `response` is its undamped
/// period in seconds.
double springWay(double seconds, double response);

/// The seconds after which the spring looks settled: less than a ten-thousandth of the way remains.
constexpr double springRest(double response) {
    return 2 * response;
}

/// The same curve for an animation that lasts springRest(response).
QEasingCurve springEasing();

}  // namespace zelk
