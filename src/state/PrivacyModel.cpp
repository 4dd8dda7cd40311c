// SPDX-License-Identifier: MIT
#include "state/PrivacyModel.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "state/TextFinder.h"

namespace zelk {

namespace {

void sortBySize(std::vector<Trace>& traces) {
    std::stable_sort(traces.begin(), traces.end(), [](const Trace& a, const Trace& b) { return a.size > b.size; });
}

Trace& traceIn(std::vector<Trace>& traces, const Trace& like) {
    const auto isIt = [&](const Trace& trace) { return trace.identity() == like.identity(); };
    const auto found = std::find_if(traces.begin(), traces.end(), isIt);
    if (found != traces.end()) return *found;
    Trace empty = like;
    empty.paths.clear();
    empty.sizes.clear();
    empty.size = 0;
    return traces.emplace_back(std::move(empty));
}

}  // namespace

/// Traces on their way to the Trash. Shared by the task that moves them and the closure that reports to the main
/// thread, which reads what the task wrote after that has ended.
struct PrivacyModel::Clearing {
    struct Step {
        const Trace* trace;
        std::string path;  ///< a leading one
        bool tried = false;
        std::vector<MovedPath> moved;
    };

    std::vector<Trace> traces;
    std::vector<Step> steps;
};

PrivacyModel::PrivacyModel(const Platform& platform, RemovalsModel& removals, RemovalUndo& undo,
                           MainThreadQueue::Sender mainThread)
    : platform_(platform), removals_(removals), undo_(undo), mainThread_(std::move(mainThread)) {}

void PrivacyModel::scanTraces() {
    const bool isFirst = !std::exchange(hasScanned_, true);
    const bool starts = traces_.empty() && !loading_;
    if (starts) loading_ = true;
    if (isFirst) emit hasScannedChanged();
    if (!starts) return;
    if (clearings_ == 0) measure();
    emit loadingChanged();
}

void PrivacyModel::measure() {
    auto work = [this, mainThread = mainThread_, &files = platform_.files, &locations = platform_.locations,
                 system = platform_.system, scan = ++scans_] {
        mainThread.post([this, scan, found = findTraces(files, locations, system)] {
            // What is cleared meanwhile may have been measured still; finishClearing() measures anew.
            if (scan == scans_ && clearings_ == 0) finishScan(found);
        });
    };
    platform_.tasks.run(TaskPriority::userInitiated, std::move(work));
}

void PrivacyModel::finishScan(TraceFindings found) {
    // What an undo has put back meanwhile may have been passed already.
    for (const Trace& restored : std::exchange(traces_, std::move(found.traces)))
        for (const auto& [path, size] : restored.sizes) traceIn(traces_, restored).add(path, size, restored.paths);
    sortBySize(traces_);
    locks_ = std::move(found.locks);
    lockedApps_ = std::move(found.running);
    firefoxHistoryStays_ = found.firefoxHistoryStays;
    std::set<std::string> caches;
    for (const Trace& trace : traces_)
        if (trace.kind == cacheKind) caches.insert(trace.identity());
    const bool reselected = std::exchange(selected_, caches) != caches;
    loading_ = false;
    emit tracesChanged();
    if (reselected) emit selectionChanged();
    emit loadingChanged();
    refreshRunning();
}

std::uint64_t PrivacyModel::selectedBytes() const {
    std::uint64_t bytes = 0;
    for (const Trace& trace : traces_)
        if (selected_.contains(trace.identity())) bytes += trace.size;
    return bytes;
}

void PrivacyModel::setSelected(const std::string& identity, bool selected) {
    std::set<std::string> identities = selected_;
    if (selected)
        identities.insert(identity);
    else
        identities.erase(identity);
    select(std::move(identities));
}

void PrivacyModel::select(std::set<std::string> identities) {
    if (identities == selected_) return;
    selected_ = std::move(identities);
    emit selectionChanged();
}

void PrivacyModel::clearSelected() {
    const auto clearing = std::make_shared<Clearing>();
    for (const Trace& trace : traces_)
        if (selected_.contains(trace.identity())) clearing->traces.push_back(trace);
    for (const Trace& trace : clearing->traces)
        for (std::string& path : leadingPaths(trace)) clearing->steps.push_back({&trace, std::move(path), false, {}});
    if (!clearing->steps.empty()) {
        ++clearings_;
        auto work = [this, mainThread = mainThread_, &files = platform_.files, &trash = platform_.trash, clearing,
                     removal = removals_.begin(clearing->steps.size())] {
            for (Clearing::Step& step : clearing->steps) {
                step.tried = removal->mayBegin();
                if (step.tried) step.moved = moveToTrash(files, trash, *step.trace, step.path);
                step.tried ? removal->noteDone() : removal->noteSkipped();
            }
            mainThread.post([this, clearing] { finishClearing(*clearing); });
        };
        platform_.tasks.run(TaskPriority::userInitiated, std::move(work));
    }
    const std::set<std::string> cleared = std::exchange(selected_, {});
    const auto isCleared = [&](const Trace& trace) { return cleared.contains(trace.identity()); };
    const std::size_t gone = std::erase_if(traces_, isCleared);
    if (gone > 0) emit tracesChanged();
    if (!cleared.empty()) emit selectionChanged();
}

void PrivacyModel::finishClearing(Clearing& clearing) {
    std::vector<RemovalUndo::Item> restorable;
    std::size_t moved = 0;
    for (const Clearing::Step& step : clearing.steps) {
        const Trace& trace = *step.trace;
        if (!step.tried) {
            putBack(trace, step.path, trace.sizes.at(step.path));
            for (const std::string& path : companionsIn(trace, step.path)) putBack(trace, path, trace.sizes.at(path));
        }
        moved += step.moved.size();
        // An undo restores the last one first: a database before its companions, which mean nothing to a new one that
        // its browser has made meanwhile.
        for (auto one = step.moved.rbegin(); one != step.moved.rend(); ++one) {
            if (!one->item) continue;
            const bool isCompanion = one + 1 != step.moved.rend();
            // Called by an object of the same owner, while both exist.
            restorable.push_back(
                {*one->item, [this, trace, path = one->path, size = one->size] { return putBack(trace, path, size); },
                 isCompanion});
        }
    }
    undo_.offer(RemovalUndo::Source::traces, moved, std::move(restorable));
    if (--clearings_ == 0 && loading_) measure();
}

/// Lists a path that is on the disk again.
bool PrivacyModel::putBack(const Trace& origin, const std::string& path, std::uint64_t size) {
    traceIn(traces_, origin).add(path, size, origin.paths);
    sortBySize(traces_);
    emit tracesChanged();
    return true;
}

std::optional<std::string> PrivacyModel::runningBrowser(const std::string& app) const {
    if (!runningKnown_ && app != systemTraces) return app;
    const TextFinder finder(QString::fromStdString(app));
    const auto isIt = [&](const std::string& name) { return finder.isIn(name); };
    const auto named = std::find_if(runningNames_.begin(), runningNames_.end(), isIt);
    if (named != runningNames_.end()) return *named;
    const std::string_view id = desktopIdOf(app);
    const bool hasId = !id.empty() && std::find(runningIds_.begin(), runningIds_.end(), id) != runningIds_.end();
    return hasId || lockedApps_.contains(app) ? std::optional(app) : std::nullopt;
}

void PrivacyModel::refreshRunning() {
    // Before and after: the system may look again in between, and without success, and then the names are none.
    const bool before = platform_.workspace.knowsRunningApplications();
    std::vector<std::string> names = platform_.workspace.runningApplications();
    std::vector<std::string> ids = platform_.workspace.runningApplicationIds();
    const bool known = before && platform_.workspace.knowsRunningApplications();
    const bool changed = names != runningNames_ || ids != runningIds_ || known != runningKnown_;
    runningKnown_ = known;
    runningNames_ = std::move(names);
    runningIds_ = std::move(ids);
    const std::size_t read = ++lockReads_;
    if (!locks_.empty()) {
        auto work = [this, mainThread = mainThread_, &files = platform_.files, locks = locks_, read] {
            mainThread.post([this, read, apps = runningByLocks(files, locks)] {
                if (read == lockReads_ && std::exchange(lockedApps_, apps) != apps) emit runningChanged();
            });
        };
        platform_.tasks.run(TaskPriority::userInitiated, std::move(work));
    }
    if (changed) emit runningChanged();
}

}  // namespace zelk

#include "moc_PrivacyModel.cpp"
