// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

#include "reclaim/ReclaimCatalogue.h"

namespace zelk {

/// How the three grades look wherever items are chosen; the same in both themes.
QColor colorOf(ReclaimSafety safety);

/// "safe", "regenerates", "review".
QString wordOf(ReclaimSafety safety);

}  // namespace zelk
