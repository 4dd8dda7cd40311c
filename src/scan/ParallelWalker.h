// SPDX-License-Identifier: MIT
// The walk of one scan: some threads share a stack of the upper directories. The thread that takes one at
// the lowest shared depth finishes everything below it alone, except that a large directory, wherever it is, is read
// with whoever has nothing else to do. Threads that find themselves waiting for the disk get company, so that it has
// more requests to choose from; who came so and no longer waits leaves.
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
#include "scan/OfferedWork.h"
#include "scan/ScanCounters.h"
#include "scan/TopFilesCollector.h"
#include "scan/TypeAggregator.h"
#include "scan/UpdateQueue.h"

namespace zelk {

/// The results that the threads of one scan collect. Created per scan, read when the walk is over.
struct ScanCollectors {
    InodeDeduper deduper;
    ScanCounters counters;
    TopFilesCollector topFiles;
    TypeAggregator types;
    DiskImageCollector diskImages;
};

/// How many threads walk.
struct WorkerLimits {
    std::int64_t usual;  ///< from the beginning to the end
    std::int64_t most;   ///< while they wait for the disk; at least as many
};

/// Serves one scan. Held by shared_ptr: a thread that starts late finds it gone and exits.
class ParallelWalker : public std::enable_shared_from_this<ParallelWalker>, private Helpers {
public:
    /// Directories above this depth (roots have depth 0) go through the shared stack.
    static constexpr std::int64_t parallelDepth = 6;
    static constexpr std::int64_t diskImageMinSize = 50'000'000;  ///< bytes allocated
    static constexpr std::size_t stackBytes = 0x800000;
    /// After so many directories a thread looks how often it has waited for the disk. It counts as waiting if that was
    /// once in four or more often: with everything in memory it is once in a few hundred.
    static constexpr std::int64_t watchedDirectories = 32;
    static constexpr std::int64_t waitingDirectories = watchedDirectories / 4;

    /// A directory waiting for a thread. Stores no path, which is built from the node when needed: a string per waiting
    /// directory would dominate the memory in a folder with very many subfolders.
    struct Work {
        FSNode* node;
        std::shared_ptr<const DirectoryRoot> root;  ///< null if the root could not be opened
        std::size_t rootLength;                     ///< length of the root's path
        std::int64_t depth;
        std::int32_t rootDev;
        bool inTrash;  ///< below a Trash folder; a root may also be one itself
    };

    /// Counts what is in `trash` but does not list it among the large files. `cancel` and `queue` are shared with
    /// whoever may end the scan; the walker yields only Progress.
    ParallelWalker(DirectoryService& directories, WorkerLimits workers, ScanCollectors& collectors, TrashPlaces trash,
                   std::shared_ptr<CancelFlag> cancel, std::shared_ptr<UpdateQueue> queue);

    /// Blocks until the walk is over. Call once. The nodes are those of one tree, which the caller keeps.
    void run(std::vector<Work> seeds);

private:
    struct Worker;

    void startWorkers();
    void startWorker(std::int64_t number, bool isExtra);
    void workerLoop(bool isExtra);
    void watchWaiting(Worker& worker);
    void addWorker();
    bool take(Worker& worker, Work& work, bool finishedOne);
    bool run(SharedWork& work) override;
    void help(std::unique_lock<std::mutex>& lock);
    void wake(std::int64_t count);
    void visit(Worker& worker, const Work& work);
    static const DirectoryReader::Entries* openAt(Worker& worker, const Work& work);
    void visitInline(Worker& worker, const Work& work);
    void block(FSNode& node);
    void fill(Worker& worker, FSNode& node, const DirectoryReader::Entries& entries, std::int32_t rootDev);
    void pushChildren(const Work& work, bool inTrash);
    std::pair<std::int64_t, std::int64_t> ingestFiles(const DirectoryReader::Entries& entries, const Worker& worker);
    void reportProgress(std::int64_t count, std::int64_t bytes, const std::string& path);

    DirectoryService& directories_;
    const WorkerLimits workers_;
    ScanCollectors& collectors_;
    const TrashPlaces trash_;
    const std::shared_ptr<CancelFlag> cancel_;
    const std::shared_ptr<UpdateQueue> queue_;

    // The lock guards the last seven fields, what they hold, and nothing else. It is never held during file system
    // access or with another lock.
    std::mutex mutex_;
    std::condition_variable cond_;      // waited on by workers only, so that run() never takes their signal
    std::condition_variable finished_;  // waited on by run()
    std::condition_variable helped_;    // waited on by workers whose own work others are still at
    std::vector<Work> stack_;           ///< last in, first out
    std::vector<OfferedWork*> offers_;  ///< of which parts may be left; each belongs to a thread that is at it
    std::int64_t outstanding_ = 0;      ///< pushed and not finished, including those being visited
    std::int64_t waiting_ = 0;          ///< threads waiting for work
    std::int64_t running_ = 0;          ///< threads that have not left
    std::int64_t started_ = 0;          ///< those and those that have
    bool done_ = false;                 ///< set once nothing is outstanding
};

}  // namespace zelk
