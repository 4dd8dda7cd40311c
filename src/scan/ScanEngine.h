// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/DirectoryReader.h"
#include "platform/TrashPlaces.h"
#include "scan/CancelFlag.h"
#include "scan/ScanCounters.h"
#include "scan/UpdateQueue.h"

namespace zelk {

/// Seconds that the parts of a scan took, for measuring.
struct ScanPhases {
    double walk = 0;
    double rollUp = 0;
};

/// Turns a list of root paths into one stream of updates. Made afresh for each scan and without state: all of a scan
/// lives in its body, so the engine may go at once, and a cancelled scan drains while a new one runs.
class ScanEngine {
public:
    /// The services are used until the scan's threads have ended. What lies in `trash` is counted like all else, but
    /// is none of the largest files.
    ScanEngine(DirectoryService& directories, Clock& clock, TrashPlaces trash = {})
        : directories_(directories), clock_(clock), trash_(std::move(trash)) {}

    /// Returns at once. Ending `queue` from the reader's side cancels the scan.
    void start(std::shared_ptr<UpdateQueue> queue, std::vector<std::string> roots);

    /// The same on the calling thread, which it blocks until the queue has its end.
    ScanPhases runHere(const std::shared_ptr<UpdateQueue>& queue, std::vector<std::string> roots);

    /// ZELK_WORKERS where it is a whole number above 0, else one and a half per active processor and at least 4.
    static std::int64_t resolveWorkerCount();
    /// The rule itself. `setting` is the variable's text, or nullptr.
    static std::int64_t workerCountFor(const char* setting, std::int64_t activeProcessors);

private:
    DirectoryService& directories_;
    Clock& clock_;
    TrashPlaces trash_;
};

/// What a scan that has ended says of itself. `seconds` are those from its beginning to its last sum.
ScanStats statsOf(const ScanCounters::Counts& counts, std::int64_t totalBytes, double seconds,
                  std::vector<std::string> roots, const CancelFlag& cancel);

/// Sums ownFileBytes up the tree into `size`; returns the top's. Any depth.
std::int64_t rollUpSizes(FSNode& top);

}  // namespace zelk
