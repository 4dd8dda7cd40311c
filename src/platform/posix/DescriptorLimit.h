// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace zelk {

/// Raises the process's descriptor limit, within reason: the usual soft limits (256 on macOS) are lower than the
/// readers of a scan need on a large machine.
void raiseDescriptorLimit();

/// How many directory readers the current limit allows concurrently, reserving some descriptors for everything else; at
/// least 1.
std::int64_t readersWithinDescriptorLimit();

}  // namespace zelk
