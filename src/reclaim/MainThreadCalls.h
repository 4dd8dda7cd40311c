// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

namespace zelk {

/// The way back from any thread to the main thread: closures run there one after the other, in the order in which they
/// were posted, from the event loop. It belongs to an object of the main thread and ends with it, so a closure may hold
/// that object by plain pointer.
class MainThreadCalls {
public:
    using Call = std::function<void()>;

    /// What other threads hold; may outlive the rest.
    class Sender {
    public:
        /// Safe from any thread. Drops `call` if nobody is there any more to run it for.
        void post(Call call) const;

    private:
        friend class MainThreadCalls;
        struct Line;
        std::shared_ptr<Line> line_;
    };

    MainThreadCalls();
    ~MainThreadCalls();
    MainThreadCalls(const MainThreadCalls&) = delete;
    MainThreadCalls& operator=(const MainThreadCalls&) = delete;

    const Sender& sender() const { return sender_; }
    /// Drops what has not run and all that comes later.
    void close();

private:
    class Receiver;
    Sender sender_;
    std::unique_ptr<Receiver> receiver_;
};

}  // namespace zelk
