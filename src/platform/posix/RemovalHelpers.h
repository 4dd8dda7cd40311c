// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <memory>

namespace zelk {

/// Threads that help the calling one with a removal. In the whole process there are only as many as processors are left
/// beside one removing thread, and never more than three: a volume gains little from more, and thousands of removals
/// begin at once. Used by one thread, or by several under a lock of theirs.
class RemovalHelpers {
public:
    /// How many there may be in this process: one fewer than processors, and at most three.
    static std::size_t usualMost();

    /// Starts none while the process has `most` or more.
    explicit RemovalHelpers(std::size_t most = usualMost());
    /// Waits until all helpers have ended.
    ~RemovalHelpers();
    RemovalHelpers(const RemovalHelpers&) = delete;
    RemovalHelpers& operator=(const RemovalHelpers&) = delete;

    /// Whether start() would start a helper now. Costs next to nothing, so that it can be asked often.
    bool mayStart() const;
    /// Runs `body` on a new thread. False if there are enough helpers already or no thread can be started.
    bool start(std::function<void()> body);
    /// Waits until all helpers have ended.
    void wait();

private:
    struct Running;

    const std::size_t most_;
    const std::shared_ptr<Running> running_;
};

/// Calls `body` with ranges, from the first number up to the one after the last, that together are the numbers below
/// `count`: on this thread and, if there are several, on helpers. Returns when all calls have returned.
void removeInRanges(std::size_t count, const std::function<void(std::size_t first, std::size_t end)>& body);

}  // namespace zelk
