// SPDX-License-Identifier: MIT
#include "system/PrivilegedCommands.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Translation.h"
#include "system/AdminLines.h"
#include "system/CommandText.h"
#include "system/MaintenanceLines.h"

namespace zelk {

namespace {

constexpr const char* adminHelper = "/usr/libexec/zelk-admin";
constexpr const char* nameServiceCache = "/usr/sbin/nscd";
/// There while that cache runs.
constexpr const char* nameServiceSocket = "/run/nscd/socket";

/// Words of resolvectl where its service is not installed or does not run: of systemd and of the two programs that
/// serve as a system bus, none of which translates them.
constexpr std::array<const char*, 4> absentResolver{".service not found", ".service is masked",
                                                    "was not provided by any .service files", "activate remote peer"};

/// What pkexec says before the reason for which it runs nothing, in every language.
constexpr std::string_view pkexecRefusal = "Error executing command as another user: ";

/// Input that must not be that of a terminal, and output read meanwhile: a program of root that waits for its pipe to
/// be read could not even be ended.
constexpr ChildStreams linuxStreams{false, true, true};

ChildOutcome throughOsascript(ChildProcess& processes, const std::string& line) {
    std::string script = "do shell script \"";
    for (const char c : line) {
        if (c == '"') script += '\\';
        script += c;
    }
    script += "\" with administrator privileges";
    return processes.run("/usr/bin/osascript", {"-e", script});
}

/// Started directly: pkexec asks on behalf of its parent. Without the flag it asks in the terminal from which this
/// process was started, if the desktop has nothing to ask with.
ChildOutcome throughPkexec(ChildProcess& processes, std::vector<std::string> command) {
    command.insert(command.begin(), "--disable-internal-agent");
    return processes.run("/usr/bin/pkexec", command, linuxStreams);
}

/// Whether there is no cache of systemd-resolved, as opposed to one that was not flushed.
bool isWithoutResolver(const ChildOutcome& outcome) {
    if (outcome.launchFailure) return true;
    if (outcome.exitStatus == 0) return false;
    return std::any_of(absentResolver.begin(), absentResolver.end(),
                       [&](const char* words) { return outcome.output.find(words) != std::string::npos; });
}

/// The caches are those of systemd-resolved, which anybody may flush, and of nscd; most machines have neither.
ChildOutcome flushDNSOnLinux(const Platform& platform) {
    const ChildOutcome resolved = platform.processes.run("/usr/bin/resolvectl", {"flush-caches"}, linuxStreams);
    // From a sandbox it cannot be known what runs outside.
    if (platform.locations.isSandboxed() || !isWithoutResolver(resolved)) return resolved;
    if (platform.files.exists(nameServiceCache) && platform.files.exists(nameServiceSocket))
        return throughPkexec(platform.processes, {nameServiceCache, "-i", "hosts"});
    return {std::nullopt, 0, translated("Command", "No DNS cache runs here.")};
}

ChildOutcome privilegedOutcome(const Platform& platform, const std::string& line) {
    if (platform.system == SystemKind::macOS) return throughOsascript(platform.processes, line);
    if (line == flushDNSLine(platform.system)) return flushDNSOnLinux(platform);
    std::optional<std::vector<std::string>> command = adminArguments(line);
    if (command && platform.files.exists(adminHelper)) {
        command->insert(command->begin(), adminHelper);
    } else {
        command = std::vector<std::string>{"/bin/sh", "-c", line};
    }
    return throughPkexec(platform.processes, *std::move(command));
}

}  // namespace

PrivilegedCommands::PrivilegedCommands(const Platform& platform) : platform_(platform) {}

std::string PrivilegedCommands::run(const std::string& line) {
    return textOfRun(privilegedOutcome(platform_, line));
}

std::string PrivilegedCommands::runAdmin(const std::string& line) {
    return textOfAdminRun(outcomeOf(line));
}

ChildOutcome PrivilegedCommands::outcomeOf(const std::string& line) {
    return privilegedOutcome(platform_, line);
}

bool wasNotAllowed(std::string_view answer) {
    return answer.starts_with(refusedAnswer() + std::string(pkexecRefusal));
}

bool wasNotAllowed(const ChildOutcome& outcome) {
    return !outcome.launchFailure && outcome.exitStatus != 0 && outcome.output.starts_with(pkexecRefusal);
}

}  // namespace zelk
