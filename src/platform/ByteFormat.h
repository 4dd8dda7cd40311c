// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zelk {

/// The one text of a byte count: decimal units as the Finder shows them ("0 bytes", "1 byte", "12 KB", "1.3 MB",
/// "123.46 GB"). KB has no decimals, MB up to one, GB and above up to two, trailing zeros dropped; a count that would
/// round to 1000 takes the next unit. Integers only, halves away from zero. A negative count reads as zero.
/// `decimalSeparator` is that of the user's locale.
std::string byteText(std::int64_t count, std::string_view decimalSeparator = ".");

/// The size of a machine's memory, which is sold in binary gigabytes: whole units of 2^30, halves up ("16 GB").
std::string memoryText(std::uint64_t bytes);

}  // namespace zelk
