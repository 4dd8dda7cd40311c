// SPDX-License-Identifier: MIT
// The Linux locations of the catalogue, and the contents of the Trash. Runs on every system.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "fakes/FakeFileManager.h"
#include "fakes/FakePlatform.h"
#include "reclaim/ReclaimClassifier.h"

namespace zelk {
namespace {

class LinuxPlaces : public testing::Test {
protected:
    /// Adds the missing folders of the absolute `path` below the root that it begins with, each dated by its depth.
    FSNode& add(const std::string& path) {
        FSNode* at = top->children().empty() ? &top->append(root, 1) : &top->children().front();
        for (const auto& name : std::filesystem::path(path).lexically_relative(root)) at = &child(*at, name.string());
        return *at;
    }

    std::string categoryOf(const std::string& path) {
        const auto match = ReclaimClassifier(files, known).classify(add(path), "/home/me");
        return match ? std::string(match->category->id) : "";
    }

    std::vector<std::string> items() {
        std::vector<Reclaimable> found;
        ReclaimClassifier(files, known).collect(*top, "/home/me", found);
        std::vector<std::string> paths;
        for (const Reclaimable& item : found) paths.push_back(item.path);
        return paths;
    }

    fakes::FakeFileManager files;
    ReclaimPlaces known{"/home/me/.local/share", {}};
    std::string root = "/home/me";
    NodeRef top = FSNode::make("", 0);

private:
    static FSNode& child(FSNode& node, const std::string& name) {
        for (FSNode& each : node.children())
            if (each.name() == name) return each;
        return node.append(name, node.lastModified + 1);
    }
};

using ItemPaths = std::vector<std::string>;

struct PlaceRow {
    const char* path;
    const char* category;
    const char* method;
};

constexpr PlaceRow linuxRows[] = {
    {"/home/me/.cache/yarn", "yarn_cache", "Trash"},
    {"/home/me/Android/Sdk/system-images", "android_system_images", "Trash"},
    {"/home/me/.local/share/pnpm/store", "pnpm_store", "/usr/bin/env pnpm store prune"},
    {"/home/me/.config/Code/Cache", "electron_cache", "Trash"},
    {"/home/me/.config/Code/Code Cache", "electron_cache", "Trash"},
    {"/home/me/.config/Code/GPUCache", "electron_cache", "Trash"},
    {"/home/me/.config/Code/Service Worker/CacheStorage", "electron_cache", "Trash"},
    {"/home/me/.config/Code/User/workspaceStorage", "electron_workspace", "Trash"},
    {"/home/me/.cache/chromium/Default/Cache", "electron_cache", "Trash"},
    {"/home/me/.cache/chromium/Default/Code Cache", "electron_cache", "Trash"},
    {"/home/me/.cache/chromium/Default/GPUCache", "electron_cache", "Trash"},
    {"/home/me/.cache/chromium/Service Worker/CacheStorage", "electron_cache", "Trash"},
    {"/home/me/.cache/editor/User/workspaceStorage", "electron_workspace", "Trash"},
};

TEST_F(LinuxPlaces, areItemsWithTheirOwnDate) {
    for (const PlaceRow& row : linuxRows) {
        const FSNode& node = add(row.path);
        const auto match = ReclaimClassifier(files, known).classify(node, "/home/me");
        ASSERT_TRUE(match) << row.path;
        EXPECT_EQ(match->category, reclaimCategoryByID().at(row.category)) << row.path;
        EXPECT_EQ(methodSummary(match->method), row.method) << row.path;
        EXPECT_EQ(match->ageDate, node.lastModified) << row.path;
        EXPECT_EQ(match->category->appScoped, std::string(row.category).starts_with("electron_")) << row.path;
    }
}

// Both tables contain the store of pnpm below the home.
TEST_F(LinuxPlaces, areNotItemsOnMacOS) {
    known = {};
    for (const PlaceRow& row : linuxRows)
        EXPECT_EQ(categoryOf(row.path), std::string(row.category) == "pnpm_store" ? "pnpm_store" : "") << row.path;
}

TEST_F(LinuxPlaces, addToMacOSPlaces) {
    EXPECT_EQ(categoryOf("/home/me/Library/Caches/Yarn"), "yarn_cache");
    EXPECT_EQ(categoryOf("/home/me/Library/pnpm"), "pnpm_store");
    EXPECT_EQ(categoryOf("/home/me/Library/Application Support/Code/Cache"), "electron_cache");
    EXPECT_EQ(categoryOf("/home/me/Library/Application Support/Code/User/workspaceStorage"), "electron_workspace");
}

TEST_F(LinuxPlaces, matchExactPathsOnly) {
    for (const char* path :
         {"/home/me/.cache/yarn/v6", "/home/me/.cache/Yarn", "/home/me/.cache/yarn2", "/home/me/x/.cache/yarn",
          "/home/me/Android/sdk/system-images", "/home/me/Android/Sdk", "/home/me/Android/Sdk/system-images/android-34",
          "/home/me/x/Android/Sdk/system-images", "/home/me/.config/Code/cache", "/home/me/.config/Code/Cache2",
          "/home/me/.config/Code/CacheStorage", "/home/me/.config/Code/workspaceStorage",
          "/home/me/.configs/Code/Cache", "/home/me/.caches/x/GPUCache", "/home/me/config/x/Cache",
          "/home/me/my.cache/x/Cache", "/home/me/my.config/x/Cache"})
        EXPECT_EQ(categoryOf(path), "") << path;
}

TEST_F(LinuxPlaces, pnpmStoreFollowsDataHome) {
    known.xdgDataHome = "/home/me/data";
    EXPECT_EQ(categoryOf("/home/me/data/pnpm/store"), "pnpm_store");
    EXPECT_EQ(categoryOf("/home/me/.local/share/pnpm/store"), "pnpm_store");
    for (const char* path : {"/home/me/data/pnpm", "/home/me/data/pnpm/store/v3", "/home/me/data2/pnpm/store",
                             "/home/me/x/data/pnpm/store", "/home/me/pnpm/store"})
        EXPECT_EQ(categoryOf(path), "") << path;
}

TEST_F(LinuxPlaces, dataHomeMayBeOutsideHome) {
    known.xdgDataHome = "/srv/data";
    root = "/srv";
    EXPECT_EQ(categoryOf("/srv/data/pnpm/store"), "pnpm_store");
    EXPECT_EQ(categoryOf("/srv/.cache/yarn"), "");
}

TEST_F(LinuxPlaces, applicationCachesMatchInAnyHome) {
    root = "/backup";
    EXPECT_EQ(categoryOf("/backup/you/.config/Code/Cache"), "electron_cache");
    EXPECT_EQ(categoryOf("/backup/you/.cache/chromium/Default/Cache"), "electron_cache");
}

TEST_F(LinuxPlaces, doNotMatchAfterWalkLeftThem) {
    for (const char* path : {"/home/me/.config/a/Cache", "/home/me/b/Cache", "/home/me/.cache/c/Cache",
                             "/home/me/d/Cache", "/home/me/.config/e/GPUCache"})
        add(path);
    EXPECT_EQ(items(),
              (ItemPaths{"/home/me/.config/a/Cache", "/home/me/.config/e/GPUCache", "/home/me/.cache/c/Cache"}));
}

class TrashContents : public LinuxPlaces {
protected:
    TrashContents() { known.trash = TrashPlaces({"/home/me/.local/share/Trash/files"}, {"/.Trash-7/files"}); }
};

TEST_F(TrashContents, trashIsNeitherItemNorMarked) {
    const FSNode& modules = add("/home/me/.local/share/Trash/files/node_modules");
    add("/home/me/.local/share/Trash/files/app/deep/.venv");
    add("/home/me/.local/share/Trash/files/.config/Code/Cache");
    add("/home/me/media/.Trash-7/files/a/__pycache__");
    add("/home/me/app/node_modules");
    EXPECT_EQ(items(), ItemPaths{"/home/me/app/node_modules"});
    EXPECT_EQ(reclaimCategoryOf(modules), nullptr);
}

TEST_F(TrashContents, classifyIgnoresTrash) {
    EXPECT_EQ(categoryOf("/home/me/.local/share/Trash/files/a/node_modules"), "");
    EXPECT_EQ(categoryOf("/home/me/media/.Trash-7/files/node_modules"), "");
    EXPECT_EQ(categoryOf("/home/me/media/.Trash-7/info/node_modules"), "node_modules");
}

TEST_F(TrashContents, siblingsOfTrashAreItems) {
    for (const char* path :
         {"/home/me/.local/share/Trash/files/a/node_modules", "/home/me/.local/share/Trash/info/node_modules",
          "/home/me/.local/share/Trash/files2/node_modules", "/home/me/files/node_modules"})
        add(path);
    EXPECT_EQ(items(), (ItemPaths{"/home/me/.local/share/Trash/info/node_modules",
                                  "/home/me/.local/share/Trash/files2/node_modules", "/home/me/files/node_modules"}));
}

TEST_F(TrashContents, scanRootAtOrInsideTrashHasNoItems) {
    for (const char* place : {"/home/me/.local/share/Trash/files", "/home/me/.local/share/Trash/files/a"}) {
        top = FSNode::make("", 0);
        root = place;
        add(root + "/node_modules");
        EXPECT_EQ(items(), ItemPaths()) << root;
    }
}

TEST_F(TrashContents, walkThatStartsInsideTrashFindsNothing) {
    add("/home/me/.local/share/Trash/files/a/b/node_modules");
    std::vector<Reclaimable> found;
    ReclaimClassifier(files, known).collect(add("/home/me/.local/share/Trash/files/a"), "/home/me", found);
    EXPECT_TRUE(found.empty());
}

TEST_F(TrashContents, withoutKnownTrashEverythingIsFound) {
    known.trash = {};
    add("/home/me/.local/share/Trash/files/node_modules");
    EXPECT_EQ(items(), ItemPaths{"/home/me/.local/share/Trash/files/node_modules"});
}

TEST(ReclaimPlaces, comeFromPlatformLocations) {
    fakes::FakeLocations locations;
    EXPECT_EQ(ReclaimPlaces::of(locations).xdgDataHome, std::nullopt);
    EXPECT_FALSE(ReclaimPlaces::of(locations).trash.hold("/data/Trash/files"));
    locations.xdg = XdgHomes{"/data", {}, {}, {}};
    locations.thrownAway = TrashPlaces({"/data/Trash/files"}, {});
    EXPECT_EQ(ReclaimPlaces::of(locations).xdgDataHome, "/data");
    EXPECT_TRUE(ReclaimPlaces::of(locations).trash.hold("/data/Trash/files"));
}

}  // namespace
}  // namespace zelk
