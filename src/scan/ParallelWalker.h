// SPDX-License-Identifier: MIT
// The walk of one scan: a fixed number of threads share a stack of the upper directories, and whoever takes one at the
// lowest shared depth finishes everything below it alone.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "platform/DirectoryReader.h"
#include "platform/TrashPlaces.h"
#include "scan/CancelFlag.h"
#include "scan/DiskImageCollector.h"
#include "scan/FSNode.h"
#include "scan/InodeDeduper.h"
#include "scan/ScanCounters.h"
#include "scan/TopFilesCollector.h"
#include "scan/TypeAggregator.h"
#include "scan/UpdateQueue.h"

namespace zelk {

/// What the threads of one scan fill. Made per scan, read when the walk is over.
struct ScanCollectors {
    InodeDeduper deduper;
    ScanCounters counters;
    TopFilesCollector topFiles;
    TypeAggregator types;
    DiskImageCollector diskImages;
};

/// Serves one scan. Held by shared_ptr: a thread that starts late finds it gone and ends.
class ParallelWalker : public std::enable_shared_from_this<ParallelWalker> {
public:
    /// Directories above this depth (a root has depth 0) go through the shared stack.
    static constexpr std::int64_t parallelDepth = 6;
    static constexpr std::int64_t diskImageMinSize = 50'000'000;  ///< bytes allocated
    static constexpr std::size_t stackBytes = 0x800000;

    /// A directory that waits for a thread. Its path is not kept here but read off the node when its turn comes: a text
    /// per waiting directory would be the largest thing in memory under a folder with very many subfolders.
    struct Work {
        NodeRef node;
        std::shared_ptr<const DirectoryRoot> root;  ///< null: the root could not be opened
        std::size_t rootLength;                     ///< of the root's own path
        std::int64_t depth;
        std::int32_t rootDev;
        bool inTrash;  ///< a folder above it holds what was thrown away; of a root the root itself may be it
    };

    /// What lies in `trash` is counted, but is none of the large files. `cancel` and `queue` are shared with whoever
    /// may end the scan; the walker yields only Progress.
    ParallelWalker(DirectoryService& directories, std::int64_t workerCount, ScanCollectors& collectors,
                   TrashPlaces trash, std::shared_ptr<CancelFlag> cancel, std::shared_ptr<UpdateQueue> queue);

    /// Blocks until the whole walk is over. Call once.
    void run(std::vector<Work> seeds);

private:
    struct Worker;

    void startWorkers();
    void workerLoop();
    bool take(Work& work, bool finishedOne);
    void visit(Worker& worker, const Work& work);
    static const DirectoryReader::Entries* openAt(Worker& worker, const Work& work);
    void visitInline(Worker& worker, const Work& work);
    void fill(Worker& worker, FSNode& node, const DirectoryReader::Entries& entries, std::int32_t rootDev);
    void pushChildren(const Work& work, bool inTrash);
    std::pair<std::int64_t, std::int64_t> ingestFiles(const DirectoryReader::Entries& entries, const Worker& worker);
    void reportProgress(std::int64_t count, std::int64_t bytes, const std::string& path);

    DirectoryService& directories_;
    const std::int64_t workerCount_;
    ScanCollectors& collectors_;
    const TrashPlaces trash_;
    const std::shared_ptr<CancelFlag> cancel_;
    const std::shared_ptr<UpdateQueue> queue_;

    // The lock guards the four fields at the end and nothing else. It is never held across the file system or another
    // lock.
    std::mutex mutex_;
    std::condition_variable cond_;      // of the workers alone, so that no signal for one of them goes elsewhere
    std::condition_variable finished_;  // of run()
    std::vector<Work> stack_;           ///< last in, first out
    std::int64_t outstanding_ = 0;      ///< pushed and not yet finished, those being visited included
    std::int64_t waiting_ = 0;          ///< threads that wait for work
    bool done_ = false;                 ///< set once, when nothing is outstanding any more
};

}  // namespace zelk
