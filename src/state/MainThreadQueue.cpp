// SPDX-License-Identifier: MIT
#include "state/MainThreadQueue.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <deque>
#include <mutex>
#include <utility>

namespace zelk {

// The closures wait in our own list under our own lock, and Qt only carries a wake-up event: a thread checker then sees
// the lock that orders what passes between threads. Each closure has its own event, so one that runs a nested event
// loop does not hold up those behind it.
struct MainThreadQueue::Sender::Pending {
    std::mutex mutex;
    std::deque<Call> calls;
    QObject* receiver = nullptr;  // cleared on the main thread by close()

    /// Empty if nothing is pending.
    Call takeOldest() {
        const std::lock_guard lock(mutex);
        if (calls.empty()) return nullptr;
        Call oldest = std::move(calls.front());
        calls.pop_front();
        return oldest;
    }
};

void MainThreadQueue::Sender::post(Call call) const {
    // Holds the lock until the event is posted, so that the receiver cannot be destroyed in between.
    const std::lock_guard lock(pending_->mutex);
    if (pending_->receiver == nullptr) return;
    pending_->calls.push_back(std::move(call));
    QCoreApplication::postEvent(pending_->receiver, new QEvent(QEvent::User));
}

class MainThreadQueue::Receiver : public QObject {
public:
    explicit Receiver(std::shared_ptr<Sender::Pending> pending) : pending_(std::move(pending)) {}

    bool event(QEvent* event) override {
        // Takes the lock before it reads the event, because the event was created under that lock.
        const Call call = pending_->takeOldest();
        if (call) call();
        return event->type() == QEvent::User || QObject::event(event);
    }

private:
    std::shared_ptr<Sender::Pending> pending_;
};

MainThreadQueue::MainThreadQueue() {
    sender_.pending_ = std::make_shared<Sender::Pending>();
    receiver_ = std::make_unique<Receiver>(sender_.pending_);
    sender_.pending_->receiver = receiver_.get();
}

MainThreadQueue::~MainThreadQueue() {
    close();
}

void MainThreadQueue::close() {
    std::deque<Call> dropped;  // destroyed after the lock is released
    const std::lock_guard lock(sender_.pending_->mutex);
    sender_.pending_->receiver = nullptr;
    dropped.swap(sender_.pending_->calls);
}

}  // namespace zelk
