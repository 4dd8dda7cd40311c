// SPDX-License-Identifier: MIT
#include "scan/UpdateQueue.h"

#include <utility>

namespace zelk {

void UpdateQueue::setTerminationHandler(std::function<void()> handler) {
    {
        const std::lock_guard lock(mutex_);
        if (!ended_) {
            terminationHandler_ = std::move(handler);
            return;
        }
    }
    if (handler) handler();  // already ended
}

void UpdateQueue::setWakeReader(std::function<void()> wake) {
    const std::lock_guard lock(mutex_);
    wakeReader_ = std::move(wake);
}

void UpdateQueue::yield(ScanUpdate update) {
    std::function<void()> wake;
    {
        const std::lock_guard lock(mutex_);
        if (ended_) return;
        updates_.push_back(std::move(update));
        wake = wakeOnce();
    }
    if (wake) wake();
}

void UpdateQueue::finish() {
    std::function<void()> handler;
    std::function<void()> wake;
    {
        const std::lock_guard lock(mutex_);
        if (ended_) return;
        handler = end();
        wake = wakeOnce();
    }
    if (handler) handler();
    if (wake) wake();
}

std::vector<ScanUpdate> UpdateQueue::terminate() {
    std::function<void()> handler;
    std::vector<ScanUpdate> dropped;
    {
        const std::lock_guard lock(mutex_);
        dropped.swap(updates_);
        wakeReader_ = nullptr;
        if (!ended_) handler = end();
    }
    if (handler) handler();
    return dropped;
}

UpdateQueue::Batch UpdateQueue::takeAll() {
    const std::lock_guard lock(mutex_);
    woken_ = false;
    return {std::exchange(updates_, {}), ended_};
}

std::function<void()> UpdateQueue::end() {
    ended_ = true;
    return std::exchange(terminationHandler_, nullptr);
}

std::function<void()> UpdateQueue::wakeOnce() {
    if (woken_) return nullptr;
    woken_ = true;
    return wakeReader_;
}

}  // namespace zelk
