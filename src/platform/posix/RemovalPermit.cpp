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
std::ptrdiff_t permitCount(rlim_t fewest) {
    constexpr rlim_t descriptorsEach = 32;
    constexpr rlim_t most = 64;
    rlimit limit;
    const rlim_t count = getrlimit(RLIMIT_NOFILE, &limit) == 0 ? limit.rlim_cur / descriptorsEach : 0;
    return static_cast<std::ptrdiff_t>(std::clamp(count, fewest, most));
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
    all.free.wait(lock, [&] { return all.taken < permitCount(2); });
    ++all.taken;
}

std::unique_ptr<RemovalPermit> RemovalPermit::ifFree() {
    Permits& all = permits();
    {
        const std::lock_guard lock(all.mutex);
        if (all.taken >= permitCount(0)) return nullptr;
        ++all.taken;
    }
    return std::unique_ptr<RemovalPermit>(new RemovalPermit(Taken{}));
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
