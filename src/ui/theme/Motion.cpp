// SPDX-License-Identifier: MIT
#include "ui/theme/Motion.h"

#include "ui/theme/DesktopMotion.h"

namespace zelk {

Motion::Motion(QObject* parent) : QObject(parent) {
    auto* desktop = new DesktopMotion(this);
    connect(desktop, &DesktopMotion::reducedChanged, this, &Motion::setReduced);
    desktop->start();
}

void Motion::setReduced(bool reduced) {
    if (reduced == reduced_) return;
    reduced_ = reduced;
    emit changed();
}

}  // namespace zelk
