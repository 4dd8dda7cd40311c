// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include "platform/ChildProcess.h"
#include "platform/Workspace.h"
#include "platform/linux/Sandbox.h"
#include "platform/linux/apps/LinuxApplications.h"
#include "platform/linux/apps/ThemeIcons.h"

class QDBusConnection;

namespace zelk {

/// The desktop through its common interfaces: desktop entries, the file manager on the session bus, xdg-open. In a
/// sandbox the host is asked what runs, for which the main thread waits a few seconds at the very most.
class LinuxWorkspace : public Workspace {
public:
    /// Starts a program and returns at once.
    using Launcher = std::function<void(std::vector<std::string> command)>;
    using Bus = std::function<QDBusConnection()>;

    /// What runs; absent if nobody says.
    using Look = std::function<std::optional<RunningApplications>()>;

    /// `dataHome` is the user's data folder, `trash` the folder of the home trash. `processes`, which must outlive it,
    /// starts the programs of `sandbox`.
    LinuxWorkspace(const std::string& dataHome, std::string trash, const Sandbox& sandbox, ChildProcess& processes);
    /// Replaces the launcher and the session bus, for tests, and how it looks for what runs, unless that is empty.
    LinuxWorkspace(const std::string& dataHome, std::string trash, Launcher launcher, Bus bus, Look look = {});
    ~LinuxWorkspace() override;

    // All three are cached for one second, since callers ask once per item; longer if nobody said what runs, since that
    // may have taken its time and will hardly change.
    std::vector<std::string> runningApplications() override;
    std::vector<std::string> runningApplicationIds() override;
    bool knowsRunningApplications() override;
    void reveal(const std::vector<std::string>& paths) override;
    void openURL(const std::string& url) override;
    std::optional<IconPixels> icon(const std::string& path, bool isDirectory, int side) override;
    std::optional<IconPixels> entryIcon(const std::string& nameOrPath, int side) override;

private:
    class Reveals;

    /// Names and ids of the running applications; absent if nobody says.
    const std::optional<RunningApplications>& running();

    std::string trash_;
    Launcher launcher_;
    Bus bus_;
    Look look_;
    ThemeIcons icons_;
    std::unique_ptr<Reveals> reveals_;
    std::optional<RunningApplications> running_;
    std::optional<std::chrono::steady_clock::time_point> runningSince_;
};

}  // namespace zelk
