// SPDX-License-Identifier: MIT
#include "platform/linux/apps/LinuxApplications.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "platform/CommandProgram.h"
#include "platform/DesktopEntry.h"
#include "platform/Text.h"
#include "platform/linux/EnvironmentFolders.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/DurableFile.h"
#include "platform/posix/OpenDirectory.h"
#include "platform/posix/RealPath.h"

namespace zelk {

namespace {

constexpr std::string_view entrySuffix = ".desktop";
constexpr int deepestFolder = 8;  // links may form cycles
constexpr off_t largestEntry = 1 << 20;

std::string environment(const char* variable, const char* otherwise) {
    const char* value = std::getenv(variable);
    return value == nullptr || *value == '\0' ? otherwise : value;
}

bool isProgram(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && ::access(path.c_str(), X_OK) == 0;
}

/// The path of the program that `word` names; absent if there is none.
std::optional<std::string> findProgram(const std::string& word, const std::vector<std::string>& folders) {
    if (word.find('/') != std::string::npos)
        return word.starts_with('/') && isProgram(word) ? std::optional(word) : std::nullopt;
    for (const std::string& folder : folders)
        if (std::string path = folder + "/" + word; !word.empty() && isProgram(path)) return path;
    return std::nullopt;
}

std::string resolved(const std::string& path) {
    return resolvedPath(path).value_or("");
}

/// The words of a script's "#!" line; empty if the file is not a script.
std::vector<std::string> shebangWords(const std::string& path) {
    constexpr std::size_t longest = 256;  // the kernel's own limit
    const Descriptor file(uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK); }));
    if (!file) return {};
    std::string line(longest, '\0');
    const ssize_t got = uninterrupted([&] { return ::read(file.get(), line.data(), line.size()); });
    line.resize(got < 0 ? 0 : static_cast<std::size_t>(got));
    if (!line.starts_with("#!")) return {};
    std::string_view rest = std::string_view(line).substr(2);
    rest = takeLine(rest);
    std::vector<std::string> words;
    for (std::string_view word = takeWord(rest); !word.empty(); word = takeWord(rest)) words.emplace_back(word);
    return words;
}

/// Sets the application's program, unless it only starts a shared one.
void findOwnProgram(InstalledApplication& application, const std::vector<std::string>& command,
                    const std::vector<std::string>& folders) {
    const std::vector<std::string> words = withoutEnv(command);
    if (words.empty()) return;
    const std::optional<std::string> program = findProgram(words.front(), folders);
    if (!program) return;
    const std::string real = resolved(*program);
    if (isSharedLauncher(*program) || isSharedLauncher(real)) {
        const auto script = std::find_if(words.begin() + 1, words.end(),
                                         [](const std::string& word) { return !word.starts_with('-'); });
        if (script == words.end() || !script->starts_with('/') || resolved(*script).empty()) return;
        application.programAsNamed = *script;
        application.program = resolved(*script);
        application.interpreter = real;
        return;
    }
    application.programAsNamed = *program;
    application.program = real;
    const std::vector<std::string> line = withoutEnv(shebangWords(real));
    if (line.empty()) return;
    if (const auto interpreter = findProgram(line.front(), folders)) application.interpreter = resolved(*interpreter);
}

class EntryCollector {
public:
    explicit EntryCollector(const ApplicationPlaces& places) : places_(places) {}

    /// `prefix` is what the folder's path adds to the ids of its entries.
    void addFolder(const std::string& folder, const std::string& prefix, int depth) {
        std::vector<std::string> names =
            directoryNames(Descriptor(openRootDirectory(folder))).value_or(std::vector<std::string>());
        std::sort(names.begin(), names.end());
        for (const std::string& name : names) {
            const std::string path = folder + "/" + name;
            struct stat status {};
            if (::stat(path.c_str(), &status) != 0) continue;
            if (S_ISDIR(status.st_mode)) {
                if (depth < deepestFolder) addFolder(path, prefix + name + "-", depth + 1);
            } else if (name.ends_with(entrySuffix) && status.st_size <= largestEntry) {
                addEntry(path, prefix + name.substr(0, name.size() - entrySuffix.size()));
            }
        }
    }

    std::vector<InstalledApplication> take() { return std::move(applications_); }

private:
    void addEntry(const std::string& path, const std::string& id) {
        if (!ids_.insert(id).second)
            return;  // the first entry of an id hides all later ones, even if it is hidden itself
        const auto entry = parseDesktopEntry(readWholeFile(path).value_or(""), places_.locales);
        if (!entry || !entry->isApplication || entry->hidden || entry->noDisplay || entry->name.empty()) return;
        if (!entry->tryExec.empty() && !findProgram(entry->tryExec, places_.programs)) return;
        InstalledApplication application{id, entry->name, {}, {}, {}};
        findOwnProgram(application, entry->command, places_.programs);
        applications_.push_back(std::move(application));
    }

    const ApplicationPlaces& places_;
    std::set<std::string> ids_;
    std::vector<InstalledApplication> applications_;
};

/// The script is the first argument that is not an option of the interpreter.
bool runsScript(const RunningProcess& process, const InstalledApplication& application) {
    if (process.arguments.empty()) return false;
    const auto script = std::find_if(process.arguments.begin() + 1, process.arguments.end(),
                                     [](const std::string& argument) { return !argument.starts_with('-'); });
    return script != process.arguments.end() &&
           (*script == application.programAsNamed || *script == application.program);
}

bool belongsTo(const RunningProcess& process, const InstalledApplication& application) {
    const std::vector<std::string>& ids = process.applications;
    if (std::find(ids.begin(), ids.end(), application.id) != ids.end()) return true;
    if (application.program.empty()) return false;
    if (application.interpreter.empty()) return process.executable == application.program;
    // A script that execs another program may pass on its own path as the process name.
    if (!process.arguments.empty() &&
        (process.arguments.front() == application.programAsNamed || process.arguments.front() == application.program))
        return true;
    return process.executable == application.interpreter && runsScript(process, application);
}

}  // namespace

ApplicationPlaces ApplicationPlaces::ofEnvironment(const std::string& dataHome) {
    ApplicationPlaces places;
    std::vector<std::string> data = foldersFromEnvironment("XDG_DATA_DIRS", usualDataFolders);
    data.insert(data.begin(), dataHome);
    for (const std::string& folder : data) places.entries.push_back(folder + "/applications");
    places.programs = foldersFromEnvironment("PATH", usualProgramFolders);
    places.locales =
        localesOf(environment("LC_ALL", environment("LC_MESSAGES", environment("LANG", "C").c_str()).c_str()));
    return places;
}

std::vector<InstalledApplication> installedApplications(const ApplicationPlaces& places) {
    EntryCollector collector(places);
    for (const std::string& folder : places.entries) collector.addFolder(folder, "", 0);
    return collector.take();
}

RunningApplications runningApplicationsOf(const std::vector<InstalledApplication>& applications,
                                          const std::vector<RunningProcess>& processes) {
    const auto addOnce = [](std::vector<std::string>& texts, const std::string& text) {
        if (std::find(texts.begin(), texts.end(), text) == texts.end()) texts.push_back(text);
    };
    RunningApplications running;
    for (const RunningProcess& process : processes)
        for (const InstalledApplication& application : applications) {
            if (!belongsTo(process, application)) continue;
            addOnce(running.names, application.name);
            addOnce(running.ids, application.id);
        }
    return running;
}

}  // namespace zelk
