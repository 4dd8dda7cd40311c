// SPDX-License-Identifier: MIT
#include "reclaim/ReclaimClassifier.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "fakes/FakeFileManager.h"

namespace zelk {
namespace {

const std::string home = "/Users/a";

/// A tree with one root. The nodes on the way to `path` are dated 1, 2, 3… from the root down.
class Tree {
public:
    explicit Tree(const std::string& root = home) : top(FSNode::make("", 0)) { top->append(root, 1); }

    FSNode& root() { return top->children().front(); }

    /// Adds the missing nodes of `below`, a path relative to the root, and returns the last one.
    FSNode& add(const std::string& below) {
        FSNode* at = &root();
        std::size_t start = 0;
        while (start < below.size()) {
            const std::size_t end = std::min(below.find('/', start), below.size());
            at = &childCalled(*at, below.substr(start, end - start));
            start = end + 1;
        }
        return *at;
    }

    NodeRef top;

private:
    static FSNode& childCalled(FSNode& node, const std::string& name) {
        for (FSNode& child : node.children())
            if (child.name() == name) return child;
        return node.append(name, node.lastModified + 1);
    }
};

class Classifier : public testing::Test {
protected:
    /// The category of a node at `below` in the home folder; "" for none.
    std::string categoryAt(const std::string& below, const std::string& root = home) {
        const auto match = ReclaimClassifier(files).classify(Tree(root).add(below), home);
        return match ? std::string(match->category->id) : "";
    }

    std::vector<Reclaimable> itemsOf(Tree& tree, const std::string& homePath = home) {
        std::vector<Reclaimable> items;
        ReclaimClassifier(files).collect(*tree.top, homePath, items);
        return items;
    }

