// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/Failure.h"
#include "platform/ItemPath.h"

namespace zelk {

/// The Trash. What is listed and emptied is the user's own in the home folder; an item of another volume goes to that
/// volume's, which is not looked at afterwards. Blocking; safe from any thread.
class Trash {
public:
    virtual ~Trash() = default;
    /// The folder that holds what was trashed: "~/.Trash" on macOS, "files" of the home trash on Linux.
    virtual std::string location() = 0;
    /// The paths of what it holds, hidden ones too; absent if it may not be looked into. A Trash that nobody has used
    /// yet is empty.
    virtual std::optional<std::vector<std::string>> list() = 0;
    /// Moves `item` there, restorable by the system's own tools; of a link the link itself. On a failure it is where it
    /// was. On Linux nothing that is put in place of a part of the path meanwhile leads elsewhere. On macOS the system
    /// takes a path: what is put there between our look at the way and its move does.
    virtual Failure trash(const ItemPath& item) = 0;
    /// Removes for good what it holds, each entry on its own: one that cannot be removed stays, and the next goes on.
    /// What is trashed meanwhile is left alone, and another emptying, of another process of this application too, waits
    /// for its end. The number of entries removed.
    virtual std::size_t empty() = 0;
};

}  // namespace zelk
