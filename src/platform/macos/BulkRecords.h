// SPDX-License-Identifier: MIT
// The records that macOS's bulk directory call leaves in a buffer, for the one request that Zelk makes of it. Apart
// from the call, so that the decoding is tested, and fuzzed, on every system.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/DirectoryReader.h"

namespace zelk {

/// The directory that the records are of.
struct ListedDirectory {
    std::int32_t device;
    TimePoint modified;
};

/// Appends what the first `count` records of `buffer` say to `entries`, in their order and without "." and "..". The
/// names point into `buffer`. False if a record does not hold together, be it by a length or a name that leaves its
/// bounds or by a name that no file can have; `entries` then has some records and not others, and is of no use.
///
/// Of a record only that is read which it says it has. An entry that the system could not ask has a name and nothing
/// else: it is given as a directory, with the device and the date of `listed`. Only opening it can tell what it is, and
/// what cannot be opened counts as unreadable. A file without a size has none here, and no links.
[[nodiscard]] bool decodeBulkRecords(std::span<const std::byte> buffer, std::size_t count,
                                     const ListedDirectory& listed, std::vector<DirEntry>& entries);

}  // namespace zelk
