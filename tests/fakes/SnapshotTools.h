// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "fakes/FakePlatform.h"

namespace zelk::fakes {

/// The tools that list and remove snapshots, of both systems. They hold what a test puts there, and remove nothing but
/// by `removing`. Change it only while no task runs.
class SnapshotTools {
public:
    struct Kept {
        std::string name;
        bool freeable = false;
        int number = 0;
        std::string type = "single";               ///< of snapper
        std::string date = "2024-03-07 10:15:02";  ///< of snapper
    };

    /// Answers the programs of `machine`, which must not outlive it.
    explicit SnapshotTools(FakePlatform& machine) : machine_(machine) {
        machine.processes.outcome = [this](const FakeProcesses::Call& call) { return answer(call); };
    }

    std::vector<Kept> kept;
    bool snapperInstalled = true;
    /// Whether snapper says for which volumes it is set up.
    bool configured = true;
    /// What zfs lists, of which "rpool/root" is the volume at "/"; absent if it is not installed.
    std::optional<std::string> zfs;
    /// Whether snapper lists for this user, and whether it removes for them.
    bool lists = true;
    bool removes = true;
    /// What a removal by the user or by the administrator answers.
    ChildOutcome removal;
    std::function<void()> removing = [] {};

    static std::string identifier(int number) {
        std::string digits = std::to_string(number);
        return "AFD82B0C-23D3-481B-9401-" + std::string(12 - digits.size(), '0') + digits;
    }

    /// The programs that removed something, or asked to, with the line that they were given.
    std::vector<std::string> removals() const {
        std::vector<std::string> lines;
        for (const FakeProcesses::Call& call : machine_.processes.calls())
            if (isRemoval(call)) lines.push_back(call.executable + ": " + call.arguments.back());
        return lines;
    }
    /// How often the snapshots were listed.
    int listings() const {
        int count = 0;
        for (const FakeProcesses::Call& call : machine_.processes.calls())
            count += call.executable == "/usr/sbin/diskutil" ||
                     (call.executable == "/usr/bin/snapper" && call.arguments.back() == "list");
        return count;
    }

private:
    static bool isRemoval(const FakeProcesses::Call& call) {
        return call.executable == "/usr/bin/osascript" || call.executable == "/usr/bin/pkexec" ||
               call.executable == "/usr/bin/env";
    }
    ChildOutcome answer(const FakeProcesses::Call& call) {
        if (isRemoval(call)) {
            if (call.executable == "/usr/bin/env" && !removes) return {std::nullopt, 1, "No permissions.\n"};
            removing();
            return removal;
        }
        if (call.executable == "/usr/sbin/diskutil") return {std::nullopt, 0, ofDiskutil()};
        if (call.executable == "/usr/sbin/zfs" && zfs)
            return {std::nullopt, 0, call.arguments.back() == "/" ? "rpool/root\n" : *zfs};
        if (call.executable != "/usr/bin/snapper" || !snapperInstalled) return {"No such file or directory", 0, {}};
        if (call.arguments.back() == "list-configs")
            return configured ? ChildOutcome{std::nullopt, 0, R"({"configs":[{"config":"root","subvolume":"/"}]})"}
                              : ChildOutcome{std::nullopt, 1, "Failure (org.freedesktop.DBus.Error.NoReply).\n"};
        return lists ? ChildOutcome{std::nullopt, 0, ofSnapper()} : ChildOutcome{std::nullopt, 1, ""};
    }
    std::string ofDiskutil() const {
        std::string text = "Snapshots for disk3s1 (" + std::to_string(kept.size()) + " found)\n";
        for (const Kept& one : kept)
            text += "|\n+-- " + identifier(one.number) + "\n|   Name:        " + one.name +
                    "\n|   Purgeable:   " + (one.freeable ? "Yes" : "No") + "\n";
        return text;
    }
    std::string ofSnapper() const {
        std::string entries;
        for (const Kept& one : kept)
            entries += std::string(entries.empty() ? "" : ",") + "{\"number\":" + std::to_string(one.number) +
                       R"(,"default":false,"active":false,"type":")" + one.type + R"(","date":")" + one.date +
                       R"(","cleanup":")" + (one.freeable ? "number" : "") + R"(","description":")" + one.name +
                       R"(","userdata":null})";
        return "{\"root\":[" + entries + "]}";
    }

    FakePlatform& machine_;
};

}  // namespace zelk::fakes
