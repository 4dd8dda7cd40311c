// SPDX-License-Identifier: MIT
#include "reclaim/MainThreadCalls.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <deque>
#include <mutex>
#include <utility>

namespace zelk {

// The closures stand in a list of our own behind our own lock; Qt carries only the bare wake-up event. So what passes
// between threads is ordered by a lock that a thread checker sees. An event for each: a closure with an event loop of
// its own then holds up none of those behind it.
struct MainThreadCalls::Sender::Line {
    std::mutex mutex;
    std::deque<Call> calls;
    QObject* receiver = nullptr;  // cleared on the main thread when it closes

    /// The oldest; empty if there is none.
    Call take() {
        const std::lock_guard lock(mutex);
        if (calls.empty()) return nullptr;
        Call oldest = std::move(calls.front());
        calls.pop_front();
        return oldest;
    }
};

void MainThreadCalls::Sender::post(Call call) const {
    // Under the lock to the end: the receiver cannot go while the event is on its way to it.
    const std::lock_guard lock(line_->mutex);
    if (line_->receiver == nullptr) return;
    line_->calls.push_back(std::move(call));
    QCoreApplication::postEvent(line_->receiver, new QEvent(QEvent::User));
}

class MainThreadCalls::Receiver : public QObject {
public:
    explicit Receiver(std::shared_ptr<Sender::Line> line) : line_(std::move(line)) {}

    bool event(QEvent* event) override {
        // The lock is taken before the event is looked at, as it was held when the event was made.
        const Call call = line_->take();
        if (call) call();
        return event->type() == QEvent::User || QObject::event(event);
    }

private:
    std::shared_ptr<Sender::Line> line_;
};

MainThreadCalls::MainThreadCalls() {
    sender_.line_ = std::make_shared<Sender::Line>();
    receiver_ = std::make_unique<Receiver>(sender_.line_);
    sender_.line_->receiver = receiver_.get();
}

MainThreadCalls::~MainThreadCalls() {
    close();
}

void MainThreadCalls::close() {
    std::deque<Call> dropped;
    const std::lock_guard lock(sender_.line_->mutex);
    sender_.line_->receiver = nullptr;
    dropped.swap(sender_.line_->calls);
}

}  // namespace zelk
