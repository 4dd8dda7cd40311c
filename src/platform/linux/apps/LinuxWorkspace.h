// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include "platform/Workspace.h"
#include "platform/linux/apps/LinuxApplications.h"
#include "platform/linux/apps/ThemeIcons.h"

class QDBusConnection;

namespace zelk {

/// The desktop through its common interfaces: desktop entries, the file manager on the session bus, xdg-open.
class LinuxWorkspace : public Workspace {
public:
    /// Starts a program and returns at once.
    using Launcher = std::function<void(std::vector<std::string> command)>;
    using Bus = std::function<QDBusConnection()>;

    /// `dataHome` is the user's data folder, `trash` the folder of the home trash.
    LinuxWorkspace(const std::string& dataHome, std::string trash);
    /// Replaces the launcher and the session bus, for tests.
    LinuxWorkspace(const std::string& dataHome, std::string trash, Launcher launcher, Bus bus);
    ~LinuxWorkspace() override;

    // Both are cached for one second, since callers ask once per item.
    std::vector<std::string> runningApplications() override;
    std::vector<std::string> runningApplicationIds() override;
    void reveal(const std::vector<std::string>& paths) override;
    void openURL(const std::string& url) override;
    std::optional<IconPixels> icon(const std::string& path, bool isDirectory, int side) override;
    std::optional<IconPixels> entryIcon(const std::string& nameOrPath, int side) override;

private:
    class Reveals;

    /// Names and ids of the running applications.
    const RunningApplications& running();

    ApplicationPlaces places_;
    std::string trash_;
    Launcher launcher_;
    Bus bus_;
    ThemeIcons icons_;
    std::unique_ptr<Reveals> reveals_;
    RunningApplications running_;
    std::optional<std::chrono::steady_clock::time_point> runningSince_;
};

}  // namespace zelk
