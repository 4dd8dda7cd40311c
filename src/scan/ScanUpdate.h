// SPDX-License-Identifier: MIT
// The updates of one scan: any number of Progress, at most one Blocked, one Insights, one Finished, then the end.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "scan/FSNode.h"
#include "scan/ScanInsights.h"

namespace zelk {

struct ScanStats {
    std::int64_t filesScanned = 0;
    std::int64_t dirsScanned = 0;
    std::int64_t totalBytes = 0;
    std::int64_t blockedPaths = 0;
    double duration = 0;  ///< seconds
    std::vector<std::string> roots;
    bool wasCancelled = false;

    bool operator==(const ScanStats&) const = default;
};

namespace update {

struct Progress {
    std::int64_t scanned = 0;  ///< files and directories so far
    std::int64_t bytes = 0;
    std::string currentPath;
};
/// Reserved; never produced. A tree becomes visible only through Finished.
struct PartialTree {
    NodeRef root;
};
/// Reserved; never produced.
struct Reclaimables {};
struct Insights {
    ScanInsights insights;
};
struct Finished {
    NodeRef root;  ///< the synthetic top node
    ScanStats stats;
};
struct Blocked {
    std::int64_t count = 0;
};

}  // namespace update

using ScanUpdate = std::variant<update::Progress, update::PartialTree, update::Reclaimables, update::Insights,
                                update::Finished, update::Blocked>;

}  // namespace zelk
