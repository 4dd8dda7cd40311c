// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Platform.h"
#include "reclaim/AppEntry.h"
#include "reclaim/Leftovers.h"
#include "reclaim/Removal.h"
#include "scan/UpdateQueue.h"
#include "state/MainThreadQueue.h"
#include "state/RemovalUndo.h"
#include "state/RemovalsModel.h"
#include "system/apps/AppRemoval.h"

namespace zelk {

/// The installed applications with what they keep elsewhere, and their removal. On macOS these are the bundles in
/// "/Applications", on Linux what flatpak, snap, the distribution and the user have installed. Owned by AppModel; main
/// thread only. What reads the disk, asks a tool or moves anything is done in tasks.
class AppsModel : public QObject {
    Q_OBJECT

public:
    enum class Sort { footprint, bundle };
    using AppEntry = zelk::AppEntry;
    using Leftover = zelk::Leftover;

    /// What has to be known before an application is removed.
    struct Preparation {
        std::vector<Leftover> leftovers;
        AppObstacle obstacle;    ///< what stands against it now
        std::uint64_t size = 0;  ///< of the application, in bytes
    };
    /// How a removal ended that has something to tell.
    struct Ending {
        AppEntry app;
        AppRemoval removal;
        std::size_t moved = 0;   ///< leftovers that are in the Trash
        std::size_t stayed = 0;  ///< leftovers that are where they were
    };

    /// The services must outlive it and its tasks, the others it alone.
    AppsModel(const Platform& platform, RemovalsModel& removals, RemovalUndo& undo, MainThreadQueue::Sender mainThread);
    ~AppsModel() override;

    Sort sort() const { return sort_; }
    void setSort(Sort sort);
    /// Largest application first; those whose removal was tried are left out, on Linux only those that are gone.
    const std::vector<AppEntry>& apps() const { return apps_; }
    bool loading() const { return loading_; }
    bool hasScanned() const { return hasScanned_; }
    /// In the order that was chosen, largest first; of the same size in the order of apps().
    std::vector<AppEntry> sortedApps() const;

    /// Reads the applications, unless they are being read or some are known. What they keep elsewhere is measured after
    /// that, and known for all of them at once.
    void scanApps();

    /// Removes the application and moves its leftovers to the Trash, in this order. On macOS whatever fails stays where
    /// it is without a word, and the application leaves the list. On Linux no leftover goes unless the application did,
    /// and otherwise it stays in the list. Does nothing for an application that is being removed.
    void uninstall(const AppEntry& app, const std::vector<Leftover>& leftovers);
    bool isRemoving(const std::string& url) const { return removing_.contains(url); }
    /// Whether any removal is running. Tools refuse to work beside each other.
    bool removing() const { return !removing_.empty(); }
    /// Absent before the first one, and after a removal that has nothing to tell.
    const std::optional<Ending>& lastEnding() const { return ending_; }
    void forgetEnding();

    /// Finds in a task what uninstall() will need, and calls `done` on the main thread, unless this object has gone.
    void prepare(const AppEntry& app, std::function<void(const Preparation&)> done);

    /// The folder below which paths are told, normalized; absent on macOS, where names tell enough.
    std::optional<std::string> toldHome() const;

    // Blocking; see Leftovers.

    std::vector<std::string> leftoverCandidates(const AppEntry& app) const;
    std::vector<Leftover> leftoversFor(const AppEntry& app) const;
    std::uint64_t dataSize(const AppEntry& app) const;

signals:
    void sortChanged();
    void appsChanged();
    void loadingChanged();
    void hasScannedChanged();
    void removingChanged();
    void endingChanged();

private:
    /// What a task of uninstall() has done.
    struct Done {
        AppEntry app;
        AppRemoval removal;
        std::size_t moved = 0;  ///< leftovers
        std::size_t stayed = 0;
        std::vector<TrashedItem> leftovers;  ///< those whose place in the Trash is known
        bool leavesList = false;
        bool begun = false;  ///< false if all was stopped before
    };

    void scanBundles();
    void takeUpdates();
    void listInstalled();
    void takeApps(int scan, std::vector<AppEntry> apps);
    void takeFootprints(int scan, std::vector<AppEntry> apps);
    static Done removeAll(const Platform& platform, const AppEntry& app, const std::vector<Leftover>& leftovers,
                          Removal& removal);
    void finish(const Done& done);
    void offerUndo(const Done& done);
    bool putBack(const AppEntry& app);

    Platform platform_;
    RemovalsModel& removals_;
    RemovalUndo& undo_;
    const MainThreadQueue::Sender mainThread_;
    std::shared_ptr<UpdateQueue> queue_;  ///< of the running scan
    int scan_ = 0;                        ///< how often a scan began; what an earlier one tells comes too late
    Sort sort_ = Sort::footprint;
    std::vector<AppEntry> apps_;
    bool loading_ = false;
    bool hasScanned_ = false;
    std::set<std::string> removing_;  ///< their paths
    std::set<std::string> left_;      ///< the paths of those that left the list
    std::optional<Ending> ending_;
};

/// "Total footprint", "App size".
std::string_view rawValue(AppsModel::Sort sort);

}  // namespace zelk
