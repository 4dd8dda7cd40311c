// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelk {

/// A name in an open directory.
struct Place {
    int folder = -1;
    std::string name;
};

/// Renames `from` to `to`, and never over anything that is there. 0, or the errno: EEXIST if something is there, EXDEV
/// if it is another volume. On an error nothing has moved.
int moveWithoutReplacing(const Place& from, const Place& to);

}  // namespace zelk
