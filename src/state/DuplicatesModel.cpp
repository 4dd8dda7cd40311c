// SPDX-License-Identifier: MIT
#include "state/DuplicatesModel.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "reclaim/DuplicateRemoval.h"

namespace zelk {

namespace {

constexpr double secondsBetweenReports = 0.1;

}  // namespace

/// A group that has left the list, and which of its files are there again.
struct DuplicatesModel::Removed {
    DuplicateGroup group;
    std::set<std::string> present;
    int search;  ///< that found it
};

DuplicatesModel::DuplicatesModel(const Platform& platform, RemovalsModel& removals, RemovalUndo& undo,
                                 MainThreadQueue::Sender mainThread)
    : platform_(platform), removals_(removals), undo_(undo), mainThread_(std::move(mainThread)) {
    connect(&undo_, &RemovalUndo::ended, this, &DuplicatesModel::listRestored);
}

DuplicatesModel::~DuplicatesModel() {
    abandoned_->set();
}

std::int64_t DuplicatesModel::totalRecoverable() const {
    std::int64_t bytes = 0;
    for (const DuplicateGroup& group : groups_) bytes += group.recoverable();
    return bytes;
}

void DuplicatesModel::scan(const std::vector<std::string>& roots) {
    const int search = ++searches_;
    const bool isFirst = !std::exchange(hasScanned_, true);
    // Before anybody is told that the first was started, or that there are no groups: there are no results meanwhile.
    setLoading(true);
    if (isFirst) emit hasScannedChanged();
    setGroups({});
    setProgress({});
    auto work = [this, search, roots, platform = platform_, mainThread = mainThread_, abandoned = abandoned_] {
        DuplicateFinder finder(platform);
        finder.abandoned = abandoned;
        std::optional<double> reported;
        finder.progress = [&](const HashProgress& progress) {
            const double now = platform.clock.monotonic();
            if (reported && now - *reported < secondsBetweenReports) return;
            reported = now;
            mainThread.post([this, search, progress] {
                if (search == searches_) setProgress(progress);
            });
        };
        mainThread.post([this, groups = finder.find(roots, DuplicateFinder::usualMinimum)]() mutable {
            setGroups(std::move(groups));
            setLoading(false);
        });
    };
    platform_.tasks.run(TaskPriority::userInitiated, std::move(work));
}

/// Takes copies, since both arguments usually lie in the list that the group leaves.
void DuplicatesModel::trashOthers(DuplicateGroup group, std::string keep) {
    const auto isIt = [&](const DuplicateGroup& one) { return one.hash == group.hash; };
    const bool leaves = std::erase_if(groups_, isIt) > 0;
    // A removal that is under way may keep another file of it. Two at once could move both.
    if (!removing_.insert(group.hash).second) {
        if (leaves) emit groupsChanged();
        return;
    }
    const auto removed = std::make_shared<Removed>(Removed{std::move(group), {keep}, searches_});
    const std::vector<std::string>& paths = removed->group.paths;
    // Counted before a handler of the signal below may ask what is under way.
    const auto others = std::count_if(paths.begin(), paths.end(), [&](const auto& path) { return path != keep; });
    const std::shared_ptr<Removal> removal = removals_.begin(static_cast<std::size_t>(others));
    if (leaves) emit groupsChanged();
    auto work = [this, removed, keep, removal, platform = platform_, mainThread = mainThread_] {
        MovedDuplicates moved = trashDuplicates(removed->group, keep, platform, *removal);
        mainThread.post([this, removed, moved = std::move(moved)] {
            removing_.erase(removed->group.hash);
            removed->present.insert(moved.stayed.begin(), moved.stayed.end());
            std::vector<RemovalUndo::Item> restorable;
            for (const MovedDuplicates::Item& item : moved.restorable)
                // Called by an object of the same owner, while both exist.
                restorable.push_back({item.trashed, [this, removed, path = item.file.item.text()] {
                                          removed->present.insert(path);
                                          restored_ = removed;
                                          return true;
                                      }});
            undo_.offer(RemovalUndo::Source::duplicates, moved.moved, std::move(restorable));
        });
    };
    platform_.tasks.run(TaskPriority::userInitiated, std::move(work));
}

/// Lists the group again, with the files of it that are there. Their stamps have changed on the way to the Trash and
/// back, so they have to be read before the next move.
void DuplicatesModel::listRestored() {
    const std::shared_ptr<Removed> restored = std::exchange(restored_, nullptr);
    if (!restored || restored->search != searches_ || loading_) return;
    const Removed& removed = *restored;
    DuplicateGroup group;
    group.hash = removed.group.hash;
    group.size = removed.group.size;
    for (HashedFile file : removed.group.files) {
        if (!removed.present.contains(file.item.text())) continue;
        file.settled = false;
        group.paths.push_back(file.item.text());
        group.files.push_back(std::move(file));
    }
    std::vector<DuplicateGroup> groups = groups_;
    std::erase_if(groups, [&](const DuplicateGroup& one) { return one.hash == group.hash; });
    const auto wastesMore = [](const DuplicateGroup& a, const DuplicateGroup& b) {
        return a.recoverable() > b.recoverable();
    };
    groups.insert(std::upper_bound(groups.begin(), groups.end(), group, wastesMore), std::move(group));
    setGroups(std::move(groups));
}

void DuplicatesModel::setLoading(bool loading) {
    if (std::exchange(loading_, loading) != loading) emit loadingChanged();
}

void DuplicatesModel::setGroups(std::vector<DuplicateGroup> groups) {
    if (groups == groups_) return;
    groups_ = std::move(groups);
    emit groupsChanged();
}

void DuplicatesModel::setProgress(const HashProgress& progress) {
    if (progress == progress_) return;
    progress_ = progress;
    emit progressChanged();
}

}  // namespace zelk

#include "moc_DuplicatesModel.cpp"
