// SPDX-License-Identifier: MIT
// What the kernel tells of the machine by its own calls.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/VitalsArithmetic.h"

namespace zelk {

/// The text of a sysctl, to its first zero byte; absent if there is none of that name.
std::optional<std::string> sysctlText(const char* name);

/// Bytes; 0 if the system does not say.
std::uint64_t kernelPageSize();

std::optional<PageCounts> kernelPageCounts();

std::optional<CPUTicks> kernelTicks();

}  // namespace zelk
