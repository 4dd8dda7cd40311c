// SPDX-License-Identifier: MIT
#include "reclaim/ReclaimClassifier.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <utility>

#include "platform/FileManager.h"
#include "platform/Locations.h"
#include "reclaim/WalkedPath.h"

namespace zelk {

namespace {

/// Matches a folder by its path below the home folder, or below another base folder. Uses the folder's own date.
struct PathRule {
    std::string_view below;
    std::string_view categoryID;
};

constexpr std::array pathRules{
    PathRule{"/Library/Developer/Xcode/DerivedData", "derived_data"},
    PathRule{"/Library/Developer/Xcode/iOS DeviceSupport", "ios_device_support"},
    PathRule{"/Library/Developer/CoreSimulator/Devices", "core_simulator"},
    PathRule{"/Library/Android/sdk/system-images", "android_system_images"},
    PathRule{"/Library/pnpm", "pnpm_store"},
    PathRule{"/.local/share/pnpm/store", "pnpm_store"},
    PathRule{"/.npm/_cacache", "npm_cache"},
    PathRule{"/Library/Caches/Yarn", "yarn_cache"},
    PathRule{"/Library/Caches/CocoaPods", "cocoapods_cache"},
    PathRule{"/.gradle/caches", "gradle"},
    PathRule{"/Library/Application Support/MobileSync/Backup", "ios_backups"},
    PathRule{"/Library/Developer/Xcode/Archives", "xcode_archives"},
    PathRule{"/Library/Containers/com.apple.mail/Data/Library/Mail Downloads", "mail_downloads"},
    PathRule{"/Library/Caches/com.apple.Music", "music_cache"},
    PathRule{"/Library/Caches/com.apple.podcasts", "music_cache"},
    PathRule{"/Library/Caches/com.apple.Photos", "photos_cache"},
};

// The Linux locations of the categories that have one.
constexpr std::array linuxPathRules{
    PathRule{"/Android/Sdk/system-images", "android_system_images"},
    PathRule{"/.cache/yarn", "yarn_cache"},
};

constexpr std::array xdgDataPathRules{
    PathRule{"/pnpm/store", "pnpm_store"},
};

/// Which folder's date tells how long an item was unused. Every build rewrites a build folder, so the item of a project
/// takes the date of the folder around it.
enum class Age : std::uint8_t { own, project };

/// A condition besides the name.
enum class Condition : std::uint8_t {
    none,
    cargoManifestBeside,
    insideUserOfApplicationSupport,
    insideApplicationSupport,
    directlyInServiceWorkerOfApplicationSupport,
};

/// Matches a folder by its name, anywhere. No two rules share a name, so a failed condition ends the chain.
struct NameRule {
    std::string_view name;
    std::string_view categoryID;
    Age age;
    Condition condition = Condition::none;
};

constexpr std::array nameRules{
    NameRule{"node_modules", "node_modules", Age::project},
    NameRule{".expo", "expo", Age::project},
    NameRule{".expo-shared", "expo", Age::project},
    NameRule{".gradle", "gradle", Age::project},
    NameRule{".next", "next_turbo", Age::project},
    NameRule{".turbo", "next_turbo", Age::project},
    NameRule{".vercel", "next_turbo", Age::project},
    NameRule{"__pycache__", "python_pycache", Age::own},
    NameRule{".venv", "python_venv", Age::project},
    NameRule{"venv", "python_venv", Age::project},
    NameRule{"target", "rust_target", Age::project, Condition::cargoManifestBeside},
    NameRule{"workspaceStorage", "electron_workspace", Age::own, Condition::insideUserOfApplicationSupport},
    NameRule{"Cache", "electron_cache", Age::own, Condition::insideApplicationSupport},
    NameRule{"Code Cache", "electron_cache", Age::own, Condition::insideApplicationSupport},
    NameRule{"GPUCache", "electron_cache", Age::own, Condition::insideApplicationSupport},
    NameRule{"CacheStorage", "electron_cache", Age::own, Condition::directlyInServiceWorkerOfApplicationSupport},
};

ReclaimMethod methodOf(std::string_view categoryID) {
    if (categoryID == "core_simulator")
        return ReclaimMethod::command("/usr/bin/xcrun", {"simctl", "delete", "unavailable"});
    if (categoryID == "pnpm_store") return ReclaimMethod::command("/usr/bin/env", {"pnpm", "store", "prune"});
    if (categoryID == "npm_cache") return ReclaimMethod::command("/usr/bin/env", {"npm", "cache", "clean", "--force"});
    if (categoryID == "rust_target") return ReclaimMethod::command("/usr/bin/env", {"cargo", "clean"});
    return ReclaimMethod::trash();
}

/// `home` without trailing slashes, so that a path rule can follow it directly. Keeps "/", the home of a user without
/// one: "/Library" is the system's and must not match.
std::string_view withoutEndingSlashes(std::string_view home) {
    while (home.size() > 1 && home.ends_with('/')) home.remove_suffix(1);
    return home;
}

const PathRule* ruleIn(std::span<const PathRule> rules, std::string_view path, std::string_view folder) {
    if (!path.starts_with(folder)) return nullptr;
    path.remove_prefix(folder.size());
    const auto rule =
        std::find_if(rules.begin(), rules.end(), [path](const PathRule& each) { return each.below == path; });
    return rule == rules.end() ? nullptr : &*rule;
}

const PathRule* pathRuleFor(std::string_view path, std::string_view home, const ReclaimPlaces& known) {
    const PathRule* rule = ruleIn(pathRules, path, home);
    if (!known.xdgDataHome) return rule;
    if (!rule) rule = ruleIn(linuxPathRules, path, home);
    if (!rule) rule = ruleIn(xdgDataPathRules, path, *known.xdgDataHome);
    return rule;
}

const NameRule* nameRuleFor(std::string_view name) {
    const auto rule =
        std::find_if(nameRules.begin(), nameRules.end(), [name](const NameRule& each) { return each.name == name; });
    return rule == nameRules.end() ? nullptr : &*rule;
}

/// Whether the path is inside a folder where applications keep their data: what the conditions call ApplicationSupport.
bool isInsideApplicationData(WalkedPath& path, const ReclaimPlaces& known) {
    return path.isInsideApplicationSupport() || (known.xdgDataHome && path.isInsideConfigOrCache());
}

bool holds(Condition condition, const FSNode& node, WalkedPath& path, FileManager& files, const ReclaimPlaces& known) {
    switch (condition) {
        case Condition::none:
            return true;
        case Condition::cargoManifestBeside:
            return node.parent() && path.hasBeside("Cargo.toml", node.name(), files);
        case Condition::insideUserOfApplicationSupport:
            return path.isInsideUser() && isInsideApplicationData(path, known);
        case Condition::insideApplicationSupport:
            return isInsideApplicationData(path, known);
        case Condition::directlyInServiceWorkerOfApplicationSupport:
            return node.parent() && node.parent()->name() == "Service Worker" && isInsideApplicationData(path, known);
    }
    return false;
}

ReclaimClassifier::Match match(std::string_view categoryID, TimePoint ageDate) {
    return {reclaimCategoryByID().at(categoryID), methodOf(categoryID), ageDate};
}

/// As it is written into a node.
std::uint8_t rowOf(const ReclaimCategory& category) {
    return static_cast<std::uint8_t>(&category - reclaimCatalogue().data() + 1);
}

/// The chain of tests. `path` is at `node`, before and after.
std::optional<ReclaimClassifier::Match> classifyAt(const FSNode& node, WalkedPath& path, std::string_view home,
                                                   FileManager& files, const ReclaimPlaces& known) {
    if (const PathRule* rule = pathRuleFor(path.text(), home, known)) return match(rule->categoryID, node.lastModified);
    const NameRule* rule = nameRuleFor(node.name());
    if (!rule || !holds(rule->condition, node, path, files, known)) return std::nullopt;
    const FSNode* dated = rule->age == Age::project && node.parent() ? node.parent() : &node;
    return match(rule->categoryID, dated->lastModified);
}

}  // namespace

ReclaimPlaces ReclaimPlaces::of(Locations& locations) {
    const std::optional<XdgHomes> homes = locations.xdgHomes();
    return {homes ? std::optional(homes->data) : std::nullopt, locations.trashPlaces()};
}

const ReclaimCategory* reclaimCategoryOf(const FSNode& node) {
    return node.reclaimCategory == 0 ? nullptr : &reclaimCatalogue()[node.reclaimCategory - 1U];
}

std::optional<ReclaimClassifier::Match> ReclaimClassifier::classify(const FSNode& node, const std::string& home) const {
    WalkedPath path(node);
    if (places_.trash.hold(path.text())) return std::nullopt;
    return classifyAt(node, path, withoutEndingSlashes(home), files_, places_);
}

void ReclaimClassifier::collect(FSNode& top, const std::string& home, std::vector<Reclaimable>& items) const {
    struct Standing {
        FSNode* nextChild;  ///< null after the last one
        std::size_t pathLength;
    };
    const std::string_view homePath = withoutEndingSlashes(home);
    WalkedPath path(top);
    std::size_t rootLength = 0;
    // True if the walk descends into the node.
    const auto visit = [&](FSNode& node) {
        const bool isRoot = !node.parent() || node.parent()->name().empty();
        if (isRoot) rootLength = path.text().size();
        // Only where the walk begins can a Trash be among the ancestors.
        const bool begins = isRoot || &node == &top;
        if (begins ? places_.trash.hold(path.text()) : places_.trash.areAt(path.text())) return false;
        std::optional<Match> found = classifyAt(node, path, homePath, files_, places_);
        if (!found) return true;
        node.reclaimCategory = rowOf(*found->category);
        items.push_back({path.text(), path.text(), static_cast<std::uint64_t>(std::max<std::int64_t>(node.size, 0)),
                         std::string(found->category->id), found->category->safety, std::move(found->method),
                         found->ageDate, rootLength});
        return !found->category->stopRecursion;
    };

    // An explicit stack instead of recursion: the depth of folders is not ours to decide.
    std::vector<Standing> above;
    if (visit(top)) above.push_back({top.firstChild(), path.text().size()});
    while (!above.empty()) {
        Standing& at = above.back();
        if (at.nextChild == nullptr) {
            above.pop_back();
            continue;
        }
        FSNode& child = *std::exchange(at.nextChild, at.nextChild->nextSibling());
        path.leaveTo(at.pathLength);
        path.enter(child.name());
        if (visit(child)) above.push_back({child.firstChild(), path.text().size()});
    }
}

}  // namespace zelk
