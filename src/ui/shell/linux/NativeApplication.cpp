// SPDX-License-Identifier: MIT
#include "ui/shell/NativeApplication.h"

namespace zelk {

BundleInfo applicationBundle() {
    return {QStringLiteral("Zelk"), QStringLiteral(ZELK_VERSION), std::nullopt};
}

void refuseWindowTabs() {}

void removeServicesMenu() {}

void activateApplication() {}

}  // namespace zelk
