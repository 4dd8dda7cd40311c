// SPDX-License-Identifier: MIT
#pragma once

#include <QEasingCurve>
#include <cmath>
#include <numbers>

namespace zelk {

/// The progress (0 to 1) of a critically damped spring `seconds` after it starts from rest. `response` is its undamped
/// period in seconds.
inline double springWay(double seconds, double response) {
    if (seconds <= 0) return 0;
    const double turned = 2 * std::numbers::pi / response * seconds;
    return 1 - (1 + turned) * std::exp(-turned);
}

/// The seconds after which the spring looks settled: less than a ten-thousandth of the way remains.
constexpr double springRest(double response) {
    return 2 * response;
}

/// The same curve for an animation that lasts springRest(response).
inline QEasingCurve springEasing() {
    QEasingCurve curve;
    curve.setCustomType([](qreal progress) { return progress < 1 ? springWay(progress * springRest(1), 1) : 1; });
    return curve;
}

}  // namespace zelk