    fakes::FakeFileManager files;
};

std::vector<std::string> pathsOf(const std::vector<Reclaimable>& items) {
    std::vector<std::string> paths;
    for (const Reclaimable& item : items) paths.push_back(item.path);
    return paths;
}

using Paths = std::vector<std::string>;

struct ChainRow {
    std::string below;
    std::string category;
    bool datedByParent = false;
    std::string method = "Trash";
};

void PrintTo(const ChainRow& row, std::ostream* out) {
    *out << row.below;
}

class EveryRow : public testing::TestWithParam<ChainRow> {};

TEST_P(EveryRow, matchesWithItsMethodAndDate) {
    const ChainRow& row = GetParam();
    fakes::FakeFileManager files;
    files.addFile(home + "/p/Cargo.toml");
    Tree tree;
    const FSNode& node = tree.add(row.below);
    const auto match = ReclaimClassifier(files).classify(node, home);
    ASSERT_TRUE(match.has_value());
    EXPECT_EQ(match->category, reclaimCategoryByID().at(row.category));
    EXPECT_EQ(methodSummary(match->method), row.method);
    EXPECT_EQ(match->ageDate, row.datedByParent ? node.parent()->lastModified : node.lastModified);
}

INSTANTIATE_TEST_SUITE_P(
    ByPath, EveryRow,
    testing::Values(ChainRow{"Library/Developer/Xcode/DerivedData", "derived_data"},
                    ChainRow{"Library/Developer/Xcode/iOS DeviceSupport", "ios_device_support"},
                    ChainRow{"Library/Developer/CoreSimulator/Devices", "core_simulator", false,
                             "/usr/bin/xcrun simctl delete unavailable"},
                    ChainRow{"Library/Android/sdk/system-images", "android_system_images"},
                    ChainRow{"Library/pnpm", "pnpm_store", false, "/usr/bin/env pnpm store prune"},
                    ChainRow{".local/share/pnpm/store", "pnpm_store", false, "/usr/bin/env pnpm store prune"},
                    ChainRow{".npm/_cacache", "npm_cache", false, "/usr/bin/env npm cache clean --force"},
                    ChainRow{"Library/Caches/Yarn", "yarn_cache"},
                    ChainRow{"Library/Caches/CocoaPods", "cocoapods_cache"}, ChainRow{".gradle/caches", "gradle"},
                    ChainRow{"Library/Application Support/MobileSync/Backup", "ios_backups"},
                    ChainRow{"Library/Developer/Xcode/Archives", "xcode_archives"},
                    ChainRow{"Library/Containers/com.apple.mail/Data/Library/Mail Downloads", "mail_downloads"},
                    ChainRow{"Library/Caches/com.apple.Music", "music_cache"},
                    ChainRow{"Library/Caches/com.apple.podcasts", "music_cache"},
                    ChainRow{"Library/Caches/com.apple.Photos", "photos_cache"}));

INSTANTIATE_TEST_SUITE_P(
    ByName, EveryRow,
    testing::Values(ChainRow{"p/node_modules", "node_modules", true}, ChainRow{"p/.expo", "expo", true},
                    ChainRow{"p/.expo-shared", "expo", true}, ChainRow{"p/.gradle", "gradle", true},
                    ChainRow{"p/.next", "next_turbo", true}, ChainRow{"p/.turbo", "next_turbo", true},
                    ChainRow{"p/.vercel", "next_turbo", true}, ChainRow{"p/__pycache__", "python_pycache"},
                    ChainRow{"p/.venv", "python_venv", true}, ChainRow{"p/venv", "python_venv", true},
                    ChainRow{"p/target", "rust_target", true, "/usr/bin/env cargo clean"},
                    ChainRow{"Library/Application Support/Code/User/workspaceStorage", "electron_workspace"},
                    ChainRow{"Library/Application Support/Any/Cache", "electron_cache"},
                    ChainRow{"Library/Application Support/Any/Code Cache", "electron_cache"},
                    ChainRow{"Library/Application Support/Any/GPUCache", "electron_cache"},
                    ChainRow{"Library/Application Support/Any/Service Worker/CacheStorage", "electron_cache"}));

TEST_F(Classifier, matchesExactPathsOnly) {
    EXPECT_EQ(categoryAt("Library/Caches/Yarn/v6"), "");
    EXPECT_EQ(categoryAt("Library/Caches/yarn"), "");
    EXPECT_EQ(categoryAt("Library/Caches/Yarn2"), "");
    EXPECT_EQ(categoryAt("x/Library/Caches/Yarn"), "");
    EXPECT_EQ(categoryAt("Library/Developer/Xcode"), "");
}

TEST_F(Classifier, matchesExactNamesOnly) {
    for (const char* name : {"Node_modules", "node_modules2", "xnode_modules", ".Next", "venv2", "_pycache_", "Venv",
                             ".expo-share", "GPUcache"})
        EXPECT_EQ(categoryAt(std::string("p/") + name), "") << name;
}

TEST_F(Classifier, homeWithSamePrefixDoesNotMatch) {
    EXPECT_EQ(categoryAt("Library/Caches/Yarn", "/Users/ab"), "");
    EXPECT_EQ(categoryAt("b/Library/Caches/Yarn"), "");
}

TEST_F(Classifier, ignoresTrailingSlashOfHome) {
    Tree tree;
    const FSNode& node = tree.add("Library/Caches/Yarn");
    EXPECT_TRUE(ReclaimClassifier(files).classify(node, home + "/").has_value());
    EXPECT_EQ(pathsOf(itemsOf(tree, home + "//")), Paths{home + "/Library/Caches/Yarn"});
}

TEST_F(Classifier, rootAsHomeDoesNotMatchSystemFolders) {
    Tree tree("/");
    const FSNode& node = tree.add("Library/Caches/Yarn");
    EXPECT_FALSE(ReclaimClassifier(files).classify(node, "/").has_value());
    EXPECT_EQ(pathsOf(itemsOf(tree, "/")), Paths{});
}

TEST_F(Classifier, gradleFolderMatchesByNameBeforeItsCaches) {
    Tree tree;
    tree.add(".gradle/caches");
    const auto items = itemsOf(tree);
    EXPECT_EQ(pathsOf(items), Paths{home + "/.gradle"});
    EXPECT_EQ(items[0].categoryID, "gradle");
    EXPECT_EQ(items[0].lastModified, tree.root().lastModified);
}

TEST_F(Classifier, gradleCachesMatchByPathWhenWalkStartsInsideGradle) {
    Tree tree(home + "/.gradle");
    const FSNode& caches = tree.add("caches");
    const auto items = itemsOf(tree);
    EXPECT_EQ(pathsOf(items), Paths{home + "/.gradle/caches"});
    EXPECT_EQ(items[0].lastModified, caches.lastModified);
}

TEST_F(Classifier, doesNotDescendIntoMatch) {
    Tree tree;
    tree.add("Library/Caches/Yarn/v6/node_modules");
    tree.add("p/node_modules/q/node_modules");
    EXPECT_EQ(pathsOf(itemsOf(tree)), (Paths{home + "/Library/Caches/Yarn", home + "/p/node_modules"}));
}

TEST_F(Classifier, scanRootInsideMatchedFolderMatchesNothing) {
    Tree tree(home + "/Library/Caches/Yarn/v6");
    tree.add("a/b");
    EXPECT_TRUE(itemsOf(tree).empty());
}

TEST_F(Classifier, scanRootMatchesByPath) {
    Tree tree(home + "/Library/Caches/Yarn");
    tree.add("v6");
    EXPECT_EQ(pathsOf(itemsOf(tree)), Paths{home + "/Library/Caches/Yarn"});
}

TEST_F(Classifier, scanRootDoesNotMatchByLastName) {
    Tree tree("/p/node_modules");
    tree.add("q/node_modules");
    EXPECT_EQ(pathsOf(itemsOf(tree)), Paths{"/p/node_modules/q/node_modules"});
}

TEST_F(Classifier, venvAnywhereIsForReview) {
    Tree tree("/srv");
    tree.add("music/venv");
    const auto items = itemsOf(tree);
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].categoryID, "python_venv");
    EXPECT_EQ(items[0].safety, ReclaimSafety::review);
}

