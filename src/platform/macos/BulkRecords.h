// SPDX-License-Identifier: MIT
// Decodes the records that macOS's bulk directory call writes, for Zelk's one request. Separate from the call, so that
// it is tested and fuzzed on every system.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/DirectoryReader.h"

namespace zelk {

/// The directory that was listed.
struct ListedDirectory {
    std::int32_t device;
    TimePoint modified;
};

/// Appends the first `count` records of `buffer` to `entries`, in order, without "." and "..". Names point into
/// `buffer`. False if a record is malformed: a length or name outside its bounds, or an invalid file name; `entries` is
/// then unusable.
///
/// Reads only the attributes that a record claims to have. An entry with an error has nothing but a name: it becomes a
/// directory with the device and date of `listed`, since only opening it can tell what it is, and what cannot be opened
/// counts as unreadable. A file without a size gets size 0 and no links.
[[nodiscard]] bool decodeBulkRecords(std::span<const std::byte> buffer, std::size_t count,
                                     const ListedDirectory& listed, DirectoryReader::Entries& entries);

}  // namespace zelk
