// SPDX-License-Identifier: MIT
#include "state/UserLocale.h"

namespace zelk {

QLocale userLocale() {
    const QLocale locale;
    return locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates) : locale;
}

}  // namespace zelk
