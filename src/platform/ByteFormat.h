// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zelk {

/// Formats a byte count in decimal units, as the Finder does: "0 bytes", "1 byte", "12 KB", "1.3 MB", "123.46 GB". KB
/// has no decimals, MB up to one, GB and above up to two, without trailing zeros; a count that would round to 1000
/// takes the next unit. Uses integers only and rounds halves away from zero. A negative count is formatted as zero.
/// `decimalSeparator` is that of the user's locale.
std::string byteText(std::int64_t count, std::string_view decimalSeparator = ".");

/// Formats a memory size in whole binary gigabytes (2^30), halves rounded up: "16 GB".
std::string memoryText(std::uint64_t bytes);

}  // namespace zelk