TEST_F(Classifier, descendsIntoTargetWithoutCargoManifest) {
    files.addFile(home + "/p/target/Cargo.toml");
    files.addFile(home + "/Cargo.toml");
    files.addFile(home + "/p/cargo.toml");
    Tree tree;
    tree.add("p/target/node_modules");
    EXPECT_EQ(pathsOf(itemsOf(tree)), Paths{home + "/p/target/node_modules"});
    EXPECT_EQ(files.pathsOf("exists"), Paths{home + "/p/Cargo.toml"});
}

TEST_F(Classifier, cargoManifestMayBeFolder) {
    files.addFolder(home + "/p/Cargo.toml");
    EXPECT_EQ(categoryAt("p/target"), "rust_target");
}

TEST_F(Classifier, targetBelowFileSystemRootIsLookedUpWithOneSlash) {
    files.addFile("/Cargo.toml");
    Tree tree("/");
    tree.add("target");
    tree.add("targets/node_modules");
    EXPECT_EQ(pathsOf(itemsOf(tree, "/root")), (Paths{"/target", "/targets/node_modules"}));
    EXPECT_EQ(files.pathsOf("exists"), Paths{"/Cargo.toml"});
}

TEST_F(Classifier, targetWithoutParentIsNotItemAndLooksNothingUp) {
    EXPECT_FALSE(ReclaimClassifier(files).classify(*FSNode::make("target", 1), home).has_value());
    Tree tree("target");
    EXPECT_TRUE(itemsOf(tree).empty());
    EXPECT_TRUE(files.calls().empty());
}

