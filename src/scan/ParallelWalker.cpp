// SPDX-License-Identifier: MIT
#include "scan/ParallelWalker.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <system_error>

#include "platform/Thread.h"

namespace zelk {

namespace {

/// Appends a component to `path`.
void appendComponent(std::string& path, std::string_view name) {
    if (!path.ends_with('/')) path += '/';
    path += name;
}

std::string joined(const std::string& path, std::string_view name) {
    std::string whole;
    whole.reserve(path.size() + 1 + name.size());
    whole = path;
    appendComponent(whole, name);
    return whole;
}

}  // namespace

/// The state of one worker thread.
struct ParallelWalker::Worker {
    /// A directory on the way from the taken one to the current one.
    struct Level {
        FSNode* nextChild;  ///< null after the last one
        std::size_t pathLength;
        bool inTrash;
    };

    std::unique_ptr<DirectoryReader> reader;
    std::optional<NodeArena::Space> space;  ///< for the nodes of what this thread reads
    std::string path;                       ///< path of the directory being visited
    std::string below;                      ///< the same path relative to its root
    bool inTrash = false;                   ///< the directory being visited is in a Trash
    std::vector<Level> levels;

    bool isExtra = false;          ///< came because others waited for the disk
    bool isWaiting = true;         ///< for the disk, as far as it is known
    std::int64_t parked = 0;       ///< how often it slept for want of work
    std::int64_t slept = 0;        ///< how often for anything else, when it last looked
    std::int64_t sinceLooked = 0;  ///< directories read
};

ParallelWalker::ParallelWalker(DirectoryService& directories, WorkerLimits workers, ScanCollectors& collectors,
                               TrashPlaces trash, std::shared_ptr<CancelFlag> cancel,
                               std::shared_ptr<UpdateQueue> queue)
    : directories_(directories),
      workers_{std::min(workers.usual, directories.maximumReaders()),
               std::min(workers.most, directories.maximumReaders())},
      collectors_(collectors),
      trash_(std::move(trash)),
      cancel_(std::move(cancel)),
      queue_(std::move(queue)) {}

void ParallelWalker::run(std::vector<Work> seeds) {
    {
        const std::lock_guard lock(mutex_);
        outstanding_ += static_cast<std::int64_t>(seeds.size());
        for (Work& seed : seeds) stack_.push_back(std::move(seed));
        if (outstanding_ == 0) return;
    }
    startWorkers();
    std::unique_lock lock(mutex_);
    finished_.wait(lock, [this] { return done_; });
    // Threads may still be exiting, but none is visiting: nobody accesses the collectors or the tree.
}

void ParallelWalker::startWorkers() {
    running_ = started_ = workers_.usual;
    for (std::int64_t i = 0; i < workers_.usual; ++i) {
        try {
            startWorker(i, false);
        } catch (const std::system_error&) {
            // No more threads can be started: those that run do the work, or this one if there is none.
            if (i == 0) workerLoop(false);
            return;
        }
    }
}

void ParallelWalker::startWorker(std::int64_t number, bool isExtra) {
    startThread("zelk.scan.worker." + std::to_string(number), stackBytes, [weak = weak_from_this(), isExtra] {
        if (const auto walker = weak.lock()) walker->workerLoop(isExtra);
    });
}

void ParallelWalker::workerLoop(bool isExtra) {
    Worker worker{directories_.makeReader(), {}, {}, {}, false, {}};
    worker.isExtra = isExtra;
    worker.slept = worker.reader->timesSlept();
    if (workers_.most > 1) worker.reader->setHelpers(this);
    Work work;
    for (bool finishedOne = false; take(worker, work, finishedOne); finishedOne = true) {
        // Not before: to a thread that starts late the tree may be gone.
        if (!worker.space) worker.space.emplace(work.node->arena());
        visit(worker, work);
    }
}

/// Counts a directory that was read, and now and then sees whether the disk was waited for.
void ParallelWalker::watchWaiting(Worker& worker) {
    if (workers_.most == workers_.usual || ++worker.sinceLooked < watchedDirectories) return;
    worker.sinceLooked = 0;
    const std::int64_t before = std::exchange(worker.slept, worker.reader->timesSlept() - worker.parked);
    worker.isWaiting = worker.slept - before >= waitingDirectories;
    if (worker.isWaiting) addWorker();
}

/// Starts another thread if there is something left for it to do.
void ParallelWalker::addWorker() {
    std::int64_t number;
    {
        const std::lock_guard lock(mutex_);
        if (running_ >= workers_.most || stack_.empty() || waiting_ > 0) return;
        ++running_;
        number = started_++;
    }
    try {
        startWorker(number, true);
    } catch (const std::system_error&) {
        const std::lock_guard lock(mutex_);
        --running_;
    }
}

/// Marks the previous item, if any, as finished and waits for the next. False when the walk is over.
bool ParallelWalker::take(Worker& worker, Work& work, bool finishedOne) {
    std::unique_lock lock(mutex_);
    if (finishedOne && --outstanding_ == 0) {
        done_ = true;
        cond_.notify_all();
        finished_.notify_all();
    }
    if (worker.isExtra && !worker.isWaiting) {
        --running_;
        return false;
    }
    while (stack_.empty() && !done_) {
        if (!offers_.empty()) {
            help(lock);
            continue;
        }
        ++waiting_;
        ++worker.parked;
        cond_.wait(lock);
        --waiting_;
    }
    if (done_) return false;
    work = std::move(stack_.back());
    stack_.pop_back();
    return true;
}

/// Does the work of one worker with those that wait for a directory.
bool ParallelWalker::run(SharedWork& work) {
    OfferedWork offer(work);
    std::int64_t count;
    {
        const std::lock_guard lock(mutex_);
        offers_.push_back(&offer);
        count = std::min(waiting_, static_cast<std::int64_t>(offer.parts()) - 1);
    }
    wake(count);
    offer.join(*cancel_);
    std::unique_lock lock(mutex_);
    std::erase(offers_, &offer);
    helped_.wait(lock, [&offer] { return offer.helpers == 0; });
    return offer.isBegun();
}

/// Joins another worker's work until nothing of it is left to begin. Releases the lock meanwhile.
void ParallelWalker::help(std::unique_lock<std::mutex>& lock) {
    OfferedWork& offer = *offers_.back();
    ++offer.helpers;
    lock.unlock();
    offer.join(*cancel_);
    lock.lock();
    std::erase(offers_, &offer);
    if (--offer.helpers == 0) helped_.notify_all();
}

void ParallelWalker::wake(std::int64_t count) {
    for (; count > 0; --count) cond_.notify_one();
}

void ParallelWalker::visit(Worker& worker, const Work& work) {
    if (cancel_->isSet()) return;  // drains a cancelled stack; the counting then sets done_
    work.node->fullPath(worker.path);
    worker.inTrash = work.inTrash || trash_.areAt(worker.path);
    const DirectoryReader::Entries* entries = work.root ? openAt(worker, work) : nullptr;
    if (entries == nullptr) return block(*work.node);
    fill(worker, *work.node, *entries, work.rootDev);
    if (work.depth + 1 < parallelDepth)
        pushChildren(work, worker.inTrash);
    else
        visitInline(worker, work);
}

/// Opens the worker's path relative to the root.
const DirectoryReader::Entries* ParallelWalker::openAt(Worker& worker, const Work& work) {
    std::size_t start = work.rootLength;
    while (start < worker.path.size() && worker.path[start] == '/') ++start;
    worker.below.assign(worker.path, std::min(start, worker.path.size()));
    return worker.reader->open(*work.root, worker.below);
}

/// Visits everything below the directory of `work`, where the reader is, on this thread. Keeps the levels in a list
/// instead of recursing, since folders may be nested to any depth.
void ParallelWalker::visitInline(Worker& worker, const Work& work) {
    std::vector<Worker::Level>& levels = worker.levels;
    levels.clear();
    levels.push_back({work.node->firstChild(), worker.path.size(), worker.inTrash});
    bool isLost = false;
    while (true) {
        Worker::Level& level = levels.back();
        worker.path.resize(level.pathLength);
        if (level.nextChild == nullptr) {
            levels.pop_back();
            if (levels.empty()) return;
            isLost = !worker.reader->ascend();
            continue;
        }
        if (cancel_->isSet()) return;
        // The way back was lost: reopen the directory, so that its remaining children are not wrongly unreadable.
        // Ignores the second listing.
        if (std::exchange(isLost, false)) openAt(worker, work);
        FSNode& child = *std::exchange(level.nextChild, level.nextChild->nextSibling());
        appendComponent(worker.path, child.name());
        worker.inTrash = level.inTrash || trash_.areAt(worker.path);
        const DirectoryReader::Entries* entries = worker.reader->descend(child.name());
        if (entries != nullptr) {
            fill(worker, child, *entries, work.rootDev);
        } else {
            block(child);
        }
        levels.push_back({child.firstChild(), worker.path.size(), worker.inTrash});
    }
}

void ParallelWalker::block(FSNode& node) {
    if (cancel_->isSet()) return;  // the reader may have stopped for this reason alone
    node.setUnreadable();
    collectors_.counters.recordBlocked();
}

void ParallelWalker::fill(Worker& worker, FSNode& node, const DirectoryReader::Entries& entries, std::int32_t rootDev) {
    watchWaiting(worker);
    const auto [bytes, count] = ingestFiles(entries, worker);
    node.ownFileBytes = bytes;
    node.fileCount = count;
    reportProgress(count, bytes, worker.path);

    if (entries.size() == static_cast<std::size_t>(count)) return;
    for (const DirEntry& entry : entries) {
        // Another device is a mount point, which is skipped silently.
        if (entry.objType != directoryObjectType || entry.deviceID != rootDev) continue;
        node.append(*worker.space, entry.name, entry.modTime);
    }
}

void ParallelWalker::pushChildren(const Work& work, bool inTrash) {
    const FSNode::Children children = work.node->children();
    if (children.empty()) return;
    const auto pushed = static_cast<std::int64_t>(children.size());
    std::int64_t count;
    {
        const std::lock_guard lock(mutex_);
        for (FSNode& child : children)
            stack_.push_back({&child, work.root, work.rootLength, work.depth + 1, work.rootDev, inTrash});
        outstanding_ += pushed;
        count = std::min(waiting_, pushed);
    }
    wake(count);
}

std::pair<std::int64_t, std::int64_t> ParallelWalker::ingestFiles(const DirectoryReader::Entries& entries,
                                                                  const Worker& worker) {
    const std::string& path = worker.path;
    TypeTotals tallies;
    std::int64_t bytes = 0;
    std::int64_t count = 0;
    for (const DirEntry& entry : entries) {
        if (entry.objType == directoryObjectType) continue;
        const bool counts = entry.linkCount < 2 || collectors_.deduper.insertIfNew(entry.deviceID, entry.fileID);
        const std::int64_t size = counts ? static_cast<std::int64_t>(entry.allocSize) : 0;
        bytes += size;
        ++count;
        const NameClass name = classifyName(entry.name);
        tallies[name.type].bytes += size;
        tallies[name.type].count += 1;
        if (size < 1) continue;
        if (!worker.inTrash && collectors_.topFiles.mayTake(size)) {
            collectors_.topFiles.offer([&] { return joined(path, entry.name); }, size, entry.modTime, name.type);
        }
        if (size >= diskImageMinSize && name.canBeDiskImage) {
            collectors_.diskImages.append({joined(path, entry.name), size, entry.modTime, FileType::diskImage});
        }
    }
    collectors_.types.merge(tallies);
    return {bytes, count};
}

void ParallelWalker::reportProgress(std::int64_t count, std::int64_t bytes, const std::string& path) {
    if (!collectors_.counters.recordDirectory(count, bytes)) return;
    const ScanCounters::Counts counts = collectors_.counters.counts();
    queue_->yield(update::Progress{counts.files + counts.dirs, counts.bytes, path});
}

}  // namespace zelk
