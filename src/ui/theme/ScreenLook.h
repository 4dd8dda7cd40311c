// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

#include "state/Screen.h"

namespace zelk {

/// How a module presents itself. The colour does not follow the theme.
struct ScreenLook {
    QString title;
    QString subtitle;  ///< may be empty
    QString symbol;
    QColor color;
};

const ScreenLook& lookOf(Screen screen);

}  // namespace zelk
