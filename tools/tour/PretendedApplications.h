// SPDX-License-Identifier: MIT
// Packages and a snap that no sample home can hold, for pictures of them: their files, and what the tools answer.
#pragma once

#include <condition_variable>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/ChildProcess.h"

namespace zelk::tour {

/// Safe from any thread.
class PretendedApplications {
public:
    PretendedApplications() { restore(); }

    /// Brings back what was removed.
    void restore() {
        const std::lock_guard lock(mutex_);
        packages_.clear();
        add("org.sample.Studio", "Studio", "studio");
        add("org.sample.Paint", "Paint", "paint");
        add("org.sample.Maps", "Maps", "maps");
        add("terminal", "Terminal", "terminal");
        files_[entries_ + "handmade.desktop"] = entry("Handmade", "/opt/handmade/bin/handmade");
        files_["/var/lib/snapd/desktop/applications/chat_chat.desktop"] = entry("Chat", "/snap/bin/chat");
        files_["/var/lib/snapd/snaps/chat_42.snap"] = "";
        for (const char* tool : {"/usr/bin/flatpak", "/usr/bin/snap"}) files_[tool] = "";
    }

    /// Has nothing be found anywhere.
    void setNone(bool none) { set(none_, none); }
    /// Makes whoever measures wait.
    void holdSizes(bool held) { set(held_, held); }
    /// What every removal answers; by success what it removes is gone.
    void setRemoval(const ChildOutcome& removal) { set(removal_, removal); }
    void setAlongside(const std::string& package) { set(alongside_, package); }

    bool none() {
        const std::lock_guard lock(mutex_);
        return none_;
    }
    void waitForSizes() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return !held_; });
    }
    std::optional<std::string> content(const std::string& path) {
        const std::lock_guard lock(mutex_);
        const auto found = files_.find(path);
        return found == files_.end() ? std::nullopt : std::optional(found->second);
    }
    /// The names in a folder; absent if this is none of ours.
    std::optional<std::vector<std::string>> list(const std::string& folder) {
        const std::lock_guard lock(mutex_);
        std::vector<std::string> names;
        for (const auto& [path, text] : files_)
            if (path.substr(0, path.rfind('/')) == folder) names.push_back(path.substr(path.rfind('/') + 1));
        const bool isOurs = folder + "/" == entries_ || folder.starts_with("/var/lib/snapd");
        return isOurs ? std::optional(names) : std::nullopt;
    }

    ChildOutcome answer(const std::string& executable, const std::vector<std::string>& arguments) {
        const std::lock_guard lock(mutex_);
        const auto printed = [](const std::string& text) { return ChildOutcome{std::nullopt, 0, text}; };
        if (executable == "/usr/bin/dpkg-query") return printed(arguments.front() == "-S" ? owners() : packages());
        if (executable == "/usr/bin/apt-get") {
            std::string text = "Remv " + arguments.back() + " [1.0]\n";
            if (!alongside_.empty()) text += "Remv " + alongside_ + " [1.0]\n";
            return printed(text);
        }
        if (executable == "/usr/bin/flatpak" && arguments.front() == "info")
            return printed(std::to_string(5'300'000 * arguments.back().size()) + "\n");
        if (!removal_.launchFailure && removal_.exitStatus == 0) files_.erase(entries_ + "org.sample.Studio.desktop");
        return removal_;
    }

private:
    struct Package {
        std::string id;
        std::string package;
    };

    static std::string entry(const std::string& name, const std::string& program) {
        return "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=" + program + " %U\n";
    }
    void add(const std::string& id, const std::string& name, const std::string& package) {
        files_[entries_ + id + ".desktop"] = entry(name, "/usr/bin/" + package);
        packages_.push_back({id, package});
    }
    std::string owners() const {
        std::string text;
        for (const Package& one : packages_)
            text += one.package + ": " + entries_ + one.id + ".desktop\n" + one.package + ": /usr/bin/" + one.package +
                    "\n";
        return text;
    }
    std::string packages() const {
        std::string text;
        int units = 840'000;
        for (const Package& one : packages_) {
            const bool isForAll = one.package == "terminal";
            text += one.package + "\tinstalled\tno\t\t" + (isForAll ? "standard" : "optional") + "\t" +
                    std::to_string(units) + "\t\t\t\n";
            units /= 3;
        }
        return text + "desktop\tinstalled\tno\t\toptional\t1\t\t\tpaint, libc6\n";
    }
    template <class T>
    void set(T& what, const T& value) {
        const std::lock_guard lock(mutex_);
        what = value;
        changed_.notify_all();
    }

    const std::string entries_ = "/usr/share/applications/";
    std::mutex mutex_;
    std::condition_variable changed_;
    std::map<std::string, std::string> files_;
    std::vector<Package> packages_;
    bool none_ = false;
    bool held_ = false;
    ChildOutcome removal_;
    std::string alongside_;
};

}  // namespace zelk::tour
