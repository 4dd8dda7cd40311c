// SPDX-License-Identifier: MIT
#include "scan/ScanEngine.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <string_view>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/Thread.h"

namespace zelk {

namespace {

std::vector<LargeFile> largestFirst(std::vector<LargeFile> files) {
    std::stable_sort(files.begin(), files.end(),
                     [](const LargeFile& a, const LargeFile& b) { return a.size > b.size; });
    return files;
}

/// Creates a node and a work item for every existing root.
std::vector<ParallelWalker::Work> seed(DirectoryService& directories, const std::vector<std::string>& roots,
                                       const TrashPlaces& trash, const CancelFlag& cancel, FSNode& top) {
    std::vector<ParallelWalker::Work> seeds;
    for (const std::string& path : roots) {
        if (cancel.isSet()) break;
        if (path.size() > FSNode::maximumNameLength) continue;  // as for a path that the system finds too long
        const std::optional<RootStatus> status = directories.status(path);
        if (!status) continue;
        FSNode& node = top.append(path, status->modified);
        seeds.push_back({&node, directories.openRoot(path), path.size(), 0, status->device, trash.hold(path)});
    }
    return seeds;
}

WorkerLimits resolveWorkers() {
    return ScanEngine::workerLimitsFor(std::getenv("ZELK_WORKERS"),
                                       static_cast<std::int64_t>(std::thread::hardware_concurrency()));
}

ScanPhases scanBody(DirectoryService& directories, Clock& clock, const TrashPlaces& trash,
                    const std::shared_ptr<CancelFlag>& cancel, const std::shared_ptr<UpdateQueue>& queue,
                    std::vector<std::string> roots) {
    const double start = clock.monotonic();
    ScanCollectors collectors;
    const NodeRef top = FSNode::make("", clock.now());
    const auto walker =
        std::make_shared<ParallelWalker>(directories, resolveWorkers(), collectors, trash, cancel, queue);
    walker->run(seed(directories, roots, trash, *cancel, *top));
    const double walked = clock.monotonic();
    rollUpSizes(*top);
    const double rolledUp = clock.monotonic();

    const ScanCounters::Counts counts = collectors.counters.counts();
    ScanStats stats = statsOf(counts, top->size, rolledUp - start, std::move(roots), *cancel);
    if (counts.blocked > 0) queue->yield(update::Blocked{counts.blocked});
    queue->yield(update::Insights{{largestFirst(collectors.topFiles.items()), collectors.types.totals(),
                                   largestFirst(collectors.diskImages.items())}});
    queue->yield(update::Finished{top, std::move(stats)});
    queue->finish();
    return {walked - start, rolledUp - walked};
}

std::shared_ptr<CancelFlag> cancelledBy(UpdateQueue& queue) {
    auto cancel = std::make_shared<CancelFlag>();
    queue.setTerminationHandler([cancel] { cancel->set(); });
    return cancel;
}

}  // namespace

void ScanEngine::start(std::shared_ptr<UpdateQueue> queue, std::vector<std::string> roots) {
    const std::shared_ptr<CancelFlag> cancel = cancelledBy(*queue);
    std::vector<std::string> named = roots;
    auto body = [&directories = directories_, &clock = clock_, trash = trash_, cancel, queue,
                 roots = std::move(roots)] { scanBody(directories, clock, trash, cancel, queue, roots); };
    try {
        startThread("zelk.scan", ParallelWalker::stackBytes, std::move(body));
    } catch (const std::system_error&) {
        // No thread can be started: report an empty survey in the usual order.
        queue->yield(update::Insights{});
        queue->yield(update::Finished{FSNode::make("", clock_.now()), {.roots = std::move(named)}});
        queue->finish();
    }
}

ScanPhases ScanEngine::runHere(const std::shared_ptr<UpdateQueue>& queue, std::vector<std::string> roots) {
    return scanBody(directories_, clock_, trash_, cancelledBy(*queue), queue, std::move(roots));
}

std::int64_t ScanEngine::resolveWorkerCount() {
    return resolveWorkers().usual;
}

std::int64_t ScanEngine::workerCountFor(const char* setting, std::int64_t activeProcessors) {
    return workerLimitsFor(setting, activeProcessors).usual;
}

WorkerLimits ScanEngine::workerLimitsFor(const char* setting, std::int64_t activeProcessors) {
    if (setting != nullptr) {
        std::string_view text = setting;
        // from_chars accepts a minus but no plus.
        if (text.starts_with('+')) {
            text.remove_prefix(1);
            if (text.starts_with('-')) text = {};
        }
        std::int64_t wanted = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), wanted);
        if (error == std::errc() && end == text.data() + text.size() && wanted > 0) return {wanted, wanted};
    }
    // What is enough to keep the processors busy is too little for a disk, which orders what it is asked for.
    constexpr std::int64_t enoughForADisk = 32;
    const auto usual =
        std::max<std::int64_t>(4, static_cast<std::int64_t>(static_cast<double>(activeProcessors) * 1.5));
    return {usual, std::max(usual, std::min(usual * 4, enoughForADisk))};
}

ScanStats statsOf(const ScanCounters::Counts& counts, std::int64_t totalBytes, double seconds,
                  std::vector<std::string> roots, const CancelFlag& cancel) {
    return {counts.files, counts.dirs, totalBytes, counts.blocked, seconds, std::move(roots), cancel.isSet()};
}

std::int64_t rollUpSizes(FSNode& top) {
    // Needs no list of the folders above: these are found by their links.
    FSNode* at = &top;
    at->size = at->ownFileBytes;
    while (true) {
        FSNode* next = at->firstChild();
        while (next == nullptr) {
            if (at == &top) return top.size;
            at->parent()->size += at->size;
            next = at->nextSibling();
            if (next == nullptr) at = at->parent();
        }
        at = next;
        at->size = at->ownFileBytes;
    }
}

}  // namespace zelk
