// SPDX-License-Identifier: MIT
// The record that is kept of each survey, and what can be derived from several of them.
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

/// A folder's size in two surveys; 0 in the one that does not contain it.
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

/// The growth from `before` to `now` in bytes; negative if it shrank. Saturates, since the history file may contain any
/// values, and so that the result can always be negated.
std::int64_t sizeGrowth(std::int64_t before, std::int64_t now);

/// The `limit` largest descendants of `tree` (including the scan roots, excluding `tree` itself) of at least `minSize`
/// bytes. A folder that is reached through two nested roots counts once. Aborts if two scan roots have the same path,
/// which AppModel prevents.
SizeByPath bigFolders(const FSNode& tree, std::int64_t minSize, std::size_t limit);

/// The big folders as a record holds them: the 400 largest of at least 20 MB.
SizeByPath recordedFolders(const FSNode& tree);

/// Days until the volume is full at the rate from the first record to the last. Absent without growth, without free
/// space, or with 4.8 hours or less between the two.
std::optional<std::int64_t> daysUntilFull(const std::vector<SurveyRecord>& history);

/// The changes between the last two records that hold folders; absent if there are fewer than two.
std::optional<FolderChanges> folderChanges(const std::vector<SurveyRecord>& history);

}  // namespace zelk
