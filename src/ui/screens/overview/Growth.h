// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace zelk {

/// The growth from `before` to `now` in bytes; negative if it shrank. Saturates, since the history file may contain any
/// values, and so that the result can always be negated.
inline std::int64_t growth(std::int64_t before, std::int64_t now) {
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    std::int64_t grown = 0;
    if (__builtin_sub_overflow(now, before, &grown)) return now > before ? most : -most;
    return std::max(grown, -most);
}

}  // namespace zelk
