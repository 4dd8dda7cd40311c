// SPDX-License-Identifier: MIT
// Kernel statistics.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/VitalsArithmetic.h"

namespace zelk {

/// The text of a sysctl up to its first zero byte; absent if it does not exist.
std::optional<std::string> sysctlText(const char* name);

/// In bytes; 0 if unknown.
std::uint64_t kernelPageSize();

std::optional<PageCounts> kernelPageCounts();

std::optional<CPUTicks> kernelTicks();

}  // namespace zelk
