// SPDX-License-Identifier: MIT
#include "ui/theme/Motion.h"

#include <utility>

#include "ui/theme/DesktopSettings.h"

namespace zelk {

Motion::Motion(QObject* parent) : Motion(DesktopSettings::ofApplication(), parent) {}

Motion::Motion(const DesktopSettings& desktop, QObject* parent)
    : QObject(parent), desktop_(desktop), reduced_(desktop.reducedMotion()) {
    connect(&desktop, &DesktopSettings::reducedMotionChanged, this, [this] { apply(desktop_.reducedMotion()); });
}

void Motion::setReduced(bool reduced) {
    disconnect(&desktop_, nullptr, this, nullptr);  // a reply of the portal may still arrive
    apply(reduced);
}

void Motion::apply(bool reduced) {
    if (std::exchange(reduced_, reduced) != reduced) emit changed();
}

}  // namespace zelk

#include "moc_Motion.cpp"
