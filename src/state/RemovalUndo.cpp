// SPDX-License-Identifier: MIT
#include "state/RemovalUndo.h"

#include <algorithm>
#include <utility>

#include "platform/Translation.h"
#include "state/ReleaseElsewhere.h"

namespace zelk {

namespace {

Failure lonelyPart(const TrashedItem& item) {
    return filled(translated("Failure", "“%1” belongs to something that was not restored."), {item.origin.name()});
}

}  // namespace

RemovalUndo::RemovalUndo(const Platform& platform, MainThreadQueue::Sender mainThread)
    : tasks_(platform.tasks), trash_(platform.trash), mainThread_(std::move(mainThread)) {}

RemovalUndo::~RemovalUndo() {
    forgetResults();
}

void RemovalUndo::offer(Source source, std::size_t moved, std::vector<Item> items) {
    if (moved == 0) return;
    source_ = source;
    moved_ = moved;
    release(std::exchange(items_, std::move(items)));
    emit changed();
    emit offered();
}

void RemovalUndo::forgetResults() {
    if (isOfSurvey(source_)) forgetResultsOf(items_);
    if (isOfSurvey(restoringSource_)) forgetResultsOf(restoring_);
}

void RemovalUndo::forgetResultsOf(std::vector<Item>& items) {
    std::vector<Item> kept;
    kept.reserve(items.size());
    for (const Item& item : items) kept.push_back({item.trashed, nullptr, item.isPart});
    release(std::exchange(items, std::move(kept)));
}

/// The functions hold folders of the tree, and the last reference to a large one takes milliseconds to destroy.
void RemovalUndo::release(std::vector<Item> items) {
    const auto holdsFolder = [](const Item& item) { return item.putBack != nullptr; };
    if (std::any_of(items.begin(), items.end(), holdsFolder)) releaseElsewhere(tasks_, std::move(items));
}

void RemovalUndo::undo(std::function<void(bool resultsAreComplete)> settle) {
    if (restorable() == 0) return;
    restoringSource_ = source_;
    restoring_ = std::exchange(items_, {});
    std::reverse(restoring_.begin(), restoring_.end());
    const std::size_t notFound = std::exchange(moved_, 0) - restoring_.size();
    underWay_ = true;
    std::vector<std::pair<TrashedItem, bool>> items;  // and whether it is a part
    items.reserve(restoring_.size());
    for (const Item& item : restoring_) items.emplace_back(item.trashed, item.isPart);
    auto work = [this, mainThread = mainThread_, &trash = trash_, notFound, items = std::move(items),
                 settle = std::move(settle)] {
        std::vector<Failure> failures;
        failures.reserve(items.size());
        bool hasWhole = true;
        for (const auto& [item, isPart] : items) {
            failures.push_back(isPart && !hasWhole ? lonelyPart(item) : trash.restore(item));
            if (!isPart) hasWhole = !failures.back();
        }
        mainThread.post(
            [this, notFound, failures = std::move(failures), settle] { finish(notFound, failures, settle); });
    };
    emit changed();
    tasks_.run(TaskPriority::userInitiated, std::move(work));
}

void RemovalUndo::finish(std::size_t notFound, const std::vector<Failure>& failures,
                         const std::function<void(bool)>& settle) {
    Outcome outcome;
    outcome.notFound = notFound;
    bool resultsAreComplete = true;
    for (std::size_t i = 0; i < failures.size(); ++i) {
        if (failures[i]) {
            outcome.failures.push_back(*failures[i]);
            continue;
        }
        ++outcome.restored;
        // Taken out of the list before the call, which emits signals: a handler may begin a survey.
        const std::function<bool()> putBack = std::exchange(restoring_[i].putBack, nullptr);
        resultsAreComplete = putBack && putBack() && resultsAreComplete;
    }
    release(std::exchange(restoring_, {}));
    underWay_ = false;
    if (outcome.restored > 0) settle(resultsAreComplete);
    emit changed();
    emit ended(outcome);
}

}  // namespace zelk

#include "moc_RemovalUndo.cpp"
