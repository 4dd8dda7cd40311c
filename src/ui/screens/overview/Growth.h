// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace zelk {

/// Bytes that came between `before` and `now`; below 0 where there are fewer. The history file may hold any two
/// numbers, so what no integer tells is cut to the furthest that has a counterpart of the other sign.
inline std::int64_t growth(std::int64_t before, std::int64_t now) {
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    std::int64_t grown = 0;
    if (__builtin_sub_overflow(now, before, &grown)) return now > before ? most : -most;
    return std::max(grown, -most);
}

}  // namespace zelk
