// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelk {

/// A name in an open directory.
struct Place {
    int folder = -1;
    std::string name;
};

/// Renames `from` to `to` without ever replacing anything. Returns 0 or the errno: EEXIST if `to` exists, EXDEV if it
/// is on another volume. On an error nothing has moved.
int moveWithoutReplacing(const Place& from, const Place& to);

}  // namespace zelk
