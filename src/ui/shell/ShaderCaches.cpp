// SPDX-License-Identifier: MIT
#include "ui/shell/ShaderCaches.h"

#include <pwd.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <algorithm>
#include <filesystem>
#include <limits>
#include <system_error>

namespace zelk {

namespace {

namespace fs = std::filesystem;

/// Variables by which users move a driver's cache.
constexpr const char* folderVariables[] = {"MESA_SHADER_CACHE_DIR", "MESA_GLSL_CACHE_DIR",
                                           "__GL_SHADER_DISK_CACHE_PATH"};

struct Setting {
    const char* variable;
    const char* value;
};

/// Drivers by their new and old variables, and Qt itself for versions whose application attribute does not cover this.
constexpr Setting offSettings[] = {{"MESA_SHADER_CACHE_DISABLE", "true"},
                                   {"MESA_GLSL_CACHE_DISABLE", "true"},
                                   {"__GL_SHADER_DISK_CACHE", "0"},
                                   {"QSG_RHI_DISABLE_DISK_CACHE", "1"}};

std::string homeFolder() {
    return QFile::encodeName(QDir::homePath()).toStdString();
}

/// The home folder according to the user database, regardless of $HOME; empty if unknown.
std::string registeredHome() {
    const passwd* const user = ::getpwuid(::getuid());
    return user == nullptr || user->pw_dir == nullptr ? std::string() : user->pw_dir;
}

fs::path nearestExisting(fs::path folder) {
    std::error_code ignored;
    while (folder.has_relative_path() && !fs::exists(folder, ignored)) folder = folder.parent_path();
    return folder;
}

}  // namespace

std::vector<std::string> shaderCacheFolders() {
    std::vector<std::string> folders{homeFolder()};
    folders.push_back(
        QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)).toStdString());
    // Mesa ignores $HOME.
    if (qgetenv("XDG_CACHE_HOME").isEmpty())
        if (const std::string home = registeredHome(); !home.empty() && home != folders.front())
            folders.push_back(home + "/.cache");
    for (const char* variable : folderVariables)
        if (std::string folder = qgetenv(variable).toStdString(); !folder.empty()) folders.push_back(std::move(folder));
    return folders;
}

bool shaderCachesHaveRoom(const std::vector<std::string>& folders,
                          const std::function<std::optional<std::int64_t>(const std::string&)>& freeBytes) {
    return std::all_of(folders.begin(), folders.end(), [&](const std::string& folder) {
        return freeBytes(folder).value_or(0) >= leastRoomForShaderCaches;
    });
}

std::optional<std::int64_t> roomForCacheIn(const std::string& folder) {
    std::error_code error;
    const fs::path wanted = fs::absolute(folder, error);
    if (error) return std::nullopt;
    if (folder == homeFolder() && !fs::exists(wanted, error)) return 0;
    const fs::space_info space = fs::space(nearestExisting(wanted), error);
    if (error) return std::nullopt;
    constexpr std::uintmax_t most = std::numeric_limits<std::int64_t>::max();
    return static_cast<std::int64_t>(std::min(space.available, most));
}

bool switchOffShaderCachesWhereRoomIsShort() {
    if (shaderCachesHaveRoom(shaderCacheFolders(), roomForCacheIn)) return false;
    for (const Setting& setting : offSettings) qputenv(setting.variable, setting.value);
    QCoreApplication::setAttribute(Qt::AA_DisableShaderDiskCache);
    return true;
}

}  // namespace zelk
