// SPDX-License-Identifier: MIT
#include "ui/screens/clutter/AgeText.h"

#include <QCoreApplication>

namespace zelk {

QString ageText(TimePoint modified, TimePoint now) {
    constexpr qint64 daysPerMonth = 30;
    constexpr qint64 daysPerYear = 365;
    const double exact = (now - modified) / secondsPerDay;
    if (!(exact >= 1)) return QCoreApplication::translate("AgeText", "today");
    const auto days = static_cast<qint64>(exact);
    if (days < daysPerMonth) return QCoreApplication::translate("AgeText", "%1d ago").arg(days);
    if (days < daysPerYear) return QCoreApplication::translate("AgeText", "%1mo ago").arg(days / daysPerMonth);
    return QCoreApplication::translate("AgeText", "%1y ago").arg(days / daysPerYear);
}

}  // namespace zelk
