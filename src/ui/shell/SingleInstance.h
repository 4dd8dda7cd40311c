// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "ui/shell/MeetingPoint.h"

namespace zelk {

class Shell;

/// Lets one process of a user have the windows: the first start. A later one has the first come forward, and ends.
/// The first holds every meeting point that there is, since another start may not reach all of them. On macOS there is
/// none, because the system itself starts no application twice. Main thread.
class SingleInstance {
public:
    /// Finds out whether this start is the first. A later one waits for the answer of the first, a few seconds at most.
    /// Needs no application object, and should be created before one, so that a later start costs little.
    SingleInstance();
    /// At these points, which are tried in order; every process must use the same order.
    SingleInstance(std::vector<std::unique_ptr<MeetingPoint>> points, const Activation& by);

    /// The status to exit with at once, or nothing if this start is the first. What there is to say stands on the
    /// standard error.
    std::optional<int> exitStatus() const { return exitStatus_; }
    /// Has the shell come forward from now on whenever another start asks for it.
    void serve(Shell& shell);

private:
    bool take(MeetingPoint& point, const Activation& by);

    std::vector<std::unique_ptr<MeetingPoint>> held_;
    std::optional<int> exitStatus_;
};

/// The meeting points of this system.
std::vector<std::unique_ptr<MeetingPoint>> meetingPoints();

}  // namespace zelk
