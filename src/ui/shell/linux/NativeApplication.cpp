// SPDX-License-Identifier: MIT
#include "ui/shell/NativeApplication.h"

namespace zelk {

void refuseWindowTabs() {}

void removeServicesMenu() {}

void activateApplication() {}

}  // namespace zelk
