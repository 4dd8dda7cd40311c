// SPDX-License-Identifier: MIT
// Finds, measures and moves what browsers leave behind. Blocking; safe from any thread. What cannot be read is not
// there.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/FileManager.h"
#include "platform/Trash.h"
#include "reclaim/TraceTable.h"

namespace zelk {

struct TraceFindings {
    std::vector<Trace> traces;       ///< those that exist, largest first
    std::vector<BrowserLock> locks;  ///< which tell whether their browsers run
    std::set<std::string> running;   ///< the browsers that held one, by their names in the table
    /// Whether Firefox has a profile whose history is not offered.
    bool firefoxHistoryStays = false;
};

/// Looks for every row of the table of this system. A database comes with those of its companions that exist; without
/// the database they are not looked for. A folder of caches that holds somebody's bookmarks or passwords after all, as
/// where two variables name one folder, is left out.
TraceFindings findTraces(FileManager& files, Locations& locations, SystemKind system);

/// The browsers that hold one of these locks, by their names in the table.
std::set<std::string> runningByLocks(FileManager& files, const std::vector<BrowserLock>& locks);

/// The paths of `trace` that are moved one by one: all but the companions of its databases, which go with them.
std::vector<std::string> leadingPaths(const Trace& trace);
/// Those of the trace's paths that go with this one, without it.
std::vector<std::string> companionsIn(const Trace& trace, const std::string& leading);

/// Something that went to the Trash.
struct MovedPath {
    std::string path;
    std::uint64_t size = 0;  ///< allocated bytes
    /// Absent if the system did not say where it is.
    std::optional<TrashedItem> item;
};

/// Moves a leading path of `trace` to the Trash and, once it is there, the companions that it has now. Links on the way
/// are followed, as they were when it was measured: people link such folders to other volumes. The first is the path
/// itself; none if it stays where it is, be it that it cannot be moved or that it holds what must stay.
std::vector<MovedPath> moveToTrash(FileManager& files, Trash& trash, const Trace& trace, const std::string& leading);

}  // namespace zelk
