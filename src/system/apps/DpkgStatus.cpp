// SPDX-License-Identifier: MIT
#include "system/apps/DpkgStatus.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "platform/Text.h"

namespace zelk {

namespace {

constexpr std::size_t longestPackageName = 255;
constexpr std::uint64_t bytesPerUnit = 1024;
/// Of a basic system: nobody chose these.
constexpr std::array systemPriorities{"required", "important", "standard"};

/// The name before a version, an architecture or a blank.
std::string_view nameOf(std::string_view word) {
    return word.substr(0, std::min(word.find_first_of(" \t(:["), word.size()));
}

std::vector<PackageChoice> choicesOf(std::string_view text) {
    std::vector<PackageChoice> choices;
    while (!text.empty()) {
        const std::string_view word = trimmed(takeUntil(text, '|'));
        if (isPackageName(nameOf(word)))
            choices.push_back({std::string(nameOf(word)), word.find('(') == std::string_view::npos});
    }
    return choices;
}

void addNeeds(std::string_view text, DpkgPackage& package) {
    while (!text.empty()) {
        std::vector<PackageChoice> choices = choicesOf(takeUntil(text, ','));
        if (!choices.empty()) package.needs.push_back(std::move(choices));
    }
}

std::optional<DpkgPackage> packageOf(std::string_view line) {
    std::array<std::string_view, 9> fields;
    for (std::string_view& field : fields) field = trimmed(takeUntil(line, '\t'));
    const auto& [name, status, essential, isProtected, priority, size, provides, before, needs] = fields;
    if (!isPackageName(name) || status.empty() || status == "not-installed" || status == "config-files")
        return std::nullopt;
    DpkgPackage package;
    package.name = name;
    const std::uint64_t units = parseNumber<std::uint64_t>(size).value_or(0);
    if (units <= UINT64_MAX / bytesPerUnit) package.bytes = units * bytesPerUnit;
    package.isForSystem =
        essential == "yes" || isProtected == "yes" ||
        std::find(systemPriorities.begin(), systemPriorities.end(), priority) != systemPriorities.end();
    for (std::string_view left = provides; !left.empty();) {
        const std::string_view word = nameOf(trimmed(takeUntil(left, ',')));
        if (isPackageName(word)) package.provides.emplace_back(word);
    }
    addNeeds(before, package);
    addNeeds(needs, package);
    return package;
}

/// Who is there under each name: packages of that name, and those that provide it.
std::map<std::string, std::set<std::string>> providersIn(const std::map<std::string, DpkgPackage>& packages) {
    std::map<std::string, std::set<std::string>> providers;
    for (const auto& [name, package] : packages) {
        providers[name].insert(name);
        for (const std::string& other : package.provides) providers[other].insert(name);
    }
    return providers;
}

}  // namespace

const char* const dpkgFormat =
    "${Package}\\t${db:Status-Status}\\t${Essential}\\t${Protected}\\t${Priority}\\t${Installed-Size}\\t${Provides}\\t"
    "${Pre-Depends}\\t${Depends}\\n";

std::map<std::string, DpkgPackage> parseDpkgPackages(std::string_view output) {
    std::map<std::string, DpkgPackage> packages;
    while (!output.empty()) {
        std::optional<DpkgPackage> package = packageOf(takeLine(output));
        if (!package) continue;
        const std::string name = package->name;
        const auto [known, isNew] = packages.try_emplace(name, std::move(*package));
        if (!isNew) ++known->second.instances;
    }
    return packages;
}

std::vector<std::string> packagesThatNeed(const std::map<std::string, DpkgPackage>& packages, const std::string& name) {
    const std::map<std::string, std::set<std::string>> providers = providersIn(packages);
    const auto isContent = [&](const std::vector<PackageChoice>& choices) {
        bool mayMiss = false;
        for (const PackageChoice& choice : choices) {
            const auto found = providers.find(choice.name);
            if (found == providers.end()) continue;
            const bool names = found->second.contains(name);
            if (names) mayMiss = true;
            if (choice.anyVersion && found->second.size() > (names ? 1U : 0U)) return true;
        }
        return !mayMiss;
    };
    std::vector<std::string> needing;
    for (const auto& [other, package] : packages)
        if (other != name && !std::all_of(package.needs.begin(), package.needs.end(), isContent))
            needing.push_back(other);
    return needing;
}

std::map<std::string, std::set<std::string>> parseDpkgOwners(std::string_view output) {
    std::map<std::string, std::set<std::string>> owners;
    while (!output.empty()) {
        const std::string_view line = takeLine(output);
        const std::size_t colon = line.find(": /");
        if (colon == std::string_view::npos) continue;
        std::set<std::string> names;
        bool isPlain = true;
        for (std::string_view left = line.substr(0, colon); !left.empty();) {
            const std::string_view word = trimmed(takeUntil(left, ','));
            const std::string_view name = word.substr(0, word.find(':'));  // of an architecture
            isPlain = isPlain && isPackageName(name);
            names.emplace(name);
        }
        // A diversion is told in words, in the language of the user.
        if (isPlain && !names.empty()) owners[std::string(line.substr(colon + 2))].merge(names);
    }
    return owners;
}

AptChanges parseAptChanges(std::string_view output) {
    AptChanges changes;
    while (!output.empty()) {
        std::string_view line = takeLine(output);
        const std::string_view verb = takeWord(line);
        const bool removes = verb == "Remv" || verb == "Purg";
        if (!removes && verb != "Inst") continue;
        const std::string_view word = takeWord(line);
        (removes ? changes.removed : changes.installed).emplace_back(word.substr(0, word.find(':')));
    }
    return changes;
}

bool isPackageName(std::string_view word) {
    const auto isStart = [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'); };
    return word.size() >= 2 && word.size() <= longestPackageName && isStart(word.front()) &&
           std::all_of(word.begin(), word.end(),
                       [&](char c) { return isStart(c) || c == '+' || c == '.' || c == '-'; });
}

}  // namespace zelk
