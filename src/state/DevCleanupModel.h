// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/Platform.h"
#include "reclaim/Cleaner.h"
#include "reclaim/CleanupSelection.h"
#include "state/MainThreadQueue.h"
#include "state/RemovalsModel.h"

namespace zelk {

/// The selection on the Reclaim screen, and the cleaning of it. Each call passes the items of the last survey; only
/// clean() removes anything. Owned by its screen; main thread only. A failure to clean is one of lastResults().
class DevCleanupModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(qint64 ageDays READ ageDays WRITE setAgeDays NOTIFY ageDaysChanged)
    Q_PROPERTY(bool isCleaning READ isCleaning NOTIFY isCleaningChanged)
    Q_PROPERTY(bool showDryRun READ showDryRun WRITE setShowDryRun NOTIFY showDryRunChanged)

public:
    using Items = std::vector<Reclaimable>;
    using Group = CleanupGroup;

    /// The services must outlive the model and a cleaning that is running when it is destroyed; `removals` the model.
    DevCleanupModel(const Platform& platform, RemovalsModel& removals, QObject* parent = nullptr);

    /// Only items that were not modified for more than this many days are shown; 0 and below show all.
    std::int64_t ageDays() const { return ageDays_; }
    void setAgeDays(std::int64_t days);
    bool isCleaning() const { return isCleaning_; }
    const std::vector<Cleaner::Result>& lastResults() const { return lastResults_; }
    bool showDryRun() const { return showDryRun_; }
    void setShowDryRun(bool show);
    const CleanupSelection& selection() const { return selection_; }

    /// A number of items and the sum of their sizes.
    struct Tally {
        std::size_t items = 0;
        std::int64_t bytes = 0;

        void add(const Reclaimable& item) {
            ++items;
            bytes += static_cast<std::int64_t>(item.size);
        }
        bool operator==(const Tally&) const = default;
    };

    /// The items that the age filter lets through.
    Items shown(const Items& reclaimables) const;
    std::vector<Group> groups(const Items& reclaimables) const;

    /// Selects anew and reads the running applications, unless the list has the same length as the last one.
    void seed(const Items& reclaimables);
    void toggle(const Reclaimable& item);
    void setAll(const Group& group, bool on);
    void selectOnly(const Items& items);
    CleanupSelection::Counts selectionCounts(const Group& group) const { return selection_.counts(group); }
    /// The items that would be cleaned now.
    Items selectedItems(const Items& reclaimables) const { return selection_.chosen(shown(reclaimables)); }
    std::int64_t selectedBytes(const Items& reclaimables) const { return totalSize(selectedItems(reclaimables)); }

    /// Counts of the selected items and of all that the age filter lets through.
    struct Tallies {
        Tally shown;
        Tally selected;
    };
    Tallies tallies(const Items& reclaimables) const;

    /// Returns at once; isCleaning() is true until the results have arrived. Does nothing while it is true already.
    void clean(Items items, bool hardDelete);
    /// Of the running cleaning, or else of the last one.
    RemovalsModel::Progress progress() const;
    RemovalsModel& removals() const { return removals_; }
    /// The sum of the sizes of what the last cleaning removed. A tool may have freed less than its item's size.
    std::int64_t reclaimedBytes() const;

signals:
    void ageDaysChanged();
    void selectionChanged();
    void isCleaningChanged();
    /// At most twice a second while it cleans.
    void progressChanged();
    void lastResultsChanged();
    void showDryRunChanged();

private:
    void finish(std::vector<Cleaner::Result> results);

    Platform platform_;
    RemovalsModel& removals_;
    std::shared_ptr<const Removal> removal_;  // null before the first
    std::int64_t ageDays_ = 14;
    CleanupSelection selection_;
    bool isCleaning_ = false;
    std::vector<Cleaner::Result> lastResults_;
    bool showDryRun_ = false;
    MainThreadQueue mainThread_;
};

/// Whether the item was removed.
bool wasRemoved(const Cleaner::Result& result);

}  // namespace zelk
