// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/charts/BubbleSlice.h"
#include "ui/screens/lens/LensRows.h"
#include "ui/screens/lens/LensWalk.h"

namespace zelk {

/// The name of the one bubble that holds all that the map does not show by itself. No path is called so.
inline constexpr std::string_view foldedSlice = "__other__";

/// A slice for each of the first rows, with its path as its name, and one in the colour `folded` for the rest, if there
/// is any. `iconOf` gives the picture of the folder at a path.
std::vector<BubbleSlice> slicesOf(const LensRows& rows, const LensWalk& walk, const QColor& folded,
                                  const std::function<QImage(const std::string&)>& iconOf);

}  // namespace zelk
