// SPDX-License-Identifier: MIT
#include "ui/shell/SingleInstance.h"

namespace zelk {

Activation activationOfThisStart() {
    return {};
}

void activateWindow(QWindow& window, const Activation&) {
    window.requestActivate();
}

std::vector<std::unique_ptr<MeetingPoint>> meetingPoints() {
    return {};
}

}  // namespace zelk
