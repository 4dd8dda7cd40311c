// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "reclaim/TraceScanner.h"
#include "state/MainThreadQueue.h"
#include "state/RemovalUndo.h"
#include "state/RemovalsModel.h"

namespace zelk {

/// The traces that browsers leave on the disk: which there are, which are chosen, and their clearing. Owned by
/// AppModel, so that list and selection outlive the screen; main thread only. Measuring and moving happen in background
/// tasks. There are no errors: what cannot be moved stays on the disk and leaves the list.
class PrivacyModel : public QObject {
    Q_OBJECT

public:
    using Trace = zelk::Trace;

    /// All must outlive it, and the services its tasks.
    PrivacyModel(const Platform& platform, RemovalsModel& removals, RemovalUndo& undo,
                 MainThreadQueue::Sender mainThread);

    /// Those found, largest first.
    const std::vector<Trace>& traces() const { return traces_; }
    /// The identities of the chosen traces.
    const std::set<std::string>& selected() const { return selected_; }
    bool loading() const { return loading_; }
    /// Whether a scan was started at least once.
    bool hasScanned() const { return hasScanned_; }
    /// Whether a scan found a history of Firefox, which is never offered: the bookmarks are in the same file.
    bool firefoxHistoryStays() const { return firefoxHistoryStays_; }

    /// Measures what there is and chooses the caches. Does nothing while it does so, or if traces are known already.
    /// While traces are cleared it waits for that to end.
    void scanTraces();
    /// The allocated bytes of the chosen traces.
    std::uint64_t selectedBytes() const;
    void setSelected(const std::string& identity, bool selected);
    /// Moves the chosen traces to the Trash, of which RemovalUndo is told in the end. They leave the list at once,
    /// whether or not they can be moved; those that a stop kept from being tried come back.
    void clearSelected();

    /// The name of a running application that contains `app`, in any case and by the user's language; or `app` itself,
    /// if that browser is found running in another way. As of the last refreshRunning(), or the end of the last scan.
    /// Every browser counts as running while runningKnown() is false.
    std::optional<std::string> runningBrowser(const std::string& app) const;
    /// Whether the system said which applications run, by then.
    bool runningKnown() const { return runningKnown_; }
    /// Looks for running browsers: the names at once, the locks in a task.
    void refreshRunning();

signals:
    void tracesChanged();  ///< firefoxHistoryStays() too
    void selectionChanged();
    void loadingChanged();
    void hasScannedChanged();
    void runningChanged();

private:
    struct Clearing;

    void measure();
    void finishScan(TraceFindings found);
    void finishClearing(Clearing& clearing);
    bool putBack(const Trace& origin, const std::string& path, std::uint64_t size);
    void select(std::set<std::string> identities);

    const Platform platform_;
    RemovalsModel& removals_;
    RemovalUndo& undo_;
    const MainThreadQueue::Sender mainThread_;
    std::vector<Trace> traces_;
    std::set<std::string> selected_;
    bool loading_ = false;
    bool hasScanned_ = false;
    bool firefoxHistoryStays_ = false;
    std::size_t scans_ = 0;      ///< begun; only the last one counts
    std::size_t clearings_ = 0;  ///< under way

    std::vector<BrowserLock> locks_;
    bool runningKnown_ = true;
    std::vector<std::string> runningNames_;
    std::vector<std::string> runningIds_;
    std::set<std::string> lockedApps_;
    std::size_t lockReads_ = 0;  ///< begun; only the last one counts
};

}  // namespace zelk
