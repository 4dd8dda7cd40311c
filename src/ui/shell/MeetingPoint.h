// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "ui/shell/Activation.h"

namespace zelk {

/// A place where the starts of an application by one user meet, and where only one of them can be. Main thread; needs
/// no application object, but an event loop to serve().
class MeetingPoint {
public:
    enum class Claim {
        held,        ///< by this process, until it ends or this object is destroyed
        taken,       ///< by another process
        impossible,  ///< there is no such place here
    };
    enum class Answer {
        heard,     ///< the other process comes forward
        starting,  ///< it has not shown its window yet, and will
        gone,      ///< it has ended meanwhile, or is about to
        silent,    ///< it should have answered by now
    };
    /// Comes forward. Returns false if the application is ending and will not.
    using Handler = std::function<bool(const Activation&)>;

    MeetingPoint() = default;
    MeetingPoint(const MeetingPoint&) = delete;
    MeetingPoint& operator=(const MeetingPoint&) = delete;
    virtual ~MeetingPoint() = default;

    /// May be repeated, also by the holder.
    virtual Claim claim() = 0;
    /// Asks the process that has taken it to come forward, and waits for the answer, a few seconds at most.
    virtual Answer call(const Activation& by) = 0;
    /// Passes what other processes ask to `handler`. For the holder; once.
    virtual void serve(Handler handler) = 0;
    /// Lets others expect an answer, since the event loop runs and the window is shown. For the holder; once.
    virtual void announce() = 0;
};

}  // namespace zelk
