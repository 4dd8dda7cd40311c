// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/BackgroundTasks.h"
#include "reclaim/ReclaimCatalogue.h"
#include "scan/ScanUpdate.h"

namespace zelk {

/// What surveys have found: the counters of the one that is running, and the tree, items and insights of the last one.
/// Nothing else changes a tree after its scan.
///
/// A survey that is not in the history yet can still be withdrawn, so the tree before it is kept until then:
///
///     begin() ──> setTree() ──> keep()       the tree before is released
///                          └──> withdraw()   the tree before is back; items and insights are empty
///
/// Owned by AppModel and used on the main thread only; background tasks read the tree between beginReading() and
/// endReading(), and release what is dropped. No operation fails. `changed` is called for each field that a call here
/// has changed, after all of them have been written, and may call back into this object.
class SurveyResults {
public:
    enum class Field { progress, tree, reclaimables, insights };

    struct Progress {
        std::int64_t items = 0;  ///< files and folders
        std::int64_t bytes = 0;
        std::string currentPath;
        std::int64_t blockedPaths = 0;  ///< folders that could not be read

        bool operator==(const Progress&) const = default;
    };

    /// `tasks` must outlive this object.
    SurveyResults(BackgroundTasks& tasks, std::function<void(Field)> changed);
    ~SurveyResults();
    SurveyResults(const SurveyResults&) = delete;
    SurveyResults& operator=(const SurveyResults&) = delete;

    const Progress& progress() const { return progress_; }
    const NodeRef& root() const { return root_; }
    const std::optional<ScanStats>& stats() const { return stats_; }
    const std::vector<Reclaimable>& reclaimables() const { return reclaimables_; }
    const ScanInsights& insights() const { return insights_; }
    /// The trees that screens show now, and would show again after withdraw().
    std::vector<NodeRef> trees() const;

    /// A survey begins in the folder `place`: empties everything but the tree and its stats.
    void begin(const std::string& place);
    void setProgress(Progress progress);
    /// Leaves out files that went to the Trash since begin(): the walk may have passed before.
    void setInsights(ScanInsights insights);
    void setTree(NodeRef root, const ScanStats& stats);
    void setReclaimables(std::vector<Reclaimable> items);
    /// Another thread reads the tree from here on, so remove() is put off until endReading().
    void beginReading() { reading_ = true; }
    /// Also removes the folders that went to the Trash since begin().
    void endReading();
    /// The survey is in the history: it can no longer be withdrawn. Ends the reading too.
    void keep();
    /// The survey was cancelled.
    void withdraw();

    /// Takes a folder out of the tree that it belongs to, and with it the items and large files at and below its path.
    /// What describes the survey as it ran stays. Does nothing to a node without a parent.
    void remove(FSNode& node);
    /// A folder went to the Trash. A survey that is running may have passed it before, so endReading() removes it
    /// again.
    void noteTrashedFolder(const std::string& path);
    /// A large file went to the Trash.
    void dropLargeFile(const std::string& path);

    /// Adds what was removed to the results again. Returns false if that is not possible, so that only a new survey
    /// gives complete results.
    using Restorer = std::function<bool()>;
    /// For a folder that remove() is about to take out, with its items and large files. Valid until begin(). Null while
    /// a survey is running, and if the folder is not in the current tree.
    Restorer restorerOf(const NodeRef& node);
    /// For a file that dropLargeFile() is about to drop. Likewise.
    Restorer restorerOfLargeFile(const std::string& path);

private:
    /// What the previous survey left, for withdraw().
    struct Before {
        NodeRef root;
        std::optional<ScanStats> stats;
    };
    struct Changes {
        bool progress = false;
        bool tree = false;
        bool reclaimables = false;
        bool insights = false;
    };

    bool replaceReclaimables(std::vector<Reclaimable> items);
    void takeOut(FSNode& node, const FSNode& top, Changes& changes);
    void tell(const Changes& changes) const;

    BackgroundTasks& tasks_;
    std::function<void(Field)> changed_;

    Progress progress_;
    NodeRef root_;
    std::optional<ScanStats> stats_;
    std::vector<Reclaimable> reclaimables_;
    ScanInsights insights_;

    bool surveying_ = false;  // from begin() to keep() or withdraw()
    bool reading_ = false;
    std::optional<Before> before_;
    std::vector<NodeRef> deferred_;  // removals that wait for endReading()
    std::set<std::string> trashedFiles_;
    std::set<std::string> trashedFolders_;
    // The tops of withdrawn trees, which the classifier may still be reading. Compared by address only; an address that
    // a new tree gets leaves the set.
    std::set<const FSNode*> withdrawn_;
};

}  // namespace zelk
