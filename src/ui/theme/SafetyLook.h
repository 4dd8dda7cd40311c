// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

#include "reclaim/ReclaimCatalogue.h"

namespace zelk {

/// The colour of a safety grade, the same in both themes.
QColor colorOf(ReclaimSafety safety);

/// "safe", "regenerates", "review".
QString wordOf(ReclaimSafety safety);

}  // namespace zelk
