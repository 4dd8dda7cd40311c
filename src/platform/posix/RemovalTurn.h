// SPDX-License-Identifier: MIT
#pragma once

namespace zelk {

/// The right to take one item away while this lives. Removals begin by the thousand at once, and each holds a
/// dozen descriptors or more for a moment: without turns the process would run out of them, and items would be left
/// behind for no fault of theirs. The constructor waits until one is free. From any thread, one at a time in each.
class RemovalTurn {
public:
    RemovalTurn();
    ~RemovalTurn();
    RemovalTurn(const RemovalTurn&) = delete;
    RemovalTurn& operator=(const RemovalTurn&) = delete;
};

}  // namespace zelk
