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

/// Operations without state on what can be taken away. None of them decides what may be: what it is handed has been
/// chosen from the catalogue and confirmed. All block and are safe from any thread, where nothing else is said.
class Cleaner {
public:
    Cleaner() = delete;

    /// The tool ended well.
    struct RanCommand {
        std::string output;  ///< what it printed, UTF-8; empty if it is none
        bool operator==(const RanCommand&) const = default;
    };
    /// Left alone: it had not begun when a stop was asked for.
    struct Skipped {
        std::string reason;
        bool operator==(const Skipped&) const = default;
    };
    struct Failed {
        std::string error;  ///< for a person to read
        bool operator==(const Failed&) const = default;
    };
    /// In the Trash, or gone for good where that was asked for.
    struct Trashed {
        bool operator==(const Trashed&) const = default;
    };
    using Status = std::variant<RanCommand, Skipped, Failed, Trashed>;

    struct Result {
        std::string id;  ///< the item's
        Reclaimable item;
        Status status;
    };

    /// Cleans all items at the same time, each in a task of its own, and comes back at once. `done` is called once,
    /// from a background thread, with a result per item in the order in which they ended; without items at once, on the
    /// caller's thread. The services must stay until then. With a `removal` of as many items each is noted there,
    /// behind its result; once that is to stop, what has not begun is skipped.
    static void cleanAll(std::vector<Reclaimable> items, bool hardDelete, const Platform& platform,
                         std::function<void(std::vector<Result>)> done, std::shared_ptr<Removal> removal = nullptr);
    /// By the item's own method. `hardDelete` removes for good what would go to the Trash; a tool runs either way.
    static Result cleanOne(const Reclaimable& item, bool hardDelete, const Platform& platform);
    /// The item's path is not passed on: the tool finds its own data.
    static Result runTool(const std::string& tool, const std::vector<std::string>& args, const Reclaimable& item,
                          ChildProcess& processes);

    /// The name of a running application that the item's path lies in, if the item is of a category that applications
    /// own. Main thread.
    static std::optional<std::string> runningConflict(const Reclaimable& item, Workspace& workspace);

    /// The bytes that `path` allocates: a folder's with everything below it but hidden entries; a link's own, never its
    /// target's; 0 if it cannot be looked at.
    static std::uint64_t allocatedSize(FileManager& files, const std::string& path);

    /// The bytes that the entries of the Trash allocate. A hidden entry of the Trash counts, hidden ones inside a
    /// trashed folder do not. Absent if the Trash may not be looked into.
    static std::optional<std::uint64_t> measureTrash(FileManager& files, Trash& trash);
    /// Removes for good what the Trash holds, after any other emptying that is under way; the number of entries
    /// removed, which may be fewer than there were.
    static std::size_t emptyTrashContents(Trash& trash);
    /// The same in a task, for all who have a button for it, and comes back at once. `done` is called on the task's
    /// thread. The services must stay until then. With a `removal` of one item it is noted there, and not begun once
    /// that is to stop.
    static void emptyTrash(const Platform& platform, std::function<void()> done,
                           std::shared_ptr<Removal> removal = nullptr);
};

}  // namespace zelk
