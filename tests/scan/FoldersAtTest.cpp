// SPDX-License-Identifier: MIT
#include "scan/FoldersAt.h"

#include <gmock/gmock.h>

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> pathsOf(const std::vector<NodeRef>& nodes) {
    std::vector<std::string> paths;
    for (const NodeRef& node : nodes) paths.push_back(node->fullPath());
    return paths;
}

}  // namespace

TEST(FoldersAt, findsFoldersBelowTheirScanRoot) {
    const NodeRef top = FSNode::make("", 0);
    FSNode& home = top->append("/home/me", 0);
    FSNode& large = home.append("large", 0);
    FSNode& inner = large.append("inner", 0);
    FSNode& like = home.append("lar", 0);
    EXPECT_THAT(foldersAt(*top, {"/home/me"}), ElementsAre(NodeRef(&home)));
    EXPECT_THAT(foldersAt(*top, {"/home/me/large/inner"}), ElementsAre(NodeRef(&inner)));
    EXPECT_THAT(foldersAt(*top, {"/home/me/lar", "/home/me/large"}), ElementsAre(NodeRef(&like), NodeRef(&large)));
    for (const char* path : {"/home", "/home/me/large/inne", "/home/me/large/inner/x", "/home/mel", "/home/me/la", ""})
        EXPECT_THAT(foldersAt(*top, {path}), IsEmpty()) << path;
}

TEST(FoldersAt, findsFoldersBelowTheWholeDrive) {
    const NodeRef top = FSNode::make("", 0);
    FSNode& drive = top->append("/", 0);
    FSNode& data = drive.append("data", 0);
    EXPECT_THAT(foldersAt(*top, {"/"}), ElementsAre(NodeRef(&drive)));
    EXPECT_THAT(foldersAt(*top, {"/data"}), ElementsAre(NodeRef(&data)));
}

TEST(FoldersAt, findsFolderInEveryScanRootThatHoldsIt) {
    const NodeRef top = FSNode::make("", 0);
    FSNode& inHome = top->append("/home/me", 0).append("projects", 0);
    FSNode& itself = top->append("/home/me/projects", 0);
    inHome.append("app", 0);
    itself.append("app", 0);
    EXPECT_THAT(foldersAt(*top, {"/home/me/projects"}), ElementsAre(NodeRef(&inHome), NodeRef(&itself)));
    EXPECT_EQ(foldersAt(*top, {"/home/me/projects/app"}).size(), 2U);
}

TEST(FoldersAt, findsFoldersAmongManySiblingsWithoutScanning) {
    const NodeRef top = FSNode::make("", 0);
    FSNode& home = top->append("/home/me", 0);
    std::set<std::string> paths;
    for (int at = 0; at < 50'000; ++at) {
        home.append("folder " + std::to_string(at), 0);
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
