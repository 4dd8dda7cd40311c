// SPDX-License-Identifier: MIT
// The life of a survey: from the button through the updates and the finish to the record in the history. Every signal
// may run a handler that cancels or starts another survey, so after signals the task at hand is looked at again.
#include <algorithm>
#include <iterator>
#include <variant>

#include "reclaim/ReclaimClassifier.h"
#include "scan/FoldersAt.h"
#include "scan/ScanEngine.h"
#include "state/AppModel.h"
#include "state/ScanTask.h"

namespace zelk {

namespace {

/// True if one of `folders` holds `path`, however far above it.
bool isBelow(const std::set<std::string>& folders, const std::string& path) {
    if (folders.empty()) return false;
    for (std::size_t slash = path.rfind('/'); slash != 0 && slash != std::string::npos;
         slash = path.rfind('/', slash - 1))
        if (folders.contains(path.substr(0, slash))) return true;
    return false;
}

}  // namespace

void AppModel::startScan() {
    if (scanPhase_ == ScanPhase::scanning) return;
    const auto task = std::make_shared<ScanTask>();
    scanTask_ = task;
    assign(scanPhase_, ScanPhase::scanning, &AppModel::scanPhaseChanged);
    if (scanTask_ != task) return;

    // The tree, its figures and the history of the survey before stay readable until this one has finished.
    assign(itemsScanned_, 0, &AppModel::itemsScannedChanged);
    assign(bytesScanned_, 0, &AppModel::bytesScannedChanged);
    assign(blockedPaths_, 0, &AppModel::blockedPathsChanged);
    setReclaimables({});
    assign(insights_, {}, &AppModel::insightsChanged);
    assign(currentPath_, firstPlace(), &AppModel::currentPathChanged);
    setVolume(platform_.vitals.volume(firstPlace()));
    if (scanTask_ != task) return;

    task->queue->setWakeReader([this, sender = calls_.sender(), reading = std::weak_ptr(task)] {
        sender.post([this, reading] {
            if (const auto awaited = reading.lock()) consumeUpdates(awaited);
        });
    });
    ScanEngine(platform_.directories, platform_.clock, platform_.locations.trashPlaces())
        .start(task->queue, scanRoots_);
}

void AppModel::scanAnew() {
    if (ScanTask* walk = walkUnderWay())
        walk->again = true;
    else
        startScan();
}

void AppModel::cancelScan() {
    if (const auto task = std::exchange(scanTask_, nullptr)) {
        releaseElsewhere(task->queue->terminate());
        if (scanPhase_ == ScanPhase::scanning && !task->counts) withdraw(*task);
    }
    assign(scanPhase_, ScanPhase::idle, &AppModel::scanPhaseChanged);
}

/// After a cancel nothing is left of the survey, and what was there before it is there again.
void AppModel::withdraw(ScanTask& task) {
    task.cancelled->set();
    if (const auto before = std::exchange(task.before, std::nullopt)) {
        withdrawn_.insert(root_.get());
        releaseElsewhere(std::exchange(root_, before->root));
        emit rootChanged();
        assign(stats_, before->stats, &AppModel::statsChanged);
    }
    setReclaimables({});
    assign(insights_, {}, &AppModel::insightsChanged);
}

void AppModel::consumeUpdates(const std::shared_ptr<ScanTask>& task) {
    // A handler with an event loop of its own must not let a later batch overtake this one.
    if (std::exchange(task->reading, true)) return;
    while (scanTask_ == task) {
        std::vector<ScanUpdate> updates = task->queue->takeAll().updates;
        if (updates.empty()) break;
        // Of the progress in one batch only the last would ever be seen.
        const auto isProgress = [](const ScanUpdate& one) { return std::holds_alternative<update::Progress>(one); };
        const auto lastProgress = std::find_if(updates.rbegin(), updates.rend(), isProgress);
        for (ScanUpdate& one : updates) {
            if (scanTask_ != task) break;
            if (!isProgress(one) || &one == &*lastProgress) take(task, std::move(one));
        }
        if (scanTask_ != task) releaseElsewhere(std::move(updates));
    }
    task->reading = false;
}

void AppModel::take(const std::shared_ptr<ScanTask>& task, ScanUpdate update) {
    if (auto* progress = std::get_if<update::Progress>(&update)) {
        assign(itemsScanned_, progress->scanned, &AppModel::itemsScannedChanged);
        assign(bytesScanned_, progress->bytes, &AppModel::bytesScannedChanged);
        assign(currentPath_, std::move(progress->currentPath), &AppModel::currentPathChanged);
    } else if (auto* found = std::get_if<update::Insights>(&update)) {
        std::erase_if(found->insights.topFiles, [&](const LargeFile& file) {
            return task->trashedFiles.contains(file.path) || isBelow(task->trashedFolders, file.path);
        });
        assign(insights_, std::move(found->insights), &AppModel::insightsChanged);
    } else if (const auto* blocked = std::get_if<update::Blocked>(&update)) {
        assign(blockedPaths_, blocked->count, &AppModel::blockedPathsChanged);
    } else if (auto* finished = std::get_if<update::Finished>(&update)) {
        finish(task, std::move(*finished));
    }
}

void AppModel::finish(const std::shared_ptr<ScanTask>& task, update::Finished finished) {
    const ScanStats& stats = finished.stats;
    const std::int64_t size = finished.root->size;
    task->before = {std::exchange(root_, std::move(finished.root)), std::exchange(stats_, stats)};
    withdrawn_.erase(root_.get());  // one that was there has gone, and left its place in the memory to this one
    emit rootChanged();
    if (scanTask_ == task && task->before->stats != stats_) emit statsChanged();
    if (scanTask_ != task) return;
    assign(bytesScanned_, size, &AppModel::bytesScannedChanged);
    assign(itemsScanned_, stats.filesScanned + stats.dirsScanned, &AppModel::itemsScannedChanged);
    assign(blockedPaths_, stats.blockedPaths, &AppModel::blockedPathsChanged);
    if (scanTask_ == task) classify(task);
}

void AppModel::classify(const std::shared_ptr<ScanTask>& task) {
    auto work = [this, sender = calls_.sender(), waiting = std::weak_ptr(task), tree = root_, home = home_,
                 classifier = ReclaimClassifier(platform_.files, ReclaimPlaces::of(platform_.locations))] {
        std::vector<Reclaimable> items;
        classifier.collect(*tree, home, items);
        sender.post([this, waiting, items = std::move(items)]() mutable {
            if (const auto awaited = waiting.lock()) completeFinish(awaited, std::move(items));
        });
    };
    task->treeIsRead = true;
    platform_.tasks.run(TaskPriority::standard, std::move(work));
}

void AppModel::completeFinish(const std::shared_ptr<ScanTask>& task, std::vector<Reclaimable> items) {
    if (scanTask_ != task) return;
    setReclaimables(std::move(items));
    if (scanTask_ != task) return;
    removeWhatWaited(*task);
    if (scanTask_ == task) recordSurvey(task, root_->size, root_);
}

/// No other thread reads the tree any more.
void AppModel::removeWhatWaited(ScanTask& task) {
    task.treeIsRead = false;
    std::vector<NodeRef> removals = foldersAt(*root_, std::exchange(task.trashedFolders, {}));
    std::move(task.removals.begin(), task.removals.end(), std::back_inserter(removals));
    task.removals.clear();
    for (NodeRef& node : removals) {
        removeFromTree(*node);
        releaseElsewhere(std::move(node));
    }
}

/// The record is made here and kept elsewhere: reading and encoding a full history and flushing it to the disk take
/// long enough to be seen as a jerk in the last frame of a survey.
void AppModel::recordSurvey(const std::shared_ptr<ScanTask>& task, std::int64_t total, const NodeRef& tree) {
    SurveyRecord record;
    record.date = platform_.clock.now();
    record.totalScanned = total;
    if (volume_) {
        record.used = std::max<std::int64_t>(0, volume_->total - volume_->available);
        record.free = volume_->available;
    }
    record.reclaimable = reclaimableBytes();
    for (const FileType type : allFileTypes)
        if (insights_.typeTotals.contains(type)) record.types.emplace(rawValue(type), insights_.typeTotals[type].bytes);

    auto work = [this, sender = calls_.sender(), waiting = std::weak_ptr(task), cancelled = task->cancelled,
                 file = historyFile_, tree, record]() mutable {
        record.folders = bigFolders(*tree, 20'000'000, 400);
        auto history = file->appendIf([cancelled] { return !cancelled->isSet(); }, record);
        if (!history) return;
        // A cancel that came while the file was being written, or comes before the survey counts, leaves no record all
        // the same.
        if (cancelled->isSet()) return file->settle();
        sender.post([this, waiting, cancelled, file, history = std::move(*history)]() mutable {
            if (cancelled->isSet())
                platform_.tasks.run(TaskPriority::standard, [file] { file->settle(); });
            else if (const auto awaited = waiting.lock())
                conclude(awaited, std::move(history));
        });
    };
    task->treeIsRead = true;
    platform_.tasks.run(TaskPriority::standard, std::move(work));
}

void AppModel::conclude(const std::shared_ptr<ScanTask>& task, std::vector<SurveyRecord> history) {
    if (scanTask_ != task) return;
    task->counts = true;
    assign(history_, std::move(history), &AppModel::historyChanged);
    releaseElsewhere(std::move(std::exchange(task->before, std::nullopt)->root));
    removeWhatWaited(*task);
    if (scanTask_ != task) return;
    settleTrash();
    if (scanTask_ != task) return;
    assign(scanPhase_, ScanPhase::finished, &AppModel::scanPhaseChanged);
    if (task->again && scanTask_ == task) startScan();
}

}  // namespace zelk
