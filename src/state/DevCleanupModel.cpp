// SPDX-License-Identifier: MIT
#include "state/DevCleanupModel.h"

#include <utility>

namespace zelk {

namespace {

/// Reads the running applications once. Reading them again for each of thousands of items would take seconds and could
/// give contradictory answers.
class WorkspaceSnapshot : public Workspace {
public:
    explicit WorkspaceSnapshot(Workspace& real) : real_(real) {}

    std::vector<std::string> runningApplications() override {
        look();
        return names_;
    }
    bool knowsRunningApplications() override {
        look();
        return known_;
    }
    void reveal(const std::vector<std::string>& paths) override { real_.reveal(paths); }
    void openURL(const std::string& url) override { real_.openURL(url); }
    std::optional<IconPixels> icon(const std::string& path, bool isDirectory, int side) override {
        return real_.icon(path, isDirectory, side);
    }

private:
    /// Asked before and after: the system may look again in between, and without success, and then the names are none.
    void look() {
        if (std::exchange(looked_, true)) return;
        const bool before = real_.knowsRunningApplications();
        names_ = real_.runningApplications();
        known_ = before && real_.knowsRunningApplications();
    }

    Workspace& real_;
    bool looked_ = false;
    bool known_ = false;
    std::vector<std::string> names_;
};

}  // namespace

DevCleanupModel::DevCleanupModel(const Platform& platform, RemovalsModel& removals, QObject* parent)
    : QObject(parent), platform_(platform), removals_(removals) {
    connect(&removals, &RemovalsModel::progressChanged, this, [this] {
        if (isCleaning_) emit progressChanged();
    });
}

void DevCleanupModel::setAgeDays(std::int64_t days) {
    if (days == ageDays_) return;
    ageDays_ = days;
    emit ageDaysChanged();
}

void DevCleanupModel::setShowDryRun(bool show) {
    if (show == showDryRun_) return;
    showDryRun_ = show;
    emit showDryRunChanged();
}

DevCleanupModel::Items DevCleanupModel::shown(const Items& reclaimables) const {
    return ageFiltered(reclaimables, ageDays_, platform_.clock.now());
}

std::vector<DevCleanupModel::Group> DevCleanupModel::groups(const Items& reclaimables) const {
    return cleanupGroups(shown(reclaimables));
}

DevCleanupModel::Tallies DevCleanupModel::tallies(const Items& reclaimables) const {
    const TimePoint now = platform_.clock.now();
    Tallies tallies;
    for (const Reclaimable& item : reclaimables) {
        if (!isOldEnough(item, ageDays_, now)) continue;
        tallies.shown.add(item);
        if (selection_.takes(item)) tallies.selected.add(item);
    }
    return tallies;
}

void DevCleanupModel::seed(const Items& reclaimables) {
    if (reclaimables.size() == selection_.seededFor()) return;
    WorkspaceSnapshot workspace(platform_.workspace);
    selection_.seed(reclaimables, [&](const Reclaimable& item) { return Cleaner::runningConflict(item, workspace); });
    emit selectionChanged();
}

void DevCleanupModel::toggle(const Reclaimable& item) {
    selection_.toggle(item);
    emit selectionChanged();
}

void DevCleanupModel::setAll(const Group& group, bool on) {
    selection_.setAll(group, on);
    emit selectionChanged();
}

void DevCleanupModel::selectOnly(const Items& items) {
    selection_.selectOnly(items);
    emit selectionChanged();
}

void DevCleanupModel::clean(Items items, bool hardDelete) {
    if (isCleaning_) return;
    isCleaning_ = true;
    const std::shared_ptr<Removal> removal = removals_.begin(items.size());
    removal_ = removal;
    emit isCleaningChanged();
    Cleaner::cleanAll(
        std::move(items), hardDelete, platform_,
        [this, sender = mainThread_.sender()](std::vector<Cleaner::Result> results) {
            sender.post([this, results = std::move(results)]() mutable { finish(std::move(results)); });
        },
        removal);
}

RemovalsModel::Progress DevCleanupModel::progress() const {
    return removal_ ? RemovalsModel::Progress{removal_->done(), removal_->items()} : RemovalsModel::Progress();
}

void DevCleanupModel::finish(std::vector<Cleaner::Result> results) {
    lastResults_ = std::move(results);
    emit lastResultsChanged();
    isCleaning_ = false;
    emit isCleaningChanged();
}

std::int64_t DevCleanupModel::reclaimedBytes() const {
    std::int64_t bytes = 0;
    for (const Cleaner::Result& result : lastResults_)
        if (wasRemoved(result)) bytes += static_cast<std::int64_t>(result.item.size);
    return bytes;
}

bool wasRemoved(const Cleaner::Result& result) {
    return std::holds_alternative<Cleaner::RanCommand>(result.status) ||
           std::holds_alternative<Cleaner::Trashed>(result.status);
}

}  // namespace zelk

#include "moc_DevCleanupModel.cpp"
