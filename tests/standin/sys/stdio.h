// SPDX-License-Identifier: MIT
// The part of macOS's header that restoring from the Trash needs.
#pragma once

#include <functional>

constexpr unsigned RENAME_EXCL = 4;

int renameatx_np(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags);

namespace zelk {

struct RenameStandIn {
    /// Called before each call, counted from 0. Returns 0 to let it pass, or its errno. One per thread.
    static std::function<int(unsigned call)>& rule();
    /// The number of calls since the rule was set.
    static unsigned& calls();
};

}  // namespace zelk
