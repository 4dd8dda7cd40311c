// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zelk {

/// The user's own Trash. Trash folders of other volumes are not looked at. Blocking; safe from any thread.
class Trash {
public:
    virtual ~Trash() = default;
    /// The folder that holds what was trashed: "~/.Trash" on macOS, "files" of the home trash on Linux.
    virtual std::string location() = 0;
    /// The paths of what it holds, hidden ones too; absent if it may not be looked into. A Trash that nobody has used
    /// yet is empty.
    virtual std::optional<std::vector<std::string>> list() = 0;
};

}  // namespace zelk
