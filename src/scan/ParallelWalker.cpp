// SPDX-License-Identifier: MIT
#include "scan/ParallelWalker.h"

#include <algorithm>
#include <string_view>
#include <system_error>

#include "platform/Thread.h"

namespace zelk {

namespace {

/// `path` with one more component.
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

/// What a thread keeps from one directory to the next.
struct ParallelWalker::Worker {
    /// A directory between the one that the thread took and the one where it stands.
    struct Level {
        FSNode* node;
        std::size_t nextChild;
        std::size_t pathLength;
        bool inTrash;
    };

    std::unique_ptr<DirectoryReader> reader;
    std::string path;      ///< of the directory being visited
    std::string below;     ///< the same relative to its root
    bool inTrash = false;  ///< the directory being visited holds what was thrown away
    std::vector<Level> levels;
};

ParallelWalker::ParallelWalker(DirectoryService& directories, std::int64_t workerCount, ScanCollectors& collectors,
                               TrashPlaces trash, std::shared_ptr<CancelFlag> cancel,
                               std::shared_ptr<UpdateQueue> queue)
    : directories_(directories),
      workerCount_(workerCount),
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
    // The threads may still be on their way out, but none is in a visit: nobody touches the collectors or the tree.
}

void ParallelWalker::startWorkers() {
    const std::int64_t count = std::min(workerCount_, directories_.maximumReaders());
    for (std::int64_t i = 0; i < count; ++i) {
        try {
            startThread("zelk.scan.worker." + std::to_string(i), stackBytes, [weak = weak_from_this()] {
                if (const auto walker = weak.lock()) walker->workerLoop();
            });
        } catch (const std::system_error&) {
            // No more threads to be had: those that run do the work, and without any this one does.
            if (i == 0) workerLoop();
            return;
        }
    }
}

void ParallelWalker::workerLoop() {
    Worker worker{directories_.makeReader(), {}, {}, false, {}};
    Work work;
    for (bool finishedOne = false; take(work, finishedOne); finishedOne = true) visit(worker, work);
}

/// Counts the last item as finished, if there was one, and waits for the next. False when the walk is over.
bool ParallelWalker::take(Work& work, bool finishedOne) {
    std::unique_lock lock(mutex_);
    if (finishedOne && --outstanding_ == 0) {
        done_ = true;
        cond_.notify_all();
        finished_.notify_all();
    }
    while (stack_.empty() && !done_) {
        ++waiting_;
        cond_.wait(lock);
        --waiting_;
    }
    if (done_) return false;
    work = std::move(stack_.back());
    stack_.pop_back();
    return true;
}

void ParallelWalker::visit(Worker& worker, const Work& work) {
    if (cancel_->isSet()) return;  // a cancelled stack drains through here, and done_ follows from the counting
    work.node->fullPath(worker.path);
    worker.inTrash = work.inTrash || trash_.areAt(worker.path);
    const DirectoryReader::Entries* entries = work.root ? openAt(worker, work) : nullptr;
    if (entries == nullptr) {
        collectors_.counters.recordBlocked();
        return;
    }
    fill(worker, *work.node, *entries, work.rootDev);
    if (work.depth + 1 < parallelDepth)
        pushChildren(work, worker.inTrash);
    else
        visitInline(worker, work);
}

/// Stands at the worker's path, by the way from the root.
const DirectoryReader::Entries* ParallelWalker::openAt(Worker& worker, const Work& work) {
    std::size_t start = work.rootLength;
    while (start < worker.path.size() && worker.path[start] == '/') ++start;
    worker.below.assign(worker.path, std::min(start, worker.path.size()));
    return worker.reader->open(*work.root, worker.below);
}

/// Everything below the directory of `work`, where the reader stands, on this thread. The way back is kept in a list
/// and not on the thread's stack: how deep a drive's folders go is not for us to say.
void ParallelWalker::visitInline(Worker& worker, const Work& work) {
    std::vector<Worker::Level>& levels = worker.levels;
    levels.clear();
    levels.push_back({work.node.get(), 0, worker.path.size(), worker.inTrash});
    bool isLost = false;
    while (true) {
        Worker::Level& level = levels.back();
        worker.path.resize(level.pathLength);
        if (level.nextChild == level.node->children.size()) {
            levels.pop_back();
            if (levels.empty()) return;
            isLost = !worker.reader->ascend();
            continue;
        }
        if (cancel_->isSet()) return;
        // What is still to be visited here is not unreadable because the way back to it was lost. It is listed a second
        // time for that, which is not looked at.
        if (std::exchange(isLost, false)) openAt(worker, work);
        FSNode& child = *level.node->children[level.nextChild++];
        appendComponent(worker.path, child.name());
        worker.inTrash = level.inTrash || trash_.areAt(worker.path);
        const DirectoryReader::Entries* entries = worker.reader->descend(child.name());
        if (entries != nullptr) {
            fill(worker, child, *entries, work.rootDev);
        } else {
            collectors_.counters.recordBlocked();
        }
        levels.push_back({&child, 0, worker.path.size(), worker.inTrash});
    }
}

void ParallelWalker::fill(Worker& worker, FSNode& node, const DirectoryReader::Entries& entries, std::int32_t rootDev) {
    const auto [bytes, count] = ingestFiles(entries, worker);
    node.ownFileBytes = bytes;
    node.fileCount = count;
    reportProgress(count, bytes, worker.path);

    const std::size_t directories = entries.size() - static_cast<std::size_t>(count);
    if (directories == 0) return;
    node.children.reserve(directories);
    for (const DirEntry& entry : entries) {
        // Another device: a mount point, which is left out as if it were not there.
        if (entry.objType != directoryObjectType || entry.deviceID != rootDev) continue;
        node.append(FSNode::make(entry.name, entry.modTime));
    }
}

void ParallelWalker::pushChildren(const Work& work, bool inTrash) {
    const std::vector<NodeRef>& children = work.node->children;
    if (children.empty()) return;
    std::int64_t wake;
    {
        const std::lock_guard lock(mutex_);
        for (const NodeRef& child : children)
            stack_.push_back({child, work.root, work.rootLength, work.depth + 1, work.rootDev, inTrash});
        outstanding_ += static_cast<std::int64_t>(children.size());
        wake = std::min(waiting_, static_cast<std::int64_t>(children.size()));
    }
    for (; wake > 0; --wake) cond_.notify_one();
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
