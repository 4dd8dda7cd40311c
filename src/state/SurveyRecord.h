// SPDX-License-Identifier: MIT
// What stays of a survey when its tree is gone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/Time.h"
#include "scan/FSNode.h"

namespace zelk {

using SizeByPath = std::map<std::string, std::int64_t>;

struct SurveyRecord {
    TimePoint date = 0;             ///< seconds since 1970; the file holds seconds since 2001
    std::int64_t totalScanned = 0;  ///< bytes of the scanned tree
    std::int64_t used = 0;          ///< bytes of the volume in use; 0 if it could not be read
    std::int64_t free = 0;          ///< bytes of the volume available; 0 if it could not be read
    std::int64_t reclaimable = 0;
    std::map<std::string, std::int64_t> types;  ///< bytes by the raw value of FileType
    std::optional<SizeByPath> folders;          ///< the big folders; absent in older records

    bool operator==(const SurveyRecord&) const = default;
};

/// A folder's size in two surveys; 0 where it is in one only.
struct FolderChange {
    std::string path;
    std::int64_t oldSize = 0;
    std::int64_t newSize = 0;

    bool operator==(const FolderChange&) const = default;
};

struct FolderChanges {
    std::vector<FolderChange> grew;      ///< by growth, largest first
    std::vector<FolderChange> appeared;  ///< by new size, largest first
    std::vector<FolderChange> gone;      ///< by old size, largest first

    bool operator==(const FolderChanges&) const = default;
};

/// The `limit` largest descendants of `tree` (the scan roots included, `tree` itself not) of at least `minSize` bytes.
/// Ends the process if two scan roots are the same path: the settings never let that happen. A folder that is reached
/// through two roots, one inside the other, is noted once.
SizeByPath bigFolders(const FSNode& tree, std::int64_t minSize, std::size_t limit);

/// When the volume will be full at the rate from the first record to the last; absent without growth, without free
/// space, or with less than 4.8 hours between them.
std::optional<std::int64_t> daysUntilFull(const std::vector<SurveyRecord>& history);

/// Between the last two records that hold folders; absent if there are not two.
std::optional<FolderChanges> folderChanges(const std::vector<SurveyRecord>& history);

}  // namespace zelk
