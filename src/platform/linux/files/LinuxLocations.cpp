// SPDX-License-Identifier: MIT
#include "platform/linux/files/LinuxLocations.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/FolderPath.h"
#include "platform/linux/EnvironmentFolders.h"
#include "platform/linux/apps/LinuxApplications.h"

namespace zelk {
namespace {

/// Units that the administrator gives every user.
constexpr const char* systemUserUnits = "/etc/systemd/user";
constexpr const char* systemConfig = "/etc/xdg";
// Below folders of configuration and, the second one, of data.
constexpr std::string_view autostartName = "autostart";
constexpr std::string_view userUnitsName = "systemd/user";

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

XdgHomes xdgHomesBelow(const std::string& home, bool fromEnvironment, const Sandbox& sandbox) {
    const auto folder = [&](const char* variable, std::string_view usual) {
        std::optional<std::string> own;
        if (fromEnvironment)
            own = sandbox.isInside() ? sandbox.homeOnHost(variable, home) : absolutePathFromEnvironment(variable);
        return own ? normalFolder(*own) : pathIn(home, usual);
    };
    return {folder("XDG_DATA_HOME", ".local/share"), folder("XDG_CONFIG_HOME", ".config"),
            folder("XDG_CACHE_HOME", ".cache"), folder("XDG_STATE_HOME", ".local/state")};
}

/// A survey that starts above the home folder reaches the Trash by its resolved path.
TrashPlaces trashPlacesOf(const std::string& dataHome, std::vector<std::string> folders) {
    const std::string_view files = "Trash/files";
    folders.push_back(pathIn(dataHome, files));
    std::error_code error;
    const std::string real = std::filesystem::weakly_canonical(dataHome, error).string();
    if (!error && real != dataHome) folders.push_back(pathIn(real, files));
    const std::string user = std::to_string(::geteuid());
    return {std::move(folders), {"/.Trash/" + user + "/files", "/.Trash-" + user + "/files"}};
}

/// Where the folders of background items are looked for, and those that theirs hide.
struct ItemPlaces {
    const Sandbox& sandbox;
    std::string configHome = {};
    std::vector<std::string> config{systemConfig};  ///< of the system
    std::string dataHome = {};
    std::vector<std::string> data = foldersIn(usualDataFolders);  ///< of the system
    std::string runtime = {};                                     ///< of the user's session; empty if none is known
};

std::vector<std::string> onHost(const Sandbox& sandbox, std::vector<std::string> folders) {
    for (std::string& folder : folders) folder = sandbox.hostPath(folder);
    return folders;
}

std::vector<std::string> eachBelow(const std::vector<std::string>& folders, std::string_view name) {
    std::vector<std::string> paths;
    paths.reserve(folders.size());
    for (const std::string& folder : folders) paths.push_back(pathIn(folder, name));
    return paths;
}

void appendTo(std::vector<std::string>& folders, std::vector<std::string> more) {
    folders.insert(folders.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

/// GNOME starts what lies in folders of its own too.
std::vector<std::string> otherAutostartFolders(const ItemPlaces& places) {
    std::vector<std::string> folders = eachBelow(places.config, autostartName);
    appendTo(folders, eachBelow(places.data, "gnome/autostart"));
    return folders;
}

/// The other folders in which systemd.unit(5) looks for a user's units, but for those of single settings. Some come
/// before the user's own: an item whose name is there too is better left alone.
std::vector<std::string> otherUnitFolders(const ItemPlaces& places) {
    std::vector<std::string> folders = eachBelow(places.config, userUnitsName);
    folders.push_back(places.sandbox.hostPath(systemUserUnits));
    if (!places.runtime.empty())
        for (const char* kind : {"user", "transient", "generator.early", "generator", "generator.late"})
            folders.push_back(pathIn(places.runtime, std::string("systemd/") + kind));
    folders.push_back(pathIn(places.dataHome, userUnitsName));
    appendTo(folders, eachBelow(places.data, userUnitsName));
    appendTo(folders, onHost(places.sandbox,
                             {"/run/systemd/user", "/usr/local/lib/systemd/user", "/usr/local/share/systemd/user",
                              "/usr/lib/systemd/user", "/usr/share/systemd/user"}));
    return folders;
}

/// The user's own folder. It hides the `others`, each of which counts once, and never itself.
BackgroundItemFolder ownFolder(std::string path, BackgroundItemKind kind, const std::vector<std::string>& others) {
    BackgroundItemFolder own{std::move(path), kind, true};
    for (const std::string& other : others)
        if (other != own.path && std::find(own.hides.begin(), own.hides.end(), other) == own.hides.end())
            own.hides.push_back(other);
    return own;
}

/// Whether the folders of the system can be seen, in which a file of the user's may hide one.
bool showsSystem(const Sandbox& sandbox) {
    std::error_code error;
    return std::filesystem::is_directory(sandbox.hostPath("/etc"), error) &&
           std::filesystem::is_directory(sandbox.hostPath("/usr"), error);
}

/// Whether there is a link on the way that leads nowhere from here, as those of the host with an absolute path do.
bool leadsNowhere(std::filesystem::path path) {
    std::error_code error;
    for (; path.has_relative_path() && !std::filesystem::exists(path, error); path = path.parent_path())
        if (std::filesystem::is_symlink(std::filesystem::symlink_status(path, error))) return true;
    return false;
}

/// Where the user's own folder is one of the system's too, its items are the user's.
std::vector<BackgroundItemFolder> itemFoldersOf(ItemPlaces places) {
    std::erase(places.config, places.configHome);
    std::vector<BackgroundItemFolder> folders{
        ownFolder(pathIn(places.configHome, autostartName), BackgroundItemKind::autostartEntries,
                  otherAutostartFolders(places)),
        ownFolder(pathIn(places.configHome, userUnitsName), BackgroundItemKind::userUnits, otherUnitFolders(places))};
    // The units that the session makes for itself are in its runtime folder, and no sandbox has that.
    folders[0].hidesUnseen =
        places.sandbox.isInside() &&
        (!showsSystem(places.sandbox) || std::any_of(folders[0].hides.begin(), folders[0].hides.end(), leadsNowhere));
    folders[1].hidesUnseen = places.sandbox.isInside();
    for (const std::string& folder : eachBelow(places.config, autostartName))
        folders.push_back({folder, BackgroundItemKind::autostartEntries, false});
    folders.push_back({places.sandbox.hostPath(systemUserUnits), BackgroundItemKind::userUnits, false});
    folders.push_back({places.sandbox.hostPath("/etc/systemd/system"), BackgroundItemKind::systemUnits, false});
    return folders;
}

}  // namespace

LinuxLocations::LinuxLocations(const std::string& home, Sandbox sandbox) : sandbox_(std::move(sandbox)) {
    ItemPlaces items{sandbox_};
    const bool fromEnvironment = home.empty();
    home_ = normalFolder(home);
    if (fromEnvironment) {
        std::optional<std::string> own = absolutePathFromEnvironment("HOME");
        if (!own) own = homeFromUserDatabase();
        home_ = normalFolder(own.value_or("/"));
    }
    if (sandbox_.isInside()) {
        // The variables name folders of the runtime.
        items.config = onHost(sandbox_, std::move(items.config));
        items.data = onHost(sandbox_, std::move(items.data));
    } else if (fromEnvironment) {
        items.config = foldersFromEnvironment("XDG_CONFIG_DIRS", systemConfig);
        items.data = foldersFromEnvironment("XDG_DATA_DIRS", usualDataFolders);
        // The user's manager has one, even if we were started without.
        items.runtime = normalFolder(
            absolutePathFromEnvironment("XDG_RUNTIME_DIR").value_or("/run/user/" + std::to_string(::getuid())));
    }
    xdg_ = xdgHomesBelow(home_, fromEnvironment, sandbox_);
    // What Zelk writes itself may stay in the sandbox, where Flatpak removes it together with Zelk.
    const std::optional<std::string> own =
        fromEnvironment ? absolutePathFromEnvironment("XDG_DATA_HOME") : std::nullopt;
    applicationSupport_ = own ? normalFolder(*own) : xdg_.data;
    trashPlaces_ = trashPlacesOf(xdg_.data, sandbox_.ownFolders(home_));
    items.configHome = xdg_.config;
    items.dataHome = xdg_.data;
    sharedDataFolders_ = items.data;
    backgroundItemFolders_ = itemFoldersOf(std::move(items));
    ApplicationPlaces applications = ApplicationPlaces::ofEnvironment(xdg_.data);
    programFolders_ =
        sandbox_.isInside() ? onHost(sandbox_, foldersIn(usualProgramFolders)) : std::move(applications.programs);
    entryLocales_ = std::move(applications.locales);
}

std::string LinuxLocations::pathInSandbox(const std::string& path) {
    // The folders of the user are where they are, even if a distribution has them below "/var".
    const bool isSystems = sandbox_.isInside() && sandbox_.isPartOf(path, home_) && !isInFolder(path, home_);
    return isSystems ? sandbox_.hostPath(path) : path;
}

}  // namespace zelk
