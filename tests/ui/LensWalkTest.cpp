// SPDX-License-Identifier: MIT
#include "ui/screens/lens/LensWalk.h"

#include <gmock/gmock.h>

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

NodeRef topOf(std::int64_t size) {
    NodeRef node = FSNode::make("", 0);
    node->size = size;
    return node;
}

NodeRef add(const NodeRef& above, std::string_view name, std::int64_t size) {
    FSNode& node = above->append(name, 0);
    node.size = size;
    return NodeRef(&node);
}

std::vector<std::string> namesOf(const std::vector<NodeRef>& nodes) {
    std::vector<std::string> names;
    for (const NodeRef& node : nodes) names.emplace_back(node->name());
    return names;
}

/// "/home/me" with "small" (1 byte), "large" (30, of which "inner" has 20), "empty" (0) and "middle" (5).
class LensWalkTest : public testing::Test {
protected:
    LensWalkTest() {
        add(home, "empty", 0);
        add(home, "middle", 5);
        walk.setRoot(top);
    }

    NodeRef top = topOf(36);
    NodeRef home = add(top, "/home/me", 36);
    NodeRef small = add(home, "small", 1);
    NodeRef large = add(home, "large", 30);
    NodeRef inner = add(large, "inner", 20);
    LensWalk walk;
};

}  // namespace

TEST_F(LensWalkTest, startsAtSingleChild) {
    EXPECT_EQ(walk.mapRoot(), home);
    EXPECT_EQ(walk.currentNode(), home);
}

TEST_F(LensWalkTest, listsSeveralScanRoots) {
    add(top, "/mnt/disk", 7);
    EXPECT_EQ(walk.mapRoot(), top);
    EXPECT_THAT(namesOf(walk.visibleChildren()), ElementsAre("/home/me", "/mnt/disk"));
}

TEST_F(LensWalkTest, isEmptyWithoutTree) {
    walk.setRoot(nullptr);
    EXPECT_FALSE(walk.currentNode());
    EXPECT_THAT(walk.visibleChildren(), IsEmpty());
}

TEST_F(LensWalkTest, listsNonEmptyFoldersBySize) {
    EXPECT_THAT(namesOf(walk.visibleChildren()), ElementsAre("large", "middle", "small"));
}

TEST_F(LensWalkTest, hidesEmptyFolders) {
    add(inner, "a", 0);
    walk.enter(inner);
    EXPECT_THAT(walk.visibleChildren(), IsEmpty());
    EXPECT_EQ(walk.currentNode()->children().size(), 1U);
}

TEST_F(LensWalkTest, entersAndGoesBack) {
    EXPECT_FALSE(walk.canGoBack());
    walk.enter(large);
    EXPECT_EQ(walk.currentNode(), large);
    EXPECT_TRUE(walk.canGoBack());
    walk.back();
    EXPECT_EQ(walk.currentNode(), home);
    walk.back();
    EXPECT_EQ(walk.currentNode(), home);
}

TEST_F(LensWalkTest, startOverClearsSelectionAndReturnsToTop) {
    walk.enter(large);
    walk.enter(inner);
    walk.select(inner);
    walk.startOver();
    EXPECT_EQ(walk.currentNode(), home);
    EXPECT_THAT(walk.selected(), IsEmpty());
}

TEST_F(LensWalkTest, selectionSpansFolders) {
    walk.select(small);
    walk.enter(large);
    walk.select(inner);
    EXPECT_TRUE(walk.isSelected("/home/me/small"));
    EXPECT_TRUE(walk.isSelected("/home/me/large/inner"));
    EXPECT_EQ(walk.selectedBytes(), 21);
    walk.unselect("/home/me/small");
    EXPECT_EQ(walk.selectedBytes(), 20);
}

TEST_F(LensWalkTest, newTreeKeepsCurrentNode) {
    walk.enter(large);
    walk.setRoot(topOf(1));
    EXPECT_EQ(walk.currentNode(), large);
}

TEST_F(LensWalkTest, keepsOldTreeWhileItIsUsed) {
    walk.enter(large);
    walk.select(small);
    walk.setRoot(topOf(1));
    small = large = inner = home = top = nullptr;
    EXPECT_EQ(walk.currentNode()->fullPath(), "/home/me/large");
    EXPECT_THAT(walk.takeLeftTrees(), IsEmpty());
    walk.back();
    EXPECT_EQ(walk.selected().begin()->second->fullPath(), "/home/me/small");
    EXPECT_THAT(walk.takeLeftTrees(), IsEmpty());
    walk.clearSelection();
    EXPECT_THAT(walk.takeLeftTrees(), testing::SizeIs(1));
    EXPECT_THAT(walk.takeLeftTrees(), IsEmpty());
}

TEST_F(LensWalkTest, releasesUnusedTreeAtOnce) {
    walk.setRoot(topOf(1));
    EXPECT_THAT(walk.takeLeftTrees(), ElementsAre(top));
}

TEST_F(LensWalkTest, deselectsFolderWithItsContent) {
    add(home, "large one", 2);
    for (FSNode& node : home->children()) walk.select(NodeRef(&node));
    walk.select(inner);
    walk.unselectAtAndBelow("/home/me/large");
    EXPECT_FALSE(walk.isSelected("/home/me/large"));
    EXPECT_FALSE(walk.isSelected("/home/me/large/inner"));
    EXPECT_TRUE(walk.isSelected("/home/me/large one"));
    EXPECT_TRUE(walk.isSelected("/home/me/middle"));
}

TEST_F(LensWalkTest, leavesRemovedFolderForNearestAboveIt) {
    const auto at = [&] { return walk.currentNode()->fullPath(); };
    walk.enter(large);
    walk.enter(inner);
    walk.leave("/home/me/lar");
    EXPECT_EQ(at(), "/home/me/large/inner");
    walk.leave("/home/me/large/inner/deeper");
    EXPECT_EQ(at(), "/home/me/large/inner");
    walk.leave("/home/me/large/inner");
    EXPECT_EQ(at(), "/home/me/large");
    walk.enter(inner);
    walk.leave("/home/me/large");
    EXPECT_EQ(at(), "/home/me");
    EXPECT_FALSE(walk.canGoBack());
}

}  // namespace zelk
