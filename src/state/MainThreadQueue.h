// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

namespace zelk {

/// Runs closures on the main thread for any other thread, from the event loop and in the order in which they were
/// posted. Owned by an object of the main thread and destroyed there with it: since nothing runs afterwards, a closure
/// may capture that object as a plain pointer.
class MainThreadQueue {
public:
    using Call = std::function<void()>;

    /// Posts from any thread. Copies are cheap and may outlive the queue.
    class Sender {
    public:
        /// Destroys `call` without running it if the queue has been closed.
        void post(Call call) const;

    private:
        friend class MainThreadQueue;
        struct Pending;
        std::shared_ptr<Pending> pending_;
    };

    MainThreadQueue();
    ~MainThreadQueue();
    MainThreadQueue(const MainThreadQueue&) = delete;
    MainThreadQueue& operator=(const MainThreadQueue&) = delete;

    const Sender& sender() const { return sender_; }
    /// Drops the closures that have not run yet, and every later one.
    void close();

private:
    class Receiver;
    Sender sender_;
    std::unique_ptr<Receiver> receiver_;
};

}  // namespace zelk
