// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/Failure.h"
#include "platform/ItemPath.h"
#include "platform/TrashedItem.h"

namespace zelk {

/// The user's Trash. list() and empty() work on the Trash in the home folder; an item on another volume goes to that
/// volume's Trash, which they ignore. Blocking; safe from any thread.
class Trash {
public:
    virtual ~Trash() = default;
    /// The folder of trashed items: "~/.Trash" on macOS, "files" of the home trash on Linux.
    virtual std::string location() = 0;
    /// The paths of all trashed items, including hidden ones; absent if the folder cannot be read. A Trash that does
    /// not exist yet is empty.
    virtual std::optional<std::vector<std::string>> list() = 0;
    /// Moves `item` to the Trash so that restore() and the system's tools can bring it back; moves a link itself. On
    /// failure the item is unchanged. On Linux, nothing that is swapped into the path meanwhile is followed. macOS
    /// takes a path, so a folder swapped in between our check and its move is followed.
    virtual TrashResult trash(const ItemPath& item) = 0;
    /// Moves `item` back to where it was. Never replaces anything, creates no folder and copies nothing. Fails, leaving
    /// the item in the Trash, if something else is at its old path, if the folder it was in is missing or has been
    /// replaced, if the Trash holds another item in its place, or if that folder is on another volume.
    virtual Failure restore(const TrashedItem& item) = 0;
    /// Deletes the trashed items permanently, each on its own: continues after one that cannot be deleted. Leaves alone
    /// what is trashed meanwhile, and waits for another emptying, including that of another process of Zelk. Returns
    /// the number of deleted items.
    virtual std::size_t empty() = 0;
};

}  // namespace zelk
