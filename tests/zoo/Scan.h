// SPDX-License-Identifier: MIT
// Scans of the real file system with the real engine, and an independent count to compare them with.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "scan/FSNode.h"
#include "scan/ScanUpdate.h"

namespace zelk::zoo {

struct Scan {
    NodeRef root;  ///< synthetic top node
    ScanStats stats;
    ScanInsights insights;
};

/// Scans on this thread with `workers` worker threads, and waits until those have ended.
Scan scan(const std::vector<std::string>& roots, int workers);

/// Fails the test if the tree is inconsistent, disagrees with the statistics, or the scan was cancelled.
void expectConsistent(const Scan& scan);

/// All nodes below `top`, excluding it.
std::vector<const FSNode*> nodesBelow(const FSNode& top);

/// A count of the same tree without our code; duBytes and the like come from the system's tools.
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

/// Runs du_check.py. The tree must not change, and its path must not contain a quote.
Count countedIndependently(const std::string& root);

}  // namespace zelk::zoo
