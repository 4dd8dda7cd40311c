// SPDX-License-Identifier: MIT
// Compares the walk with a naive classifier that builds whole paths, on random and on very deep trees.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "fakes/FakeFileManager.h"
#include "reclaim/ReclaimClassifier.h"
#include "reclaim/WalkedPath.h"

namespace zelk {
namespace {

const std::string walkedHome = "/h";

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

struct Verdict {
    std::string category;
    bool datedByParent = false;
};

/// The places of a Linux machine, whose Trash random trees may contain.
ReclaimPlaces ofLinux() {
    return {walkedHome + "/data", TrashPlaces({walkedHome + "/data/Trash/files"}, {"/.Trash-7/files"})};
}

/// `parent` is nullptr for a node without a parent.
Verdict plainVerdict(const std::string& path, const std::string& name, const std::string* parent,
                     const std::string& parentPath, fakes::FakeFileManager& files, bool onLinux) {
    static const std::map<std::string, std::string> byLinuxPath{
        {walkedHome + "/.cache/yarn", "yarn_cache"},
        {walkedHome + "/Android/Sdk/system-images", "android_system_images"},
        {walkedHome + "/data/pnpm/store", "pnpm_store"},
    };
    static const std::map<std::string, std::string> byPath{
        {walkedHome + "/Library/Developer/Xcode/DerivedData", "derived_data"},
        {walkedHome + "/Library/Developer/Xcode/iOS DeviceSupport", "ios_device_support"},
        {walkedHome + "/Library/Developer/Xcode/Archives", "xcode_archives"},
        {walkedHome + "/Library/pnpm", "pnpm_store"},
        {walkedHome + "/.npm/_cacache", "npm_cache"},
        {walkedHome + "/Library/Caches/Yarn", "yarn_cache"},
        {walkedHome + "/.gradle/caches", "gradle"},
    };
    if (const auto found = byPath.find(path); found != byPath.end()) return {found->second};
    if (const auto found = byLinuxPath.find(path); onLinux && found != byLinuxPath.end()) return {found->second};
    const bool inSupport = contains(path, "/Application Support/") ||
                           (onLinux && (contains(path, "/.config/") || contains(path, "/.cache/")));
    if (name == "node_modules") return {"node_modules", true};
    if (name == ".gradle") return {"gradle", true};
    if (name == "__pycache__") return {"python_pycache"};
    if (name == "venv") return {"python_venv", true};
    if (name == "target" && parent && files.exists(parentPath + "/Cargo.toml")) return {"rust_target", true};
    if (name == "workspaceStorage" && contains(path, "/User/") && inSupport) return {"electron_workspace"};
    if ((name == "Cache" || name == "GPUCache") && inSupport) return {"electron_cache"};
    if (name == "CacheStorage" && parent && *parent == "Service Worker" && inSupport) return {"electron_cache"};
    return {};
}

/// A random tree of relevant names, and the items expected in it, found recursively with whole paths.
class RandomTree {
public:
    explicit RandomTree(unsigned seed, bool onLinux = false)
        : onLinux_(onLinux), random_(seed), top(FSNode::make("", date())) {
        std::vector<std::string> roots{"/h", "/", "/h/.gradle", "/x/Application Support", "/User/y"};
        if (onLinux) roots.insert(roots.end(), {"/x/.config", "/y/.Trash-7/files", "/h/data/Trash/files/app"});
        for (const std::string& root : roots) {
            if (random_() % 2 != 0) continue;
            grow(top->append(root, date()), root, 0);
        }
        expect(*top, "", nullptr, "");
    }

    fakes::FakeFileManager files;
    std::vector<Reclaimable> expected;
    std::vector<const FSNode*> all;
    std::vector<const FSNode*> inTrash;  ///< Trash folders, which `all` leaves out with everything below

private:
    double date() { return static_cast<double>(random_() % 1000000); }

    void grow(FSNode& node, const std::string& path, int depth) {
        static const std::vector<std::string> names{"Library",
                                                    "Developer",
                                                    "Xcode",
                                                    "DerivedData",
                                                    "Archives",
                                                    "Caches",
                                                    "Yarn",
                                                    "pnpm",
                                                    ".npm",
                                                    "_cacache",
                                                    ".gradle",
                                                    "caches",
                                                    "User",
                                                    "h",
                                                    "node_modules",
                                                    "venv",
                                                    "__pycache__",
                                                    "workspaceStorage",
                                                    "Cache",
                                                    "GPUCache",
                                                    "target",
                                                    "CacheStorage",
                                                    "a",
                                                    "b",
                                                    "Service Worker",
                                                    "Application Support",
                                                    "iOS DeviceSupport"};
        static const std::vector<std::string> belowHome{"Library/Developer/Xcode/DerivedData",
                                                        "Library/Developer/Xcode/Archives", "Library/pnpm",
                                                        ".npm/_cacache", "Library/Caches/Yarn/v6"};
        static const std::vector<std::string> linuxNames{".config", ".cache", ".Trash-7", "files"};
        static const std::vector<std::string> linuxBelowHome{".cache/yarn/v6", "Android/Sdk/system-images",
                                                             "data/pnpm/store/v3", ".config/app/GPUCache",
                                                             "data/Trash/files/app/node_modules"};
        if (depth == 9) return;
        if (path == walkedHome)  // what chance alone would hardly ever spell
            for (const std::string& below : belowHome)
                if (random_() % 3 == 0) plant(node, below);
        if (path == walkedHome && onLinux_)
            for (const std::string& below : linuxBelowHome)
                if (random_() % 3 == 0) plant(node, below);
        if (random_() % 8 == 0) files.addFile((path == "/" ? "" : path) + "/Cargo.toml");
        const unsigned count = random_() % (depth < 2 ? 6 : 4);
        for (unsigned i = 0; i < count; ++i) {
            const std::vector<std::string>& from = onLinux_ && random_() % 3 == 0 ? linuxNames : names;
            const std::string& name = from[random_() % from.size()];
            FSNode& child = node.append(name, date());
            child.size = static_cast<std::int64_t>(random_() % 1000);
            grow(child, path == "/" ? path + name : path + "/" + name, depth + 1);
        }
    }

