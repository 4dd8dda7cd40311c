// SPDX-License-Identifier: MIT
#include "state/SurveySession.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "reclaim/ReclaimClassifier.h"
#include "scan/ScanEngine.h"
#include "state/ReleaseElsewhere.h"

namespace zelk {

SurveySession::SurveySession(const Platform& platform, std::string home, SurveyResults& results,
                             MainThreadQueue::Sender mainThread, Events events)
    : platform_(platform),
      home_(std::move(home)),
      results_(results),
      mainThread_(std::move(mainThread)),
      events_(std::move(events)) {}

SurveySession::~SurveySession() {
    endScan();
}

void SurveySession::start(const std::vector<std::string>& roots) {
    queue_->setWakeReader([mainThread = mainThread_, waiting = weak_from_this()] {
        mainThread.post([waiting] {
            if (const auto session = waiting.lock()) session->consumeUpdates();
        });
    });
    ScanEngine(platform_.directories, platform_.clock, platform_.locations.trashPlaces()).start(queue_, roots);
}

void SurveySession::cancel() {
    isCancelled_ = true;
    if (!isRecorded_) withdrawn_->set();
    endScan();
}

void SurveySession::endScan() {
    std::vector<ScanUpdate> undelivered = queue_->terminate();
    if (!undelivered.empty()) releaseElsewhere(platform_.tasks, std::move(undelivered));
}

void SurveySession::consumeUpdates() {
    // A handler may run a nested event loop: a later batch must not overtake this one.
    if (std::exchange(isConsuming_, true)) return;
    while (!isCancelled_) {
        std::vector<ScanUpdate> updates = queue_->takeAll().updates;
        if (updates.empty()) break;
        // Nobody would see any but the last progress of a batch.
        const auto isProgress = [](const ScanUpdate& one) { return std::holds_alternative<update::Progress>(one); };
        const auto lastProgress = std::find_if(updates.rbegin(), updates.rend(), isProgress);
        for (ScanUpdate& one : updates) {
            if (isCancelled_) break;
            if (!isProgress(one) || &one == &*lastProgress) take(std::move(one));
        }
        if (isCancelled_) releaseElsewhere(platform_.tasks, std::move(updates));
    }
    isConsuming_ = false;
}

void SurveySession::take(ScanUpdate update) {
    SurveyResults::Progress progress = results_.progress();
    if (auto* reported = std::get_if<update::Progress>(&update)) {
        progress.items = reported->scanned;
        progress.bytes = reported->bytes;
        progress.currentPath = std::move(reported->currentPath);
        results_.setProgress(std::move(progress));
    } else if (const auto* blocked = std::get_if<update::Blocked>(&update)) {
        progress.blockedPaths = blocked->count;
        results_.setProgress(std::move(progress));
    } else if (auto* found = std::get_if<update::Insights>(&update)) {
        results_.setInsights(std::move(found->insights));
    } else if (auto* finished = std::get_if<update::Finished>(&update)) {
        finish(std::move(*finished));
    }
}

void SurveySession::finish(update::Finished finished) {
    const ScanStats& stats = finished.stats;
    const std::int64_t bytes = finished.root->size;
    results_.setTree(std::move(finished.root), stats);
    if (isCancelled_) return;
    results_.setProgress(
        {stats.filesScanned + stats.dirsScanned, bytes, results_.progress().currentPath, stats.blockedPaths});
    if (!isCancelled_) classify();
}

void SurveySession::classify() {
    auto work = [mainThread = mainThread_, waiting = weak_from_this(), tree = results_.root(), home = home_,
                 classifier = ReclaimClassifier(platform_.files, ReclaimPlaces::of(platform_.locations))] {
        std::vector<Reclaimable> items;
        classifier.collect(*tree, home, items);
        mainThread.post([waiting, items = std::move(items)]() mutable {
            if (const auto session = waiting.lock()) session->takeItems(std::move(items));
        });
    };
    results_.beginReading();
    platform_.tasks.run(TaskPriority::standard, std::move(work));
}

void SurveySession::takeItems(std::vector<Reclaimable> items) {
    if (isCancelled_) return;
    results_.setReclaimables(std::move(items));
    if (isCancelled_) return;
    results_.endReading();
    if (!isCancelled_) events_.classified();
}

void SurveySession::record(SurveyRecord record, const NodeRef& tree, const std::shared_ptr<SurveyHistory>& history) {
    auto work = [mainThread = mainThread_, waiting = weak_from_this(), withdrawn = withdrawn_, &tasks = platform_.tasks,
                 history, tree, record = std::move(record)]() mutable {
        record.folders = recordedFolders(*tree);
        auto records = history->appendHistoryIf([withdrawn] { return !withdrawn->isSet(); }, record);
        if (!records) return;
        // Cancelled while the file was being written, or later but before the survey counted: the record goes again.
        if (withdrawn->isSet()) return history->settle();
        mainThread.post([waiting, withdrawn, &tasks, history, records = std::move(*records)]() mutable {
            if (withdrawn->isSet())
                tasks.run(TaskPriority::standard, [history] { history->settle(); });
            else if (const auto session = waiting.lock())
                session->takeHistory(std::move(records));
        });
    };
    results_.beginReading();
    platform_.tasks.run(TaskPriority::standard, std::move(work));
}

void SurveySession::takeHistory(std::vector<SurveyRecord> history) {
    if (isCancelled_) return;
    isRecorded_ = true;
    events_.recorded(std::move(history));
}

}  // namespace zelk
