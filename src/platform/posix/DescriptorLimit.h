// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace zelk {

/// Lets the process hold as many open descriptors as it may, within reason: the usual soft limits (256 on macOS) are
/// fewer than the readers of a scan on a large machine keep open.
void raiseDescriptorLimit();

/// How many directory readers the limit as it is now allows at the same time, with some left for all else; 1 at least.
std::int64_t readersWithinDescriptorLimit();

}  // namespace zelk