    void plant(FSNode& node, const std::string& below) {
        FSNode* at = &node;
        std::istringstream names(below);
        for (std::string name; std::getline(names, name, '/');) at = &at->append(name, date());
    }

    void expect(FSNode& node, const std::string& above, const FSNode* parent, const std::string& parentPath) {
        const std::string name(node.name());
        const std::string path = above + name;
        const std::string parentName = parent ? std::string(parent->name()) : "";
        const Verdict verdict = plainVerdict(path, name, parent ? &parentName : nullptr,
                                             parentPath == "/" ? "" : parentPath, files, onLinux_);
        const bool begins = !parent || parentPath.empty();
        const auto isTrash = [](const std::string& text) {
            return text == walkedHome + "/data/Trash/files" || text.ends_with("/.Trash-7/files");
        };
        if (onLinux_ && (isTrash(path) || (begins && path == walkedHome + "/data/Trash/files/app"))) {
            inTrash.push_back(&node);
            return;
        }
        all.push_back(&node);
        if (!verdict.category.empty()) {
            const ReclaimCategory& category = *reclaimCategoryByID().at(verdict.category);
            expected.push_back({path,
                                path,
                                static_cast<std::uint64_t>(node.size),
                                verdict.category,
                                category.safety,
                                {},
                                verdict.datedByParent && parent ? parent->lastModified : node.lastModified});
            return;
        }
        for (FSNode& child : node.children())
            expect(child, path.empty() || path.back() == '/' ? path : path + "/", &node, path);
    }

    bool onLinux_;
    std::mt19937 random_;

public:
    NodeRef top;
};

/// Adds to `met` how often each category was found.
void compareOnRandomTrees(bool onLinux, std::map<std::string, int>& met) {
    const ReclaimPlaces known = onLinux ? ofLinux() : ReclaimPlaces();
    for (unsigned seed = 0; seed < 120; ++seed) {
        RandomTree tree(seed, onLinux);
        std::vector<Reclaimable> items;
        ReclaimClassifier(tree.files, known).collect(*tree.top, walkedHome, items);
        ASSERT_EQ(items.size(), tree.expected.size()) << seed;
        for (std::size_t i = 0; i < items.size(); ++i) {
            ASSERT_EQ(items[i].path, tree.expected[i].path) << seed;
            ASSERT_EQ(items[i].id, tree.expected[i].id) << seed;
            ASSERT_EQ(items[i].size, tree.expected[i].size) << seed;
            ASSERT_EQ(items[i].categoryID, tree.expected[i].categoryID) << seed << " " << items[i].path;
            ASSERT_EQ(items[i].safety, tree.expected[i].safety) << seed;
            ASSERT_EQ(items[i].lastModified, tree.expected[i].lastModified) << seed << " " << items[i].path;
            ++met[items[i].categoryID];
        }
    }
}

TEST(ReclaimWalk, agreesWithNaiveClassifierOnRandomTrees) {
    std::map<std::string, int> met;
    compareOnRandomTrees(false, met);
    for (const char* category :
         {"derived_data", "xcode_archives", "pnpm_store", "npm_cache", "yarn_cache", "gradle", "node_modules",
          "python_pycache", "python_venv", "rust_target", "electron_workspace", "electron_cache"})
        EXPECT_GT(met[category], 0) << category << " was not met: the trees do not reach it";
}

TEST(ReclaimWalk, agreesWithNaiveClassifierOnLinux) {
    std::map<std::string, int> met;
    compareOnRandomTrees(true, met);
    for (const char* category :
         {"android_system_images", "pnpm_store", "yarn_cache", "node_modules", "electron_workspace", "electron_cache"})
        EXPECT_GT(met[category], 0) << category << " was not met: the trees do not reach it";
}

void compareNodeByNode(bool onLinux) {
    std::size_t inTrash = 0;
    for (unsigned seed = 1000; seed < 1060; ++seed) {
        RandomTree tree(seed, onLinux);
        const ReclaimClassifier classifier(tree.files, onLinux ? ofLinux() : ReclaimPlaces());
        std::vector<Reclaimable> items;
        classifier.collect(*tree.top, walkedHome + "/", items);
        std::size_t next = 0;
        for (const FSNode* node : tree.all) {
            const auto match = classifier.classify(*node, walkedHome + "/");
            ASSERT_EQ(match ? match->category : nullptr, reclaimCategoryOf(*node)) << node->fullPath();
            if (!match) continue;
            ASSERT_LT(next, items.size());
            ASSERT_EQ(items[next].path, node->fullPath());
            ASSERT_EQ(items[next].method, match->method);
            ASSERT_EQ(items[next].lastModified, match->ageDate);
            ++next;
        }
        ASSERT_EQ(next, items.size());
        for (const FSNode* folder : tree.inTrash) {
            EXPECT_FALSE(classifier.classify(*folder, walkedHome));
            for (const FSNode& child : folder->children()) {
                EXPECT_FALSE(classifier.classify(child, walkedHome));
                EXPECT_EQ(reclaimCategoryOf(child), nullptr);
            }
        }
        inTrash += tree.inTrash.size();
    }
    EXPECT_EQ(inTrash > 0, onLinux) << "the trees do not reach what was thrown away";
}

TEST(ReclaimWalk, agreesWithClassifyForEveryNode) {
    compareNodeByNode(false);
}

TEST(ReclaimWalk, agreesWithClassifyForEveryNodeOnLinux) {
    compareNodeByNode(true);
}

/// A chain of folders, each named `name(depth)`.
NodeRef chain(std::size_t depth, const std::function<std::string(std::size_t)>& name) {
    NodeRef top = FSNode::make("", 0);
    FSNode* at = &top->append("/h", 1);
    for (std::size_t i = 0; i < depth; ++i) at = &at->append(name(i), 1);
    return top;
}

constexpr std::size_t veryDeep = 50000;

TEST(ReclaimWalk, walksFiftyThousandLevels) {
    const NodeRef top =
        chain(veryDeep, [](std::size_t i) { return i + 1 == veryDeep ? std::string("node_modules") : "d"; });
    fakes::FakeFileManager files;
    std::vector<Reclaimable> items;
    ReclaimClassifier(files).collect(*top, walkedHome, items);
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].path.size(), walkedHome.size() + 2 * (veryDeep - 1) + std::string("/node_modules").size());
}

