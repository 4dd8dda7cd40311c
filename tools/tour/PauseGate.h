// SPDX-License-Identifier: MIT
#pragma once

#include <condition_variable>
#include <cstdint>
#include <mutex>

namespace zelk::tour {

/// Lets work pass until a picture of it is wanted. Safe from any thread.
class PauseGate {
public:
    /// Resumes what is paused, and pauses again after `amount` more.
    void pauseAfter(std::int64_t amount) {
        const std::lock_guard lock(mutex_);
        armed_ = true;
        left_ = amount;
        resumed_.notify_all();
    }
    void resume() {
        const std::lock_guard lock(mutex_);
        armed_ = false;
        resumed_.notify_all();
    }
    /// Whether anything is paused.
    bool paused() {
        const std::lock_guard lock(mutex_);
        return waiting_ > 0 && left_ <= 0;
    }

    /// Called by the work with the amount that was done.
    void pass(std::int64_t amount) {
        std::unique_lock lock(mutex_);
        if (!armed_) return;
        left_ -= amount;
        if (left_ > 0) return;
        ++waiting_;
        resumed_.wait(lock, [this] { return !armed_ || left_ > 0; });
        --waiting_;
    }

private:
    std::mutex mutex_;
    std::condition_variable resumed_;
    bool armed_ = false;
    std::int64_t left_ = 0;
    int waiting_ = 0;
};

}  // namespace zelk::tour
