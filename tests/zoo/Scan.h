// SPDX-License-Identifier: MIT
// A scan by the real engine over the real file system, and the count that it is held against.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "scan/FSNode.h"
#include "scan/ScanUpdate.h"

namespace zelk::zoo {

struct Scan {
    NodeRef root;  ///< the synthetic top
    ScanStats stats;
    ScanInsights insights;
};

/// Scans on this thread, with `workers` threads, and waits until those have ended.
Scan scan(const std::vector<std::string>& roots, int workers);

/// Fails the test where the tree contradicts itself or the figures beside it. The scan was not cancelled.
void expectConsistent(const Scan& scan);

/// All nodes below `top`, itself left out.
std::vector<const FSNode*> nodesBelow(const FSNode& top);

/// The same tree as counted without any of our code; duBytes and the like are what the system's own tools say.
struct Count {
    std::int64_t bytes = -1;
    std::int64_t files = -1;
    std::int64_t folders = -1;
    std::int64_t blocked = -1;
    std::int64_t duBytes = -1;
    std::int64_t findFiles = -1;
    std::int64_t findFolders = -1;

    bool operator==(const Count&) const = default;
};

/// By du_check.py. The tree must hold still, and its path have no quote in it.
Count countedIndependently(const std::string& root);

}  // namespace zelk::zoo
