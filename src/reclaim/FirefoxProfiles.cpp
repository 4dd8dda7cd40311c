// SPDX-License-Identifier: MIT
#include "reclaim/FirefoxProfiles.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "platform/FolderPath.h"
#include "platform/Text.h"

namespace zelk {

namespace {

constexpr std::size_t largestProfileList = std::size_t{1} << 20;

bool isProfileSection(std::string_view line) {
    constexpr std::string_view start = "[Profile";
    if (!line.starts_with(start) || !line.ends_with(']')) return false;
    const std::string_view number = line.substr(start.size(), line.size() - start.size() - 1);
    return !number.empty() && number.find_first_not_of("0123456789") == std::string_view::npos;
}

bool leadsUpwards(std::string_view path) {
    for (std::string_view rest = path; !rest.empty();)
        if (takeUntil(rest, '/') == "..") return true;
    return false;
}

/// The keys of one section.
struct ProfileKeys {
    std::string_view path;
    std::optional<bool> isRelative;

    void take(std::string_view key, std::string_view value) {
        if (key == "Path") path = value;
        if (key == "IsRelative") isRelative = value == "1";
    }

    std::optional<FirefoxProfile> profile() const {
        const bool absolute = path.starts_with('/');
        if (isRelative.value_or(!absolute) == absolute) return std::nullopt;
        if (path.find('\0') != std::string_view::npos || leadsUpwards(path)) return std::nullopt;
        std::string folder = normalFolder(path);
        if (folder.empty() || folder == "." || folder == "/") return std::nullopt;
        return FirefoxProfile{std::move(folder)};
    }
};

}  // namespace

std::vector<FirefoxProfile> parseFirefoxProfiles(std::string_view list) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (list.starts_with(byteOrderMark)) list.remove_prefix(byteOrderMark.size());
    std::vector<FirefoxProfile> profiles;
    std::optional<ProfileKeys> section;
    const auto endSection = [&] {
        if (!section) return;
        if (std::optional<FirefoxProfile> profile = section->profile()) profiles.push_back(std::move(*profile));
        section.reset();
    };
    while (!list.empty()) {
        const std::string_view line = trimmed(takeLine(list));
        if (line.starts_with('[')) {
            endSection();
            if (isProfileSection(line)) section.emplace();
        } else if (const std::size_t equals = line.find('='); section && equals != std::string_view::npos) {
            section->take(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
        }
    }
    endSection();
    return profiles;
}

std::vector<std::string> firefoxProfilesIn(FileManager& files, const std::string& folder) {
    const std::string list = files.readSmall(pathIn(folder, "profiles.ini"), largestProfileList).value_or("");
    std::vector<std::string> folders;
    for (const FirefoxProfile& profile : parseFirefoxProfiles(list)) {
        std::string path = profile.path.starts_with('/') ? profile.path : pathIn(folder, profile.path);
        if (std::find(folders.begin(), folders.end(), path) == folders.end()) folders.push_back(std::move(path));
    }
    return folders;
}

}  // namespace zelk
