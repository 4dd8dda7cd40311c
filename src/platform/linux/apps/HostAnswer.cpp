// SPDX-License-Identifier: MIT
#include "platform/linux/apps/HostAnswer.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <utility>

#include "platform/CommandProgram.h"
#include "platform/DesktopEntry.h"
#include "platform/Text.h"

namespace zelk {

const char* const hostScript = R"sh(
LC_ALL=C
export LC_ALL
printf '%s\0' "$$"
find /proc/[0-9]* -maxdepth 0 -uid "$1" -printf '%p/exe\0\0' 2>/dev/null
find /proc/[0-9]*/exe -maxdepth 0 -uid "$1" -printf '%p\0%l\0' 2>/dev/null
printf '\0\0'
grep -azHZs '' /proc/[0-9]*/cmdline /proc/[0-9]*/cgroup
printf '\0\0'
folders="${XDG_DATA_HOME:-$HOME/.local/share}:${XDG_DATA_DIRS:-}:$HOME/.local/share/flatpak/exports/share"
folders="$folders:/var/lib/flatpak/exports/share:/var/lib/snapd/desktop:/usr/local/share:/usr/share"
seen=:
IFS=:
set -f
for folder in $folders; do
    case $folder in /*) ;; *) continue ;; esac
    case $seen in *:"$folder":*) continue ;; esac
    seen=$seen$folder:
    grep -aHZsRE -D skip --include='*.desktop' '^(\[|Name|Exec|Type|Hidden|NoDisplay)' "$folder/applications"
done
printf '\0end\n'
)sh";

namespace {

constexpr std::string_view procFolder = "/proc/";
constexpr std::string_view entriesBelow = "/applications/";
constexpr std::string_view endOfEntry = ".desktop";

/// Takes one text after the other from an answer. Once one is missing, `whole` is false.
class Texts {
public:
    explicit Texts(std::string_view text) : left_(text) {}

    std::string_view take(char end) {
        if (left_.find(end) == std::string_view::npos) whole = false;
        return takeUntil(left_, end);
    }
    bool atEnd() const { return left_.empty(); }

    bool whole = true;

private:
    std::string_view left_;
};

/// The process whose file `name` this is; absent for any other path.
std::optional<std::int64_t> processOf(std::string_view path, std::string_view name) {
    if (!path.starts_with(procFolder) || !path.ends_with(name)) return std::nullopt;
    path.remove_prefix(procFolder.size());
    path.remove_suffix(std::min(name.size(), path.size()));
    return parseNumber<std::int64_t>(path);
}

std::string idOf(std::string_view path) {
    const std::size_t at = path.rfind(entriesBelow);
    if (at == std::string_view::npos || !path.ends_with(endOfEntry)) return {};
    path.remove_prefix(at + entriesBelow.size());
    path.remove_suffix(std::min(endOfEntry.size(), path.size()));
    std::string id(path);
    std::replace(id.begin(), id.end(), '/', '-');
    return id;
}

class AnswerReader {
public:
    explicit AnswerReader(std::string_view text) : texts_(text) {}

    std::optional<HostAnswer> read() {
        const auto asker = parseNumber<std::int64_t>(texts_.take('\0'));
        readPrograms();
        readFiles();
        readEntries();
        if (!asker || !texts_.whole || !texts_.atEnd() || answer_.entries.empty()) return std::nullopt;
        const auto self = processes_.find(*asker);
        if (self == processes_.end() || self->second.executable.empty() || self->second.arguments.empty() ||
            !grouped_.contains(*asker))
            return std::nullopt;
        for (auto& [number, process] : processes_) answer_.processes.push_back(std::move(process));
        return std::move(answer_);
    }

private:
    /// The program of a process may be told after it was told without one.
    void readPrograms() {
        for (std::string_view path = texts_.take('\0'); texts_.whole; path = texts_.take('\0')) {
            const std::string_view program = texts_.take('\0');
            if (path.empty()) return;
            if (const auto number = processOf(path, "/exe")) processes_[*number].executable = programOfLink(program);
        }
    }

    /// What is said of processes of other users is passed over.
    void readFiles() {
        for (std::string_view path = texts_.take('\0'); texts_.whole; path = texts_.take('\0')) {
            const std::string_view text = texts_.take('\0');
            if (path.empty()) return;
            if (const auto argued = processOf(path, "/cmdline"); argued && processes_.contains(*argued))
                processes_[*argued].arguments.emplace_back(text);
            const auto grouped = processOf(path, "/cgroup");
            if (!grouped || !processes_.contains(*grouped)) continue;
            processes_[*grouped].applications = applicationsOfControlGroup(text);
            grouped_.insert(*grouped);
        }
    }

    void readEntries() {
        std::string_view former;
        for (std::string_view path = texts_.take('\0'); texts_.whole; path = texts_.take('\0')) {
            const std::string_view line = texts_.take('\n');
            if (path.empty()) {
                texts_.whole = texts_.whole && line == "end";
                return;
            }
            if (path != former || answer_.entries.empty()) answer_.entries.push_back({idOf(path), {}});
            former = path;
            answer_.entries.back().text.append(line).append("\n");
        }
    }

    Texts texts_;
    HostAnswer answer_;
    std::map<std::int64_t, RunningProcess> processes_;
    std::set<std::int64_t> grouped_;  ///< those whose control group was told
};

/// The name of the program or script that tells the application; empty if it starts by one that many share.
std::string_view ownProgram(const std::vector<std::string>& command) {
    if (command.empty()) return {};
    if (!isSharedLauncher(command.front())) return fileNameOf(command.front());
    const auto script = std::find_if(command.begin() + 1, command.end(),
                                     [](const std::string& word) { return !word.starts_with('-'); });
    return script != command.end() && script->starts_with('/') ? fileNameOf(*script) : std::string_view();
}

bool isCalled(const RunningProcess& process, std::string_view program) {
    if (fileNameOf(process.executable) == program) return true;
    if (process.arguments.empty()) return false;
    if (fileNameOf(process.arguments.front()) == program) return true;
    if (!isSharedLauncher(process.executable) && !isSharedLauncher(process.arguments.front())) return false;
    const auto script = std::find_if(process.arguments.begin() + 1, process.arguments.end(),
                                     [](const std::string& argument) { return !argument.starts_with('-'); });
    return script != process.arguments.end() && fileNameOf(*script) == program;
}

bool belongsTo(const RunningProcess& process, const std::string& id, std::string_view program) {
    const std::vector<std::string>& ids = process.applications;
    return std::find(ids.begin(), ids.end(), id) != ids.end() || (!program.empty() && isCalled(process, program));
}

}  // namespace

std::optional<HostAnswer> parseHostAnswer(std::string_view text) {
    return AnswerReader(text).read();
}

RunningApplications runningApplicationsOf(const HostAnswer& answer, const std::vector<std::string>& locales) {
    RunningApplications running;
    std::set<std::string_view> ids;
    for (const HostEntry& one : answer.entries) {
        if (!ids.insert(one.id).second) continue;
        const std::optional<DesktopEntry> entry = parseDesktopEntry(one.text, locales);
        if (!entry || !entry->isApplication || entry->hidden || entry->noDisplay || entry->name.empty()) continue;
        const std::vector<std::string> command = withoutEnv(entry->command);
        const bool runs =
            std::any_of(answer.processes.begin(), answer.processes.end(),
                        [&](const RunningProcess& process) { return belongsTo(process, one.id, ownProgram(command)); });
        if (!runs) continue;
        if (std::find(running.names.begin(), running.names.end(), entry->name) == running.names.end())
            running.names.push_back(entry->name);
        running.ids.push_back(one.id);
    }
    return running;
}

}  // namespace zelk
