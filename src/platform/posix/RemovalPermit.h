// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace zelk {

/// Permits the removal of one item during its lifetime. Thousands of removals begin at once, and each briefly holds a
/// dozen descriptors or more: without a limit the process would run out of them and removals would fail for no reason
/// of their own. The constructor waits until a permit is free. Usable from any thread, one at a time in each: who holds
/// one and waits for another might wait for somebody who does the same.
class RemovalPermit {
public:
    RemovalPermit();
    /// A permit if one is free and there are descriptors for it; null otherwise. For those who can do without: they may
    /// hold one already, and release this one on another thread.
    static std::unique_ptr<RemovalPermit> ifFree();
    ~RemovalPermit();
    RemovalPermit(const RemovalPermit&) = delete;
    RemovalPermit& operator=(const RemovalPermit&) = delete;

private:
    struct Taken {};
    explicit RemovalPermit(Taken) {}
};

}  // namespace zelk
