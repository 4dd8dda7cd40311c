// SPDX-License-Identifier: MIT
#include "ui/controls/Spring.h"

#include <QEasingCurve>
#include <cmath>
#include <numbers>

namespace zelk {

double springWay(double seconds, double response) {
    if (seconds <= 0) return 0;
    const double turned = 2 * std::numbers::pi / response * seconds;
    return 1 - (1 + turned) * std::exp(-turned);
}

QEasingCurve springEasing() {
    QEasingCurve curve;
    curve.setCustomType([](qreal progress) { return progress < 1 ? springWay(progress * springRest(1), 1) : 1; });
    return curve;
}

}  // namespace zelk
