// SPDX-License-Identifier: MIT
#include "ui/theme/TextScale.h"

#include <algorithm>

namespace zelk {

void TextScale::setFactor(qreal factor) {
    const qreal clamped = std::clamp(factor, smallest, largest);
    if (clamped == factor_) return;
    factor_ = clamped;
    emit factorChanged();
}

}  // namespace zelk
