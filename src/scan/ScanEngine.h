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
#include "scan/ParallelWalker.h"
#include "scan/ScanCounters.h"
#include "scan/UpdateQueue.h"

namespace zelk {

/// The seconds that the phases of a scan took, for benchmarks.
struct ScanPhases {
    double walk = 0;
    double rollUp = 0;
};

/// Turns a list of root paths into a stream of updates. Created per scan and stateless: the scan's thread owns
/// everything it uses, so the engine may be destroyed at once, and a cancelled scan drains while a new one runs.
class ScanEngine {
public:
    /// The services must outlive the scan's threads. Counts what is in `trash` but does not list it among the largest
    /// files.
    ScanEngine(DirectoryService& directories, Clock& clock, TrashPlaces trash = {})
        : directories_(directories), clock_(clock), trash_(std::move(trash)) {}

    /// Starts a scan and returns at once. Terminating `queue` from the reader's side cancels it.
    void start(std::shared_ptr<UpdateQueue> queue, std::vector<std::string> roots);

    /// Like start(), on the calling thread; blocks until the queue has ended.
    ScanPhases runHere(const std::shared_ptr<UpdateQueue>& queue, std::vector<std::string> roots);

    /// ZELK_WORKERS if it is a whole number above 0, else one and a half per active processor and at least 4.
    static std::int64_t resolveWorkerCount();
    /// The rule itself; `setting` is the variable's text or nullptr.
    static std::int64_t workerCountFor(const char* setting, std::int64_t activeProcessors);
    /// As many, and four times as many while the disk is waited for, but then at most 32; with ZELK_WORKERS no more.
    static WorkerLimits workerLimitsFor(const char* setting, std::int64_t activeProcessors);

private:
    DirectoryService& directories_;
    Clock& clock_;
    TrashPlaces trash_;
};

/// The statistics of a finished scan. `seconds` includes the roll-up.
ScanStats statsOf(const ScanCounters::Counts& counts, std::int64_t totalBytes, double seconds,
                  std::vector<std::string> roots, const CancelFlag& cancel);

/// Sums ownFileBytes into `size` up the tree, which may have any depth. Returns the size of `top`.
std::int64_t rollUpSizes(FSNode& top);

}  // namespace zelk
