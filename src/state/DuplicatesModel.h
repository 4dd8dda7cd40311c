// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "reclaim/DuplicateFinder.h"
#include "reclaim/DuplicateGroup.h"
#include "scan/CancelFlag.h"
#include "state/MainThreadQueue.h"
#include "state/RemovalUndo.h"
#include "state/RemovalsModel.h"

namespace zelk {

/// Files of the same content below the scan roots, and the removal of all but one of a set. Independent of the survey.
///
/// Owned by AppModel, so that the list outlives the screen and a search goes on without it; main thread only. Searches
/// and removals run in background tasks. There is no cancelling, but a search ends by itself once the model is gone.
/// Nothing reports an error: what cannot be read is no duplicate, and what cannot be moved stays.
class DuplicatesModel : public QObject {
    Q_OBJECT

public:
    /// All must outlive it, and the services its tasks.
    DuplicatesModel(const Platform& platform, RemovalsModel& removals, RemovalUndo& undo,
                    MainThreadQueue::Sender mainThread);
    ~DuplicatesModel() override;

    /// Those from which most can be recovered first; empty during a search.
    const std::vector<DuplicateGroup>& groups() const { return groups_; }
    /// A search is running.
    bool loading() const { return loading_; }
    /// A search was started at least once.
    bool hasScanned() const { return hasScanned_; }
    /// Of the search that was started last. Changes at most ten times a second.
    const HashProgress& progress() const { return progress_; }
    /// What is gained if of every group one file stays, in bytes.
    std::int64_t totalRecoverable() const;

    /// Starts a search below these folders. If one is running already, both deliver their groups when they end.
    void scan(const std::vector<std::string>& roots);
    /// Moves all files of the group but that at the path `keep` to the Trash, as far as trashDuplicates() allows, and
    /// tells RemovalUndo. The group leaves the list at once, whatever is moved; nothing is while one with the same hash
    /// is being removed. What is put back is listed again when its undo has ended, until the next search.
    void trashOthers(DuplicateGroup group, std::string keep);

signals:
    void groupsChanged();
    void loadingChanged();
    void hasScannedChanged();
    void progressChanged();

private:
    struct Removed;

    void setLoading(bool loading);
    void setGroups(std::vector<DuplicateGroup> groups);
    void setProgress(const HashProgress& progress);
    void listRestored();

    const Platform platform_;
    RemovalsModel& removals_;
    RemovalUndo& undo_;
    const MainThreadQueue::Sender mainThread_;
    const std::shared_ptr<CancelFlag> abandoned_ = std::make_shared<CancelFlag>();
    std::vector<DuplicateGroup> groups_;
    bool loading_ = false;
    bool hasScanned_ = false;
    HashProgress progress_;
    std::shared_ptr<Removed> restored_;  ///< of whose group files are back, until they are listed
    std::set<std::string> removing_;     ///< the hashes of the groups that are being removed
    int searches_ = 0;                   ///< how many were started
};

}  // namespace zelk
