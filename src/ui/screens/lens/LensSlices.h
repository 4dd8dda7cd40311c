// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/charts/BubbleModel.h"
#include "ui/screens/lens/LensRows.h"
#include "ui/screens/lens/LensWalk.h"

namespace zelk {

/// The id of the bubble for all folders beyond the top ones. Not a possible path.
inline constexpr std::string_view foldedSlice = "__other__";

/// Creates a slice for each of the top rows, with its path as id, and one in the colour `folded` for the rest, if any.
/// `iconOf` returns the icon of the folder at a path.
std::vector<BubbleSlice> slicesOf(const LensRows& rows, const LensWalk& walk, const QColor& folded,
                                  const std::function<QImage(const std::string&)>& iconOf);

}  // namespace zelk
