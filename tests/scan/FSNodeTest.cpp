// SPDX-License-Identifier: MIT
#include "scan/FSNode.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "scan/ScanEngine.h"

namespace zelk {
namespace {

struct Tree {
    NodeRef top = FSNode::make("", 1);
    NodeRef root;
    explicit Tree(std::string_view rootPath) : root(FSNode::make(rootPath, 2)) { top->append(root); }
};

TEST(FSNode, storesItsInitialValues) {
    const NodeRef node = FSNode::make("a name\xFF", 12.5);
    EXPECT_EQ(node->name(), "a name\xFF");
    EXPECT_EQ(node->lastModified, 12.5);
    EXPECT_TRUE(node->isDirectory());
    EXPECT_EQ(node->size, 0);
    EXPECT_EQ(node->ownFileBytes, 0);
    EXPECT_EQ(node->fileCount, 0);
    EXPECT_EQ(node->parent(), nullptr);
    EXPECT_EQ(node->reclaimCategory, nullptr);
    EXPECT_TRUE(node->children.empty());
}

TEST(FSNode, pathOfAScanRootIsItsName) {
    EXPECT_EQ(Tree("/home/a").root->fullPath(), "/home/a");
}

TEST(FSNode, childOfSlashHasOneSlash) {
    const Tree tree("/");
    EXPECT_EQ(tree.root->append(FSNode::make("usr", 0)).fullPath(), "/usr");
    EXPECT_EQ(tree.root->children[0]->append(FSNode::make("bin", 0)).fullPath(), "/usr/bin");
}

TEST(FSNode, rootKeepsTrailingSlash) {
    const Tree tree("/home/a/");
    EXPECT_EQ(tree.root->append(FSNode::make("b", 0)).fullPath(), "/home/a/b");
}

TEST(FSNode, pathOfTheSyntheticTopIsEmpty) {
    EXPECT_EQ(Tree("/x").top->fullPath(), "");
}

TEST(FSNode, pathReusesTheBuffer) {
    const Tree tree("/home");
    std::string path = "something much longer that stood there before";
    tree.root->append(FSNode::make("a", 0)).fullPath(path);
    EXPECT_EQ(path, "/home/a");
}

TEST(FSNode, pathWithoutParentIsTheName) {
    NodeRef child;
    {
        const Tree tree("/home");
        child = NodeRef(&tree.root->append(FSNode::make("a", 0)));
        child->append(FSNode::make("b", 0));
        EXPECT_EQ(child->fullPath(), "/home/a");
    }
    EXPECT_EQ(child->parent(), nullptr);
    EXPECT_EQ(child->fullPath(), "a");
    EXPECT_EQ(child->children[0]->fullPath(), "a/b");
}

TEST(FSNode, removedNodeKeepsItsPath) {
    Tree tree("/home");
    const NodeRef child(&tree.root->append(FSNode::make("a", 0)));
    const NodeRef grandchild(&child->append(FSNode::make("b", 0)));
    tree.root->remove(*child);
    EXPECT_TRUE(tree.root->children.empty());
    EXPECT_EQ(child->fullPath(), "/home/a");
    EXPECT_EQ(grandchild->fullPath(), "/home/a/b");
    tree.top = nullptr;
    tree.root = nullptr;
    EXPECT_EQ(child->fullPath(), "/home/a") << "it keeps the folder that it was taken from";
}

TEST(FSNode, reappendedNodeIsReleasedWithItsParent) {
    NodeRef child;
    {
        Tree tree("/x");
        child = NodeRef(&tree.root->append(FSNode::make("a", 0)));
        tree.root->remove(*child);
        EXPECT_EQ(tree.root->append(child).fullPath(), "/x/a");
        EXPECT_EQ(tree.root->children.size(), 1U);
    }
    EXPECT_EQ(child->parent(), nullptr) << "neither keeps the other";
}

TEST(FSNode, nodeAppendedElsewhereReleasesItsFormerParent) {
    NodeRef former = FSNode::make("former", 0);
    const NodeRef other = FSNode::make("other", 0);
    const NodeRef child(&former->append(FSNode::make("a", 0)));
    const NodeRef sibling(&former->append(FSNode::make("b", 0)));
    former->remove(*child);
    other->append(child);
    former = nullptr;
    EXPECT_EQ(sibling->parent(), nullptr);
    EXPECT_EQ(child->fullPath(), "other/a");
}

TEST(FSNode, removingAForeignNodeChangesNothing) {
    const Tree tree("/home");
    const NodeRef stranger = FSNode::make("a", 0);
    tree.root->append(FSNode::make("a", 0));
    tree.root->remove(*stranger);
    EXPECT_EQ(tree.root->children.size(), 1U);
    EXPECT_EQ(stranger->parent(), nullptr);
}

TEST(FSNode, releasesAndNamesFiftyThousandLevelsWithoutRecursion) {
    NodeRef top = FSNode::make("", 0);
    FSNode* at = &top->append(FSNode::make("/r", 0));
    for (int i = 0; i < 50'000; ++i) at = &at->append(FSNode::make("d", 0));
    EXPECT_EQ(at->fullPath().size(), 2U + 2U * 50'000U);
    at->ownFileBytes = 7;
    EXPECT_EQ(rollUpSizes(*top), 7);
    EXPECT_EQ(top->children[0]->size, 7);
    // A small stack, which a recursive release would overflow.
    std::thread([released = std::exchange(top, nullptr)]() mutable { released = nullptr; }).join();
}

TEST(NodeRef, countsReferencesAcrossThreads) {
    const NodeRef node = FSNode::make("shared", 0);
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([node] {
            for (int i = 0; i < 10'000; ++i) {
                NodeRef copy = node;
                const NodeRef moved = std::move(copy);
                EXPECT_EQ(moved->name(), "shared");
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(node->name(), "shared");
}

TEST(RollUp, sumsOwnFilesAndChildren) {
    const Tree tree("/r");
    tree.root->ownFileBytes = 1;
    FSNode& a = tree.root->append(FSNode::make("a", 0));
    FSNode& b = tree.root->append(FSNode::make("b", 0));
    a.ownFileBytes = 10;
    b.ownFileBytes = 100;
    b.append(FSNode::make("c", 0)).ownFileBytes = 1000;
    EXPECT_EQ(rollUpSizes(*tree.top), 1111);
    EXPECT_EQ(tree.top->size, 1111);
    EXPECT_EQ(tree.root->size, 1111);
    EXPECT_EQ(a.size, 10);
    EXPECT_EQ(b.size, 1100);
    EXPECT_EQ(b.children[0]->size, 1000);
    EXPECT_EQ(rollUpSizes(*tree.top), 1111) << "a second roll-up must not add to the first";
}

TEST(RollUp, emptyTreeIsZero) {
    EXPECT_EQ(rollUpSizes(*FSNode::make("", 0)), 0);
}

}  // namespace
}  // namespace zelk
