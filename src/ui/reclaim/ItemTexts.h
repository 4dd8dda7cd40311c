// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "reclaim/ReclaimCatalogue.h"

namespace zelk {

/// The last component of an item's path, for the screen.
QString nameOf(const Reclaimable& item);

/// The folder that holds it, for the screen.
QString folderOf(const Reclaimable& item);

}  // namespace zelk
