// SPDX-License-Identifier: MIT
#include "platform/posix/RemovalPermit.h"

#include <sys/resource.h>

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <mutex>

namespace zelk {

namespace {

/// As many as keep a disk busy, or fewer if the limit on descriptors is low: a removal deep in a tree holds some
/// twenty, and the rest of the process needs its share.
std::ptrdiff_t permitCount() {
    constexpr rlim_t descriptorsEach = 32;
    constexpr rlim_t most = 64;
    rlimit limit;
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0) return 2;
    return static_cast<std::ptrdiff_t>(std::clamp<rlim_t>(limit.rlim_cur / descriptorsEach, 2, most));
}

// Not std::counting_semaphore: that of g++ wakes every waiter on each release, so thousands of items would cost their
// number squared. Never destroyed, since a thread may outlive main().
struct Permits {
    std::mutex mutex;
    std::condition_variable free;
    std::ptrdiff_t taken = 0;
};

Permits& permits() {
    static auto* instance = new Permits;
    return *instance;
}

}  // namespace

RemovalPermit::RemovalPermit() {
    Permits& all = permits();
    std::unique_lock lock(all.mutex);
    // Reads the limit each time, because it may have changed.
    all.free.wait(lock, [&] { return all.taken < permitCount(); });
    ++all.taken;
}

RemovalPermit::~RemovalPermit() {
    Permits& all = permits();
    {
        const std::lock_guard lock(all.mutex);
        --all.taken;
    }
    all.free.notify_one();
}

}  // namespace zelk
