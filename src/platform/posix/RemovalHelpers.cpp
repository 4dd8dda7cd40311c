// SPDX-License-Identifier: MIT
#include "platform/posix/RemovalHelpers.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/Thread.h"

namespace zelk {
namespace {

constexpr std::size_t helperStackBytes = 512 * 1024;

/// With fewer entries a thread costs more than it brings.
constexpr std::size_t rangeLength = 32;

/// The helpers of all removals in this process.
std::atomic<std::size_t> helping{0};

/// Counts one more helper unless there are `most`.
bool takePlace(std::size_t most) {
    std::size_t now = helping.load();
    while (now < most)
        if (helping.compare_exchange_weak(now, now + 1)) return true;
    return false;
}

}  // namespace

struct RemovalHelpers::Running {
    std::mutex mutex;
    std::condition_variable none;
    std::size_t count = 0;
};

std::size_t RemovalHelpers::usualMost() {
    constexpr std::size_t most = 3;
    static const std::size_t processors = std::max(1U, std::thread::hardware_concurrency());
    return std::min(processors - 1, most);
}

RemovalHelpers::RemovalHelpers(std::size_t most) : most_(most), running_(std::make_shared<Running>()) {}

RemovalHelpers::~RemovalHelpers() {
    wait();
}

void RemovalHelpers::wait() {
    std::unique_lock lock(running_->mutex);
    running_->none.wait(lock, [this] { return running_->count == 0; });
}

bool RemovalHelpers::mayStart() const {
    return helping.load(std::memory_order_relaxed) < most_;
}

bool RemovalHelpers::start(std::function<void()> body) {
    if (!takePlace(most_)) return false;
    {
        const std::lock_guard lock(running_->mutex);
        ++running_->count;
    }
    const auto ended = [running = running_] {
        --helping;
        const std::lock_guard lock(running->mutex);
        if (--running->count == 0) running->none.notify_all();
    };
    try {
        startThread("zelk.removal", helperStackBytes, [body = std::move(body), ended]() mutable {
            body();
            body = nullptr;  // with what it holds, before it counts as ended
            ended();
        });
    } catch (const std::system_error&) {
        ended();
        return false;
    }
    return true;
}

void removeInRanges(std::size_t count, const std::function<void(std::size_t, std::size_t)>& body) {
    const std::size_t ranges = (count + rangeLength - 1) / rangeLength;
    std::atomic<std::size_t> next{0};
    const auto work = [&] {
        for (std::size_t range = next++; range < ranges; range = next++)
            body(range * rangeLength, std::min(count, (range + 1) * rangeLength));
    };
    RemovalHelpers helpers;
    for (std::size_t threads = 2; threads <= ranges && helpers.start(work); ++threads) {
    }
    work();
}

}  // namespace zelk
