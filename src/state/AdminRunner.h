// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/Platform.h"
#include "state/MainThreadQueue.h"

namespace zelk {

/// Runs PrivilegedCommands without blocking. Owned by AppModel; main thread only. Calls do not wait for each other:
/// whoever calls disables its buttons meanwhile.
class AdminRunner {
public:
    /// Gets the text for display, on the main thread. Called once per command, and not at all if the runner has gone by
    /// then; must not assume that the caller still exists.
    using Done = std::function<void(const std::string& text)>;

    /// The services must outlive this object and its commands.
    AdminRunner(const Platform& platform, MainThreadQueue::Sender mainThread);

    /// PrivilegedCommands::run().
    void run(const std::string& line, Done done);
    /// PrivilegedCommands::runAdmin().
    void runAdmin(const std::string& line, Done done);

private:
    Platform platform_;
    MainThreadQueue::Sender mainThread_;
};

}  // namespace zelk
