// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/Platform.h"
#include "reclaim/ReclaimCatalogue.h"
#include "reclaim/Removal.h"

namespace zelk {

/// Removes and measures reclaimable items. Stateless, and never decides what may be removed: the caller passes items
/// that were chosen from the catalogue and confirmed. Unless stated otherwise, every operation blocks and may be called
/// from any thread.
class Cleaner {
public:
    Cleaner() = delete;

    /// The tool exited with status 0.
    struct RanCommand {
        std::string output;  ///< what it printed; empty if that is not UTF-8
        bool operator==(const RanCommand&) const = default;
    };
    /// Not cleaned, because a stop was requested before it began.
    struct Skipped {
        std::string reason;
        bool operator==(const Skipped&) const = default;
    };
    struct Failed {
        std::string error;  ///< for a person to read
        bool operator==(const Failed&) const = default;
    };
    /// Moved to the Trash, or removed for good by a hard delete.
    struct Trashed {
        bool operator==(const Trashed&) const = default;
    };
    using Status = std::variant<RanCommand, Skipped, Failed, Trashed>;

    struct Result {
        std::string id;  ///< of the item
        Reclaimable item;
        Status status;
    };

    /// Cleans all items concurrently, each in its own task, and returns at once. Calls `done` once, on a background
    /// thread, with one result per item in order of completion; without items it does so at once on the caller's
    /// thread. The services must outlive that call. An optional `removal` of as many items counts each one after its
    /// result is stored; once it is stopped, items that have not begun are skipped.
    static void cleanAll(std::vector<Reclaimable> items, bool hardDelete, const Platform& platform,
                         std::function<void(std::vector<Result>)> done, std::shared_ptr<Removal> removal = nullptr);
    /// Cleans by the item's own method. `hardDelete` removes for good what would go to the Trash; a tool runs either
    /// way.
    static Result cleanOne(const Reclaimable& item, bool hardDelete, const Platform& platform);
    /// Does not pass the item's path: the tool finds its own data.
    static Result runTool(const std::string& tool, const std::vector<std::string>& args, const Reclaimable& item,
                          ChildProcess& processes);

    /// What stands for the running application if nobody knows which run. No name of one, since it could be no folder.
    static constexpr const char* unknownApplication = "/";

    /// The first running application whose name is a folder of the item's path; absent if the item's category is not
    /// app-scoped. `unknownApplication` for every item of the others if the system did not say what runs. Main thread
    /// only.
    static std::optional<std::string> runningConflict(const Reclaimable& item, Workspace& workspace);

    /// Allocated bytes of `path`. A folder includes everything below it except hidden entries, a link counts itself and
    /// never its target, and a path that cannot be read is 0.
    static std::uint64_t allocatedSize(FileManager& files, const std::string& path);

    /// Allocated bytes of all entries of the Trash. Hidden entries at its top level count, those inside a trashed
    /// folder do not. Absent if the Trash cannot be read.
    static std::optional<std::uint64_t> measureTrash(FileManager& files, Trash& trash);
    /// Removes for good what the Trash holds, after any emptying that is already running. Returns the number of entries
    /// removed, which may be fewer than there were.
    static std::size_t emptyTrashContents(Trash& trash);
    /// Empties the Trash in a task, returns at once, and calls `done` on the task's thread. The services must outlive
    /// that call. An optional `removal` of one item counts it; once that is stopped, an emptying that has not begun is
    /// skipped.
    static void emptyTrash(const Platform& platform, std::function<void()> done,
                           std::shared_ptr<Removal> removal = nullptr);
};

}  // namespace zelk