TEST_F(Classifier, asksFileSystemForManifestOnly) {
    files.addFile(home + "/p/Cargo.toml");
    Tree tree;
    for (const char* below : {"p/target", "p/node_modules", "Library/pnpm", "q/Cache", "q/CacheStorage"})
        tree.add(below);
    itemsOf(tree);
    EXPECT_EQ(files.calls(), (std::vector<fakes::FakeFileManager::Call>{{"exists", home + "/p/Cargo.toml"}}));
}

TEST_F(Classifier, descendsIntoWorkspaceStorageOutsideUserFolder) {
    EXPECT_EQ(categoryAt("Library/Application Support/Code/workspaceStorage"), "");
    Tree tree;
    tree.add("Library/Application Support/Code/workspaceStorage/Cache");
    EXPECT_EQ(pathsOf(itemsOf(tree)), Paths{home + "/Library/Application Support/Code/workspaceStorage/Cache"});
}

TEST_F(Classifier, workspaceStorageOutsideApplicationSupportIsNotItem) {
    EXPECT_EQ(categoryAt("Code/User/workspaceStorage"), "");
}

TEST_F(Classifier, userFolderMayBeAboveApplicationSupport) {
    EXPECT_EQ(categoryAt("User/Application Support/workspaceStorage"), "electron_workspace");
}

TEST_F(Classifier, cacheOutsideApplicationSupportIsNotItem) {
    EXPECT_EQ(categoryAt("Library/Cache"), "");
    EXPECT_EQ(categoryAt("Library/Application Supporters/Cache"), "");
    EXPECT_EQ(categoryAt("Library/My Application Support/Cache"), "");
    EXPECT_EQ(categoryAt("Library/Code Cache"), "");
    EXPECT_EQ(categoryAt("Library/GPUCache"), "");
}

TEST_F(Classifier, cacheInApplicationSupportOfAnyHomeIsItem) {
    EXPECT_EQ(categoryAt("Application Support/x/y/Cache", "/Volumes/Old"), "electron_cache");
    EXPECT_EQ(categoryAt("Cache", "/Volumes/Application Support"), "electron_cache");
}

TEST_F(Classifier, applicationSupportNeedsParentFolder) {
    EXPECT_EQ(categoryAt("Cache", "Application Support"), "");
}

TEST_F(Classifier, serviceWorkerCacheOutsideApplicationSupportIsNotItem) {
    EXPECT_EQ(categoryAt("x/Service Worker/CacheStorage"), "");
}

TEST_F(Classifier, cacheStorageNeedsServiceWorkerParent) {
    EXPECT_EQ(categoryAt("Library/Application Support/CacheStorage"), "");
    EXPECT_EQ(categoryAt("Library/Application Support/Service Worker/x/CacheStorage"), "");
    EXPECT_EQ(categoryAt("Library/Application Support/service worker/CacheStorage"), "");
}

TEST_F(Classifier, nodeWithoutParentUsesItsOwnDate) {
    const auto match = ReclaimClassifier(files).classify(*FSNode::make("node_modules", 77), home);
    ASSERT_TRUE(match.has_value());
    EXPECT_EQ(match->ageDate, 77);
}

TEST_F(Classifier, nodeThatAloneIsHeldUsesTheDateOfItsParent) {
    NodeRef held;
    {
        Tree tree;
        held = NodeRef(&tree.add("p/node_modules"));
    }
    const auto match = ReclaimClassifier(files).classify(*held, home);
    ASSERT_TRUE(match.has_value());
    EXPECT_EQ(match->ageDate, 2);
}

TEST_F(Classifier, classifiesFilesLikeFolders) {
    Tree tree;
    tree.add("p").append("node_modules", 9, false);
    tree.add("Library/Caches").append("Yarn", 9, false);
    EXPECT_EQ(pathsOf(itemsOf(tree)), (Paths{home + "/p/node_modules", home + "/Library/Caches/Yarn"}));
}

