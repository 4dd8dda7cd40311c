// SPDX-License-Identifier: MIT
#pragma once

namespace zelk {

/// Permits the removal of one item during its lifetime. Thousands of removals begin at once, and each briefly holds a
/// dozen descriptors or more: without a limit the process would run out of them and removals would fail for no reason
/// of their own. The constructor waits until a permit is free. Usable from any thread, one at a time in each.
class RemovalPermit {
public:
    RemovalPermit();
    ~RemovalPermit();
    RemovalPermit(const RemovalPermit&) = delete;
    RemovalPermit& operator=(const RemovalPermit&) = delete;
};

}  // namespace zelk
