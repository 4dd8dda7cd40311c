// SPDX-License-Identifier: MIT
#include "ui/theme/Motion.h"

#include "ui/theme/DesktopMotion.h"

namespace zelk {

Motion::Motion(QObject* parent) : QObject(parent), desktop_(new DesktopMotion(this)) {
    connect(desktop_, &DesktopMotion::reducedChanged, this, &Motion::apply);
    desktop_->start();
}

void Motion::setReduced(bool reduced) {
    disconnect(desktop_, nullptr, this, nullptr);  // its answer may still be on the way
    apply(reduced);
}

void Motion::apply(bool reduced) {
    if (reduced == reduced_) return;
    reduced_ = reduced;
    emit changed();
}

}  // namespace zelk
