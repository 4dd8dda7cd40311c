// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/ItemPath.h"
#include "platform/Platform.h"
#include "state/MainThreadQueue.h"
#include "state/RemovalUndo.h"
#include "state/RemovalsModel.h"
#include "state/SurveyResults.h"

namespace zelk {

/// What AppModel removes without the review sheet: safe caches all at once, and folders and large files that a person
/// picked in a list or a map. Each goes to the Trash, and the results of the survey follow.
///
/// Owned by AppModel and used on the main thread only; it removes in background tasks and counts each item in
/// `removals`, where a stop can be asked for. Picked folders and files are offered to `undo` once they are moved.
/// Errors are silent: what cannot be moved stays where it is and in the results.
class CleanupSession {
public:
    using Folders = std::vector<NodeRef>;

    /// The services must outlive this object and its tasks, the others this object.
    CleanupSession(const Platform& platform, SurveyResults& results, RemovalsModel& removals, RemovalUndo& undo,
                   MainThreadQueue::Sender mainThread);

    /// Cleans each item by its own method, all at the same time, and calls `done` after the last.
    void clean(std::vector<Reclaimable> items, std::function<void()> done);
    /// Moves folders one after the other and removes each from every tree of the results. `done` is optional and gets
    /// the folders that are in the Trash, after the last was tried.
    void trashFolders(const Folders& folders, std::function<void(const Folders&)> done);
    /// Moves the file at `path`, which lies below a root of the last survey, and drops it from the large files.
    void trashLargeFile(const std::string& path);

private:
    std::optional<ItemPath> itemBelowRoot(const std::string& path) const;

    const Platform platform_;
    SurveyResults& results_;
    RemovalsModel& removals_;
    RemovalUndo& undo_;
    const MainThreadQueue::Sender mainThread_;
};

}  // namespace zelk
