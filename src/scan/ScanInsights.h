// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Time.h"
#include "scan/FileType.h"

namespace zelk {

/// A file worth listing.
struct LargeFile {
    std::string path;       ///< absolute, bytes
    std::int64_t size = 0;  ///< allocated bytes
    TimePoint modified = 0;
    FileType type = FileType::other;

    bool operator==(const LargeFile&) const = default;
};

/// The results of a survey besides the tree. Both lists are sorted by size, largest first; empty until a scan delivers.
struct ScanInsights {
    std::vector<LargeFile> topFiles;
    TypeTotals typeTotals;
    std::vector<LargeFile> diskImages;

    bool operator==(const ScanInsights&) const = default;
};

}  // namespace zelk
