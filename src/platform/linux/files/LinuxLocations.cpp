// SPDX-License-Identifier: MIT
#include "platform/linux/files/LinuxLocations.h"

#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/FolderPath.h"

namespace zelk {
namespace {

std::optional<std::string> absolutePathFromEnvironment(const char* variable) {
    const char* value = std::getenv(variable);
    if (value == nullptr || *value != '/') return std::nullopt;
    return value;
}

std::optional<std::string> homeFromUserDatabase() {
    std::vector<char> buffer(1024);
    passwd entry{};
    passwd* found = nullptr;
    int error;
    while ((error = ::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found)) == ERANGE ||
           error == EINTR) {
        if (error == ERANGE) buffer.resize(buffer.size() * 2);
    }
    if (found == nullptr || found->pw_dir == nullptr || *found->pw_dir != '/') return std::nullopt;
    return found->pw_dir;
}

/// A survey that starts above the home folder reaches the Trash by its resolved path.
TrashPlaces trashPlacesOf(const std::string& dataHome) {
    const std::string_view files = "Trash/files";
    std::vector<std::string> folders{pathIn(dataHome, files)};
    std::error_code error;
    const std::string real = std::filesystem::weakly_canonical(dataHome, error).string();
    if (!error && real != dataHome) folders.push_back(pathIn(real, files));
    const std::string user = std::to_string(::geteuid());
    return {std::move(folders), {"/.Trash/" + user + "/files", "/.Trash-" + user + "/files"}};
}

}  // namespace

LinuxLocations::LinuxLocations(const std::string& home) {
    std::optional<std::string> dataHome;
    if (!home.empty()) {
        home_ = home;
    } else {
        std::optional<std::string> own = absolutePathFromEnvironment("HOME");
        if (!own) own = homeFromUserDatabase();
        home_ = own.value_or("/");
        dataHome = absolutePathFromEnvironment("XDG_DATA_HOME");
    }
    home_ = normalFolder(home_);
    dataHome_ = dataHome ? normalFolder(*dataHome) : pathIn(home_, ".local/share");
    trashPlaces_ = trashPlacesOf(dataHome_);
}

}  // namespace zelk
