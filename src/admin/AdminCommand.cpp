// SPDX-License-Identifier: MIT
#include "admin/AdminCommand.h"

#include <algorithm>

namespace zelk {

namespace {

using Arguments = std::vector<std::string>;

constexpr const char* snapper = "/usr/bin/snapper";
constexpr const char* bytesToFree = "5000000000";
/// Configurations of snapper and packages are files of their name.
constexpr std::size_t longestName = 255;
/// snapper counts in 32 bits.
constexpr std::string_view largestNumber = "4294967295";

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isLower(char c) {
    return c >= 'a' && c <= 'z';
}

bool isConfigCharacter(char c) {
    return isLower(c) || (c >= 'A' && c <= 'Z') || isDigit(c) || c == '_' || c == '-';
}

bool isPackageCharacter(char c) {
    return isLower(c) || isDigit(c) || c == '+' || c == '.' || c == '-';
}

bool isConfig(const std::string& word) {
    return !word.empty() && word.size() <= longestName && word.front() != '-' &&
           std::all_of(word.begin(), word.end(), isConfigCharacter);
}

bool isSnapshotNumber(const std::string& word) {
    if (word.empty() || word.size() > largestNumber.size() || word.front() == '0') return false;
    return std::all_of(word.begin(), word.end(), isDigit) &&
           (word.size() < largestNumber.size() || word <= largestNumber);
}

bool isPackage(const std::string& word) {
    return word.size() >= 2 && word.size() <= longestName && (isLower(word.front()) || isDigit(word.front())) &&
           std::all_of(word.begin(), word.end(), isPackageCharacter);
}

// Refusals repeat nothing of what was given, which may hold anything.
AdminCommand refused(const char* sentence) {
    return {sentence, false, {}};
}

AdminCommand freeMemory(const Arguments& arguments) {
    if (!arguments.empty()) return refused("free-memory takes no arguments.");
    return {{}, true, {}};
}

AdminCommand deleteSnapshot(const Arguments& arguments) {
    if (arguments.size() != 2 || !isConfig(arguments[0]) || !isSnapshotNumber(arguments[1]))
        return refused("delete-snapshot takes the name of a configuration of snapper and the number of a snapshot.");
    return {{}, false, {{snapper, "-c", arguments[0], "delete", "--sync", arguments[1]}}};
}

AdminCommand thinSnapshots(const Arguments& arguments) {
    if (arguments.size() != 1 || !isConfig(arguments[0]))
        return refused("thin-snapshots takes the name of a configuration of snapper.");
    AdminCommand command;
    for (const char* algorithm : {"number", "timeline"})
        command.programs.push_back({snapper, "-c", arguments[0], "cleanup", "--free-space", bytesToFree, algorithm});
    return command;
}

/// Through dpkg, not apt-get: apt-get takes a name that no package has for a pattern ("a." matches most of them), and
/// one that ends in "+" for a package to install; and it removes what depends on the package too. dpkg removes exactly
/// the package of that name, or nothing.
AdminCommand removePackage(const Arguments& arguments) {
    if (arguments.size() != 1 || !isPackage(arguments[0]))
        return refused("remove-package takes the name of a package.");
    return {{}, false, {{"/usr/bin/dpkg", "--remove", arguments[0]}}};
}

struct Verb {
    std::string_view name;
    AdminCommand (*decide)(const Arguments& arguments);
};

constexpr Verb verbs[] = {
    {"free-memory", freeMemory},
    {"delete-snapshot", deleteSnapshot},
    {"thin-snapshots", thinSnapshots},
    {"remove-package", removePackage},
};

}  // namespace

const std::vector<std::string_view>& adminVerbs() {
    static const std::vector<std::string_view> names = [] {
        std::vector<std::string_view> all;
        for (const Verb& verb : verbs) all.push_back(verb.name);
        return all;
    }();
    return names;
}

AdminCommand adminCommand(const std::vector<std::string>& arguments) {
    for (const Verb& verb : verbs)
        if (!arguments.empty() && arguments.front() == verb.name)
            return verb.decide({arguments.begin() + 1, arguments.end()});
    return refused("The verbs are free-memory, delete-snapshot, thin-snapshots and remove-package.");
}

const std::vector<std::string>& adminEnvironment() {
    static const std::vector<std::string> variables{"PATH=/usr/sbin:/usr/bin:/sbin:/bin", "LANG=C.UTF-8",
                                                    "DEBIAN_FRONTEND=noninteractive"};
    return variables;
}

}  // namespace zelk
