// SPDX-License-Identifier: MIT
#include "system/apps/UserFolders.h"

#include <algorithm>
#include <cstddef>

#include "platform/FolderPath.h"
#include "platform/Text.h"

namespace zelk {

namespace {

constexpr std::size_t largestSettings = std::size_t{1} << 16;
constexpr std::string_view homeVariable = "$HOME/";

/// The value in double quotes, with `$HOME` replaced; empty for anything else.
std::string folderOf(std::string_view value, const std::string& home) {
    if (value.size() < 2 || value.front() != '"' || value.back() != '"') return {};
    value = value.substr(1, value.size() - 2);
    std::string plain;
    for (std::size_t at = 0; at < value.size(); ++at) {
        if (value[at] == '\\' && at + 1 < value.size()) ++at;
        plain += value[at];
    }
    if (plain.starts_with(homeVariable)) return normalFolder(pathIn(home, plain.substr(homeVariable.size())));
    return plain.starts_with('/') ? normalFolder(plain) : std::string();
}

}  // namespace

UserFolders parseUserFolders(std::string_view text, const std::string& home) {
    UserFolders folders{pathIn(home, "Downloads"), {}};
    for (const char* usual :
         {"Desktop", "Documents", "Downloads", "Music", "Pictures", "Public", "Templates", "Videos"})
        folders.all.push_back(pathIn(home, usual));
    while (!text.empty()) {
        const std::string_view line = trimmed(takeLine(text));
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos || !line.starts_with("XDG_")) continue;
        std::string folder = folderOf(trimmed(line.substr(equals + 1)), home);
        // A folder that somebody does without is configured as the home.
        if (folder.empty() || folder == home) continue;
        if (line.substr(0, equals) == "XDG_DOWNLOAD_DIR") folders.downloads = folder;
        if (std::find(folders.all.begin(), folders.all.end(), folder) == folders.all.end())
            folders.all.push_back(std::move(folder));
    }
    return folders;
}

UserFolders userFolders(FileManager& files, const std::string& home, const XdgHomes& xdg) {
    return parseUserFolders(files.readSmall(pathIn(xdg.config, "user-dirs.dirs"), largestSettings).value_or(""), home);
}

}  // namespace zelk
