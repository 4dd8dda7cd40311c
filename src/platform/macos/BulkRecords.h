// SPDX-License-Identifier: MIT
// The records that macOS's bulk directory call leaves in a buffer, for the one request that Zelk makes of it. Apart
// from the call, so that the decoding is tested, and fuzzed, on every system.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "platform/DirectoryReader.h"

namespace zelk {

/// Appends what the first `count` records of `buffer` say to `entries`, in their order and without "." and "..". The
/// names point into `buffer`. False if a record does not hold together, be it by a length or a name that leaves its
/// bounds or by a name that no file can have; `entries` then has some records and not others, and is of no use.
[[nodiscard]] bool decodeBulkRecords(std::span<const std::byte> buffer, std::size_t count,
                                     std::vector<DirEntry>& entries);

}  // namespace zelk