TEST_F(Classifier, emptyTreeHasNoItems) {
    std::vector<Reclaimable> items;
    ReclaimClassifier(files).collect(*FSNode::make("", 0), home, items);
    EXPECT_TRUE(items.empty());
}

TEST_F(Classifier, treeWithoutMatchHasNoItemsAndNoMarks) {
    Tree tree;
    const FSNode& node = tree.add("Documents/letters");
    EXPECT_TRUE(itemsOf(tree).empty());
    EXPECT_EQ(reclaimCategoryOf(node), nullptr);
}

TEST_F(Classifier, itemHasFiguresOfItsNode) {
    Tree tree;
    FSNode& node = tree.add("Library/pnpm");
    node.size = 12345;
    const auto items = itemsOf(tree);
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].id, home + "/Library/pnpm");
    EXPECT_EQ(items[0].path, items[0].id);
    EXPECT_EQ(items[0].size, 12345U);
    EXPECT_EQ(items[0].categoryID, "pnpm_store");
    EXPECT_EQ(items[0].safety, ReclaimSafety::safe);
    EXPECT_EQ(items[0].method, ReclaimMethod::command("/usr/bin/env", {"pnpm", "store", "prune"}));
    EXPECT_EQ(items[0].lastModified, node.lastModified);
    EXPECT_EQ(reclaimCategoryOf(node), reclaimCategoryByID().at("pnpm_store"));
}

TEST_F(Classifier, matchedFolderOfZeroBytesIsItem) {
    Tree tree;
    tree.add("p/node_modules");
    const auto items = itemsOf(tree);
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].size, 0U);
}

TEST_F(Classifier, negativeSizeBecomesZero) {
    Tree tree;
    tree.add("p/node_modules").size = -1;
    const auto items = itemsOf(tree);
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].size, 0U);
}

TEST_F(Classifier, appendsItemsInPreOrder) {
    Tree tree;
    for (const char* below : {"b/node_modules", "a/x/__pycache__", "a/venv", "c/.next"}) tree.add(below);
    std::vector<Reclaimable> items(1);
    ReclaimClassifier(files).collect(*tree.top, home, items);
    EXPECT_EQ(pathsOf(items),
              (Paths{"", home + "/b/node_modules", home + "/a/x/__pycache__", home + "/a/venv", home + "/c/.next"}));
}

TEST_F(Classifier, walksRootsInOrder) {
    Tree tree("/srv");
    tree.add("node_modules");
    tree.top->append(home + "/Library/Caches/Yarn", 5);
    EXPECT_EQ(pathsOf(itemsOf(tree)), (Paths{"/srv/node_modules", home + "/Library/Caches/Yarn"}));
}

TEST_F(Classifier, walkMayStartInsideTree) {
    Tree tree;
    tree.add("Library/Application Support/x/Cache");
    std::vector<Reclaimable> items;
    ReclaimClassifier(files).collect(tree.add("Library/Application Support/x"), home, items);
    EXPECT_EQ(pathsOf(items), Paths{home + "/Library/Application Support/x/Cache"});
}

TEST_F(Classifier, keepsNonUtf8NamesAsBytes) {
    Tree tree;
    tree.add("\xFF\xFE\n/node_modules");
    EXPECT_EQ(pathsOf(itemsOf(tree)), Paths{home + "/\xFF\xFE\n/node_modules"});
}

TEST_F(Classifier, itemKnowsLengthOfItsScanRoot) {
    Tree tree(home);
    tree.add("a/node_modules");
    tree.top->append("/data/b", 0).append("node_modules", 0);
    tree.top->append(home + "/.npm/_cacache", 0);
    std::vector<std::string> roots;
    for (const Reclaimable& item : itemsOf(tree)) roots.push_back(item.path.substr(0, item.rootLength));
    EXPECT_EQ(roots, (std::vector<std::string>{home, "/data/b", home + "/.npm/_cacache"}));
}

}  // namespace
}  // namespace zelk
