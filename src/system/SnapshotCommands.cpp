// SPDX-License-Identifier: MIT
#include "system/SnapshotCommands.h"

#include <algorithm>
#include <string_view>

#include "system/CommandText.h"

namespace zelk {

namespace {

constexpr int thinUrgency = 4;  // the most urgent
// What snapper says in the locale "C".
constexpr std::string_view noPermission = "No permissions.";

bool isAlphanumeric(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
}

/// Whether `word` consists of letters, digits and the characters in `others`, and is no option.
bool isPlain(std::string_view word, std::string_view others) {
    return !word.empty() && word.front() != '-' && std::all_of(word.begin(), word.end(), [others](char c) {
        return isAlphanumeric(c) || others.find(c) != std::string_view::npos;
    });
}

/// Whether tmutil can only take it for a snapshot: it also takes a mount point, and deletes all snapshots there.
bool isSnapshotName(std::string_view name) {
    return isPlain(name, "._-") && name.find_first_not_of('.') != std::string_view::npos;
}

bool isConfig(std::string_view config) {
    return isPlain(config, "_-");
}

bool isNumber(std::string_view number) {
    return !number.empty() && number.front() != '0' &&
           std::all_of(number.begin(), number.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::string snapperCommand(std::string_view config, const std::string& command) {
    return "/usr/bin/snapper -c " + std::string(config) + " " + command;
}

}  // namespace

std::optional<std::string> deleteLine(SnapshotKeeper keeper, const LocalSnapshot& snapshot) {
    if (keeper == SnapshotKeeper::diskutil) {
        const std::string_view name = dateStamp(snapshot.name);
        if (!isSnapshotName(name)) return std::nullopt;
        return "/usr/bin/tmutil deletelocalsnapshots " + std::string(name);
    }
    if (keeper != SnapshotKeeper::snapper) return std::nullopt;
    const std::string_view uuid = snapshot.uuid;
    const std::size_t slash = uuid.rfind('/');
    if (slash == std::string_view::npos) return std::nullopt;
    const std::string_view number = uuid.substr(slash + 1);
    if (!isConfig(uuid.substr(0, slash)) || !isNumber(number)) return std::nullopt;
    return snapperCommand(uuid.substr(0, slash), "delete --sync " + std::string(number));
}

std::optional<std::string> thinLine(const SnapshotListing& listing) {
    const std::string bytes = std::to_string(thinnedBytes);
    if (listing.keeper == SnapshotKeeper::diskutil)
        return "/usr/bin/tmutil thinlocalsnapshots / " + bytes + " " + std::to_string(thinUrgency);
    if (listing.keeper != SnapshotKeeper::snapper || !isConfig(listing.config)) return std::nullopt;
    const std::string cleanup = "cleanup --free-space " + bytes;
    return snapperCommand(listing.config, cleanup + " number") + "; " +
           snapperCommand(listing.config, cleanup + " timeline");
}

std::optional<std::string> runAsUser(ChildProcess& processes, const std::string& line) {
    const ChildOutcome outcome =
        processes.run("/usr/bin/env", {"LC_ALL=C", "/bin/sh", "-c", line},
                      {.inheritsInput = false, .errorsWithOutput = true, .readsWhileRunning = true});
    const bool refused = outcome.exitStatus != 0 && outcome.output.find(noPermission) != std::string::npos;
    return refused ? std::nullopt : std::optional(textOfAdminRun(outcome));
}

}  // namespace zelk
