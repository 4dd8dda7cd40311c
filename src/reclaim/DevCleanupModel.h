// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/Platform.h"
#include "reclaim/Cleaner.h"
#include "reclaim/CleanupSelection.h"
#include "reclaim/MainThreadCalls.h"
#include "reclaim/RemovalsModel.h"

namespace zelk {

/// What a person chose to clean, and the cleaning itself. The items are those of the last survey, handed in at each
/// call; nothing is removed but by clean(). Main thread.
class DevCleanupModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(qint64 ageDays READ ageDays WRITE setAgeDays NOTIFY ageDaysChanged)
    Q_PROPERTY(bool isCleaning READ isCleaning NOTIFY isCleaningChanged)
    Q_PROPERTY(bool showDryRun READ showDryRun WRITE setShowDryRun NOTIFY showDryRunChanged)

public:
    using Items = std::vector<Reclaimable>;

    /// The services must outlive it and a cleaning that is under way when it goes; `removals` must outlive it.
    DevCleanupModel(const Platform& platform, RemovalsModel& removals, QObject* parent = nullptr);

    /// Only what was left alone for more than this many days is shown; 0 and below show all.
    std::int64_t ageDays() const { return ageDays_; }
    void setAgeDays(std::int64_t days);
    bool isCleaning() const { return isCleaning_; }
    const std::vector<Cleaner::Result>& lastResults() const { return lastResults_; }
    bool showDryRun() const { return showDryRun_; }
    void setShowDryRun(bool show);
    const CleanupSelection& selection() const { return selection_; }

    /// So many items of so many bytes.
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
    std::vector<CleanupGroup> groups(const Items& reclaimables) const;

    /// Ticks and running applications, read anew for a list of another length.
    void seed(const Items& reclaimables);
    void toggle(const Reclaimable& item);
    void setAll(const CleanupGroup& group, bool on);
    void selectOnly(const Items& items);
    CleanupSelection::Counts selectionCounts(const CleanupGroup& group) const { return selection_.counts(group); }
    /// What would be cleaned now.
    Items selectedItems(const Items& reclaimables) const { return selection_.chosen(shown(reclaimables)); }
    std::int64_t selectedBytes(const Items& reclaimables) const { return totalSize(selectedItems(reclaimables)); }

    /// The same as a count, and of all that the age filter lets through.
    struct Tallies {
        Tally shown;
        Tally selected;
    };
    Tallies tallies(const Items& reclaimables) const;

    /// Comes back at once; isCleaning() until the results are there.
    void clean(Items items, bool hardDelete);
    /// Of the cleaning under way, or else of the last one.
    RemovalsModel::Progress progress() const;
    RemovalsModel& removals() const { return removals_; }
    /// The sizes of what the last cleaning took away. A tool may have freed less than its item's size.
    std::int64_t reclaimedBytes() const;

signals:
    void ageDaysChanged();
    void selectionChanged();
    void isCleaningChanged();
    /// Now and then while it cleans.
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
    MainThreadCalls calls_;
};

/// Whether the item is gone from where it was.
bool tookAway(const Cleaner::Result& result);

}  // namespace zelk
