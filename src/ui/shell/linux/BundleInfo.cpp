// SPDX-License-Identifier: MIT
#include "ui/shell/BundleInfo.h"

namespace zelk {

BundleInfo applicationBundle() {
    return {QStringLiteral("Zelk"), QStringLiteral(ZELK_VERSION), std::nullopt};
}

}  // namespace zelk
