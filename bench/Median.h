// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace zelk::bench {

/// The median of at least one figure.
inline double medianOf(std::vector<double> figures) {
    std::sort(figures.begin(), figures.end());
    const std::size_t half = figures.size() / 2;
    return figures.size() % 2 == 1 ? figures[half] : (figures[half - 1] + figures[half]) / 2;
}

}  // namespace zelk::bench
