// SPDX-License-Identifier: MIT
#include "scan/FoldersAt.h"

#include <gmock/gmock.h>

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

NodeRef folder(std::string_view name) {
    return FSNode::make(name, 0);
}

std::vector<std::string> pathsOf(const std::vector<NodeRef>& nodes) {
    std::vector<std::string> paths;
    for (const NodeRef& node : nodes) paths.push_back(node->fullPath());
    return paths;
}

}  // namespace

TEST(FoldersAt, findsFoldersBelowTheirScanRoot) {
    const NodeRef top = folder("");
    FSNode& home = top->append(folder("/home/me"));
    FSNode& large = home.append(folder("large"));
    FSNode& inner = large.append(folder("inner"));
    FSNode& like = home.append(folder("lar"));
    EXPECT_THAT(foldersAt(*top, {"/home/me"}), ElementsAre(NodeRef(&home)));
    EXPECT_THAT(foldersAt(*top, {"/home/me/large/inner"}), ElementsAre(NodeRef(&inner)));
    EXPECT_THAT(foldersAt(*top, {"/home/me/lar", "/home/me/large"}), ElementsAre(NodeRef(&like), NodeRef(&large)));
    for (const char* path : {"/home", "/home/me/large/inne", "/home/me/large/inner/x", "/home/mel", "/home/me/la", ""})
        EXPECT_THAT(foldersAt(*top, {path}), IsEmpty()) << path;
}

TEST(FoldersAt, findsFoldersBelowTheWholeDrive) {
    const NodeRef top = folder("");
    FSNode& drive = top->append(folder("/"));
    FSNode& data = drive.append(folder("data"));
    EXPECT_THAT(foldersAt(*top, {"/"}), ElementsAre(NodeRef(&drive)));
    EXPECT_THAT(foldersAt(*top, {"/data"}), ElementsAre(NodeRef(&data)));
}

TEST(FoldersAt, findsFolderInEveryScanRootThatHoldsIt) {
    const NodeRef top = folder("");
    FSNode& inHome = top->append(folder("/home/me")).append(folder("projects"));
    FSNode& itself = top->append(folder("/home/me/projects"));
    inHome.append(folder("app"));
    itself.append(folder("app"));
    EXPECT_THAT(foldersAt(*top, {"/home/me/projects"}), ElementsAre(NodeRef(&inHome), NodeRef(&itself)));
    EXPECT_EQ(foldersAt(*top, {"/home/me/projects/app"}).size(), 2U);
}

TEST(FoldersAt, findsFoldersAmongManySiblingsWithoutScanning) {
    const NodeRef top = folder("");
    FSNode& home = top->append(folder("/home/me"));
    std::set<std::string> paths;
    for (int at = 0; at < 50'000; ++at) {
        home.append(folder("folder " + std::to_string(at)));
        paths.insert("/home/me/folder " + std::to_string(at));
    }
    const std::vector<std::string> found = pathsOf(foldersAt(*top, paths));
    EXPECT_EQ(std::set<std::string>(found.begin(), found.end()), paths);
}

TEST(FoldersAt, behindRootComparesWholeComponents) {
    EXPECT_EQ(behindRoot("/home/me", "/home/me/a/b"), "a/b");
    EXPECT_EQ(behindRoot("/home/me", "/home/me"), "");
    EXPECT_EQ(behindRoot("/", "/home"), "home");
    EXPECT_EQ(behindRoot("/home/me/", "/home/me/a"), "a");
    EXPECT_EQ(behindRoot("/home/me", "/home/mel/a"), std::nullopt);
    EXPECT_EQ(behindRoot("/home/me", "/home"), std::nullopt);
    EXPECT_EQ(behindRoot("", "/home"), std::nullopt);
}

}  // namespace zelk