TEST(ReclaimWalk, walksDeepChainOfNamesThatNeedTheirPath) {
    const NodeRef top = chain(veryDeep, [](std::size_t i) {
        if (i + 2 == veryDeep) return "Application Support";
        return i % 2 == 0 ? "Cache" : "workspaceStorage";
    });
    fakes::FakeFileManager files;
    std::vector<Reclaimable> items;
    ReclaimClassifier(files).collect(*top, walkedHome, items);
    EXPECT_TRUE(items.empty()) << "the last folder is a workspaceStorage outside any User folder";
}

TEST(ReclaimWalk, deepChainKnowsApplicationSupportAtTop) {
    const NodeRef top = chain(veryDeep, [](std::size_t i) {
        if (i == 0) return "Application Support";
        return i + 1 == veryDeep ? "Cache" : "workspaceStorage";
    });
    fakes::FakeFileManager files;
    std::vector<Reclaimable> items;
    ReclaimClassifier(files).collect(*top, walkedHome, items);
    EXPECT_EQ(items.size(), 1U);
}

TEST(ContainedText, agreesWithFullSearchWhileTextGrowsAndShrinks) {
    std::mt19937 random(7);
    int found = 0;
    for (int round = 0; round < 200; ++round) {
        ContainedText watched("/ab/");
        std::string text;
        for (int step = 0; step < 300; ++step) {
            if (random() % 3 == 0) {
                text.resize(text.size() - random() % (text.size() + 1));
                watched.cutTo(text.size());
            } else {
                for (unsigned n = random() % 4; n > 0; --n) text += "/ab/c"[random() % 5];
            }
            if (random() % 2 != 0) continue;
            ASSERT_EQ(watched.isIn(text), contains(text, "/ab/")) << text;
            found += contains(text, "/ab/") ? 1 : 0;
        }
    }
    EXPECT_GT(found, 100) << "too few of the texts hold what is looked for";
}

TEST(WalkedPath, equalsFullPathEvenAfterSiblingLookup) {
    const NodeRef top = chain(3, [](std::size_t i) { return std::string(1, static_cast<char>('a' + i)); });
    const FSNode& node = top->children().front().children().front().children().front();
    fakes::FakeFileManager files;
    files.addFile("/h/a/sibling");
    WalkedPath path(node);
    EXPECT_EQ(path.text(), node.fullPath());
    EXPECT_TRUE(path.hasBeside("sibling", "b", files));
    EXPECT_FALSE(path.hasBeside("stranger", "b", files));
    EXPECT_EQ(path.text(), "/h/a/b");
    path.enter("c");
    EXPECT_EQ(path.text(), "/h/a/b/c");
    path.leaveTo(2);
    path.enter("z");
    EXPECT_EQ(path.text(), "/h/z");
}

}  // namespace
}  // namespace zelk
