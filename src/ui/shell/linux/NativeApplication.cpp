// SPDX-License-Identifier: MIT
#include "ui/shell/NativeApplication.h"

namespace zelk {

void refuseWindowTabs() {}

void removeServicesMenu() {}

}  // namespace zelk
