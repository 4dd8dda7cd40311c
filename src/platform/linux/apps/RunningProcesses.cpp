// SPDX-License-Identifier: MIT
#include "platform/linux/apps/RunningProcesses.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/Text.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/DurableFile.h"
#include "platform/posix/FileFacts.h"
#include "platform/posix/OpenDirectory.h"

namespace zelk {

namespace {

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(separator, start), text.size());
        parts.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

bool takeSuffix(std::string_view& text, std::string_view suffix) {
    if (!text.ends_with(suffix)) return false;
    text.remove_suffix(suffix.size());
    return true;
}

/// Unit names write separators as "\x2d".
constexpr EscapeForm unitEscape{"\\x", "0123456789abcdef", 2};

/// "snap.NAME.APPLICATION-UUID", with a dot before the UUID in older versions.
std::vector<std::string> applicationsOfSnap(std::string_view unit) {
    constexpr std::size_t uuidLength = 36;
    const std::size_t dot = unit.find('.');
    if (dot == std::string_view::npos) return {};
    std::string_view application = unit.substr(dot + 1);
    if (application.size() > uuidLength + 1) application.remove_suffix(uuidLength + 1);
    return {unescaped(unit.substr(0, dot), unitEscape) + "_" + unescaped(application, unitEscape)};
}

std::vector<std::string> applicationsOfUnit(std::string_view unit) {
    const bool scope = takeSuffix(unit, ".scope");
    if (!scope && !takeSuffix(unit, ".service")) return {};
    if (unit.starts_with("snap.")) return applicationsOfSnap(unit.substr(5));
    if (!unit.starts_with("app-")) return {};
    const std::string_view whole = unit;
    unit = unit.substr(0, unit.find('@'));
    const std::vector<std::string_view> parts = split(unit, '-');
    std::vector<std::string> ids;
    // A scope ends with a number; a service without an instance may, too.
    if (!scope) ids.push_back(unescaped(parts.back(), unitEscape));
    if (parts.size() > 2 && unit.size() == whole.size()) ids.push_back(unescaped(parts[parts.size() - 2], unitEscape));
    return ids;
}

std::vector<std::string> argumentsOf(std::string_view commandLine) {
    if (commandLine.ends_with('\0')) commandLine.remove_suffix(1);
    if (commandLine.empty()) return {};
    const std::vector<std::string_view> parts = split(commandLine, '\0');
    return {parts.begin(), parts.end()};
}

bool isOwn(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && status.st_uid == ::getuid();
}

RunningProcess read(const std::string& folder) {
    RunningProcess process;
    process.executable = programOfLink(textOfLink(folder + "/exe").value_or(""));
    process.arguments = argumentsOf(readWholeFile(folder + "/cmdline").value_or(""));
    process.applications = applicationsOfControlGroup(readWholeFile(folder + "/cgroup").value_or(""));
    return process;
}

}  // namespace

std::string programOfLink(std::string_view target) {
    takeSuffix(target, " (deleted)");
    return std::string(target);
}

std::vector<std::string> applicationsOfControlGroup(std::string_view text) {
    std::vector<std::string> found;
    for (const std::string_view line : split(text, '\n')) {
        // "0::/user.slice/…/app.slice/UNIT/…": an application may have groups of its own below.
        for (const std::string_view part : split(line, '/'))
            if (auto ids = applicationsOfUnit(part); !ids.empty()) found = std::move(ids);
    }
    return found;
}

std::vector<RunningProcess> runningProcesses(const std::string& processes) {
    std::vector<std::int64_t> numbers;
    for (const std::string& name :
         directoryNames(Descriptor(openRootDirectory(processes))).value_or(std::vector<std::string>()))
        if (const auto number = parseNumber<std::int64_t>(name)) numbers.push_back(*number);
    std::sort(numbers.begin(), numbers.end());
    std::vector<RunningProcess> all;
    for (const std::int64_t number : numbers) {
        const std::string folder = processes + "/" + std::to_string(number);
        if (isOwn(folder)) all.push_back(read(folder));
    }
    return all;
}

}  // namespace zelk
