// SPDX-License-Identifier: MIT
#include "reclaim/Leftovers.h"

#include <algorithm>
#include <span>
#include <string_view>

#include "platform/FolderPath.h"
#include "reclaim/Cleaner.h"

namespace zelk {

namespace {

using Names = std::span<const std::string_view>;

constexpr std::size_t shortestName = 3;

// Folders that belong to the desktop or to several programs, whatever a program is called. "*" at the end stands for
// anything.
constexpr std::string_view sharedData[]{"applications", "backgrounds", "desktop-directories",
                                        "flatpak",      "fonts",       "gvfs-metadata",
                                        "icons",        "keyrings",    "mime",
                                        "sounds",       "systemd",     "themes",
                                        "Trash",        "xorg"};
constexpr std::string_view sharedConfig[]{"autostart", "dconf", "environment.d", "fontconfig", "gtk-*",
                                          "ibus",      "menus", "mozilla",       "pulse",      "systemd"};
constexpr std::string_view sharedCache[]{"fontconfig", "mesa_shader_cache*", "mozilla", "thumbnails"};

bool matches(std::string_view name, std::string_view pattern) {
    if (!pattern.ends_with('*')) return name == pattern;
    pattern.remove_suffix(1);
    return name.starts_with(pattern);
}

bool isOneOf(std::string_view name, const Names& patterns) {
    return std::any_of(patterns.begin(), patterns.end(),
                       [name](std::string_view pattern) { return matches(name, pattern); });
}

/// Whether the name stands for one entry of a folder, and never for the folder itself or one above.
bool isOneEntry(std::string_view name) {
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string_view::npos &&
           name.find('\0') == std::string_view::npos;
}

/// The same for a name that is too long to be one by accident.
bool isPlainName(std::string_view name) {
    return name.size() >= shortestName && isOneEntry(name);
}

class PlaceList {
public:
    void add(const std::string& folder, const std::string& name, const Names& shared) {
        if (isPlainName(name) && !isOneOf(name, shared)) add(pathIn(folder, name));
    }
    void add(std::string path) {
        if (std::find(paths_.begin(), paths_.end(), path) == paths_.end()) paths_.push_back(std::move(path));
    }
    std::vector<std::string> take() { return std::move(paths_); }

private:
    std::vector<std::string> paths_;
};

}  // namespace

std::vector<std::string> leftoverCandidates(const std::string& home, const std::optional<std::string>& bundleID,
                                            const std::string& name) {
    const std::string library = pathIn(home, "Library");
    std::vector<std::string> paths;
    if (bundleID && isOneEntry(*bundleID)) {
        const std::string& id = *bundleID;
        paths = {library + "/Application Support/" + id,
                 library + "/Caches/" + id,
                 library + "/Preferences/" + id + ".plist",
                 library + "/Logs/" + id,
                 library + "/Saved Application State/" + id + ".savedState",
                 library + "/Containers/" + id,
                 library + "/HTTPStorages/" + id,
                 library + "/WebKit/" + id};
    }
    if (!isOneEntry(name)) return paths;
    for (const char* folder : {"/Application Support/", "/Caches/", "/Logs/"}) paths.push_back(library + folder + name);
    return paths;
}

std::vector<std::string> leftoverCandidates(const std::string& home, const XdgHomes& xdg, const AppEntry& app) {
    PlaceList places;
    const bool isFlatpak = app.kind == AppKind::userFlatpak || app.kind == AppKind::systemFlatpak;
    const std::string id = app.bundleID && !app.sharesID ? *app.bundleID : std::string();
    if (isFlatpak) {
        places.add(pathIn(home, ".var/app"), id, {});
    } else if (app.kind == AppKind::snap) {
        // Whoever else has the name: snap takes the folder along.
        places.add(pathIn(home, "snap"), app.package, {});
    } else {
        if (id.find('.') != std::string::npos) {
            places.add(xdg.data, id, sharedData);
            places.add(xdg.cache, id, sharedCache);
            places.add(xdg.config, id, sharedConfig);
            places.add(xdg.state, id, {});
        }
        if (!app.sharesProgram) {
            places.add(xdg.data, app.program, sharedData);
            places.add(xdg.cache, app.program, sharedCache);
            places.add(xdg.config, app.program, sharedConfig);
        }
    }
    if (isPlainName(id)) places.add(pathIn(xdg.config, "autostart"), id + ".desktop", {});
    return places.take();
}

Leftovers::Leftovers(const Platform& platform) : files_(platform.files), home_(platform.locations.home()) {
    if (platform.system == SystemKind::desktopLinux) xdg_ = platform.locations.xdgHomes();
}

std::vector<std::string> Leftovers::candidates(const AppEntry& app) const {
    return xdg_ ? leftoverCandidates(home_, *xdg_, app) : leftoverCandidates(home_, app.bundleID, app.name);
}

bool Leftovers::counts(const std::string& path) const {
    if (!xdg_) return files_.exists(path);
    const std::optional<FileProperties> properties = files_.properties(path);
    if (!properties || !properties->isOwn) return false;
    // A link is no leftover, and what one on the way leads to would not be moved.
    const std::string root = rootOf(path);
    const std::optional<std::string> realRoot = files_.realPath(root);
    const std::optional<std::string> real = files_.realPath(path);
    return realRoot && real && *real == pathIn(*realRoot, std::string_view(path).substr(root.size() + 1));
}

std::vector<Leftover> Leftovers::of(const AppEntry& app) const {
    std::vector<std::string> paths = app.entries;
    for (std::string& path : candidates(app)) paths.push_back(std::move(path));
    std::vector<Leftover> found;
    for (std::string& path : paths) {
        if (!counts(path)) continue;
        const std::optional<FileProperties> properties = files_.properties(path);
        if (!properties) continue;
        const std::uint64_t size = properties->isDirectory ? files_.fullSizeBelow(path) : properties->allocatedSize;
        found.push_back({std::move(path), size});
    }
    return found;
}

std::uint64_t Leftovers::dataSize(const AppEntry& app) const {
    std::uint64_t bytes = 0;
    for (const std::string& path : candidates(app))
        if (counts(path)) bytes += Cleaner::allocatedSize(files_, path);
    return bytes;
}

std::string Leftovers::rootOf(const std::string& path) const {
    if (!xdg_) return {};
    std::string root = home_;
    // They may lie elsewhere, or behind a link.
    for (const std::string& folder : {xdg_->data, xdg_->config, xdg_->cache, xdg_->state})
        if (isInFolder(path, folder) && (folder.size() > root.size() || !isInFolder(path, root))) root = folder;
    return root;
}

}  // namespace zelk
