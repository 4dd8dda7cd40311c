// SPDX-License-Identifier: MIT
#include "scan/FSNode.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "scan/ScanEngine.h"

namespace zelk {
namespace {

struct Tree {
    NodeRef top = FSNode::make("", 1);
    NodeRef root;
    explicit Tree(std::string_view rootPath) : root(&top->append(rootPath, 2)) {}
};

std::string namesIn(const FSNode& folder) {
    std::string names;
    for (const FSNode& child : folder.children()) names += child.name();
    return names;
}

/// A folder with children of one letter each.
NodeRef folderOf(std::string_view names) {
    NodeRef folder = FSNode::make("/r", 0);
    for (const char& name : names) folder->append({&name, 1}, 0);
    return folder;
}

FSNode& childCalled(const NodeRef& folder, std::string_view name) {
    return *std::find_if(folder->children().begin(), folder->children().end(),
                         [name](const FSNode& child) { return child.name() == name; });
}

TEST(FSNode, storesItsInitialValues) {
    const NodeRef node = FSNode::make("a name\xFF", 12.5);
    EXPECT_EQ(node->name(), "a name\xFF");
    EXPECT_EQ(node->lastModified, 12.5);
    EXPECT_TRUE(node->isDirectory());
    EXPECT_EQ(node->size, 0);
    EXPECT_EQ(node->ownFileBytes, 0);
    EXPECT_EQ(node->fileCount, 0);
    EXPECT_EQ(node->parent(), nullptr);
    EXPECT_EQ(node->reclaimCategory, 0);
    EXPECT_TRUE(node->children().empty());
}

TEST(FSNode, pathOfAScanRootIsItsName) {
    EXPECT_EQ(Tree("/home/a").root->fullPath(), "/home/a");
}

TEST(FSNode, childOfSlashHasOneSlash) {
    const Tree tree("/");
    EXPECT_EQ(tree.root->append("usr", 0).fullPath(), "/usr");
    EXPECT_EQ(tree.root->children().front().append("bin", 0).fullPath(), "/usr/bin");
}

TEST(FSNode, rootKeepsTrailingSlash) {
    const Tree tree("/home/a/");
    EXPECT_EQ(tree.root->append("b", 0).fullPath(), "/home/a/b");
}

TEST(FSNode, pathOfTheSyntheticTopIsEmpty) {
    EXPECT_EQ(Tree("/x").top->fullPath(), "");
}

TEST(FSNode, pathReusesTheBuffer) {
    const Tree tree("/home");
    std::string path = "something much longer that stood there before";
    tree.root->append("a", 0).fullPath(path);
    EXPECT_EQ(path, "/home/a");
}

TEST(FSNode, pathWithoutParentIsTheName) {
    const NodeRef top = FSNode::make("a", 0);
    EXPECT_EQ(top->fullPath(), "a");
    EXPECT_EQ(top->append("b", 0).fullPath(), "a/b");
}

TEST(FSNode, referenceKeepsTheWholeTree) {
    NodeRef child;
    {
        const Tree tree("/home");
        child = NodeRef(&tree.root->append("a", 0));
        child->append("b", 0);
        tree.root->append("c", 0);
    }
    EXPECT_EQ(child->fullPath(), "/home/a");
    EXPECT_EQ(child->children().front().fullPath(), "/home/a/b");
    EXPECT_EQ(child->nextSibling()->fullPath(), "/home/c");
    EXPECT_EQ(child->parent()->parent()->name(), "");
}

TEST(FSNode, removedNodeKeepsItsPath) {
    Tree tree("/home");
    const NodeRef child(&tree.root->append("a", 0));
    const NodeRef grandchild(&child->append("b", 0));
    tree.root->remove(*child);
    EXPECT_TRUE(tree.root->children().empty());
    EXPECT_TRUE(child->isRemoved());
    EXPECT_FALSE(grandchild->isRemoved());
    tree.top = nullptr;
    tree.root = nullptr;
    EXPECT_EQ(child->fullPath(), "/home/a");
    EXPECT_EQ(grandchild->fullPath(), "/home/a/b");
}

TEST(FSNode, onlyChildIsOneAlone) {
    const NodeRef folder = folderOf("");
    EXPECT_EQ(folder->onlyChild(), nullptr);
    FSNode& first = folder->append("a", 0);
    EXPECT_EQ(folder->onlyChild(), &first);
    folder->append("b", 0);
    EXPECT_EQ(folder->onlyChild(), nullptr);
}

TEST(FSNode, childrenKeepTheOrderInWhichTheyWereAppended) {
    const NodeRef folder = folderOf("zabcy");
    EXPECT_EQ(namesIn(*folder), "zabcy");
    EXPECT_EQ(folder->children().size(), 5U);
    EXPECT_EQ(folder->firstChild()->name(), "z");
    for (const FSNode& child : folder->children()) {
        EXPECT_EQ(child.parent(), folder.get());
        EXPECT_FALSE(child.isRemoved());
    }
}

TEST(FSNode, anyChildCanBeRemovedAndAnotherAppendedBehindTheRest) {
    const std::string all = "abc";
    for (std::size_t count = 1; count <= all.size(); ++count) {
        for (const char& name : all.substr(0, count)) {
            const NodeRef folder = folderOf(all.substr(0, count));
            FSNode& child = childCalled(folder, {&name, 1});
            folder->remove(child);
            std::string left = all.substr(0, count);
            std::erase(left, name);
            EXPECT_EQ(namesIn(*folder), left);
            EXPECT_TRUE(child.isRemoved());
            EXPECT_EQ(child.nextSibling(), nullptr);
            folder->append("n", 0);
            EXPECT_EQ(namesIn(*folder), left + "n");
            folder->append(child);
            EXPECT_EQ(namesIn(*folder), left + "n" + name);
            EXPECT_FALSE(child.isRemoved());
        }
    }
}

TEST(FSNode, everyChildCanBeRemovedInEveryOrder) {
    std::string order = "abcd";
    do {
        const NodeRef folder = folderOf("abcd");
        std::string left = "abcd";
        for (const char& name : order) {
            folder->remove(childCalled(folder, {&name, 1}));
            std::erase(left, name);
            ASSERT_EQ(namesIn(*folder), left) << order;
        }
        EXPECT_TRUE(folder->children().empty());
        folder->append("e", 0);
        EXPECT_EQ(namesIn(*folder), "e");
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST(FSNode, removingTwiceRemovesOnce) {
    const NodeRef folder = folderOf("abc");
    FSNode& child = childCalled(folder, "b");
    folder->remove(child);
    folder->remove(child);
    EXPECT_EQ(namesIn(*folder), "ac");
}

TEST(FSNode, removedNodeMayBeAppendedElsewhere) {
    const NodeRef top = folderOf("ab");
    FSNode& from = childCalled(top, "a");
    FSNode& to = childCalled(top, "b");
    FSNode& moved = from.append("m", 0);
    moved.append("below", 0);
    from.remove(moved);
    EXPECT_EQ(&to.append(moved), &moved);
    EXPECT_TRUE(from.children().empty());
    EXPECT_EQ(moved.firstChild()->fullPath(), "/r/b/m/below");
    EXPECT_FALSE(moved.isRemoved());
}

TEST(FSNode, removingAForeignNodeChangesNothing) {
    const Tree tree("/home");
    const NodeRef stranger = FSNode::make("a", 0);
    FSNode& own = tree.root->append("a", 0);
    FSNode& grandchild = own.append("a", 0);
    tree.root->remove(*stranger);
    tree.root->remove(grandchild);
    EXPECT_EQ(tree.root->onlyChild(), &own);
    EXPECT_EQ(own.onlyChild(), &grandchild);
    EXPECT_EQ(stranger->parent(), nullptr);
    EXPECT_FALSE(stranger->isRemoved());
}

TEST(FSNodeDeathTest, onlyARemovedNodeOfTheSameTreeIsAppended) {
    const NodeRef folder = folderOf("a");
    const NodeRef other = folderOf("b");
    FSNode& removed = other->children().front();
    EXPECT_DEATH(folder->append(*folder->firstChild()), "removed");
    EXPECT_DEATH(folder->append(*other), "removed");
    other->remove(removed);
    EXPECT_DEATH(folder->append(removed), "removed");
}

TEST(FSNode, namesOfEveryLengthAreKeptWhole) {
    const NodeRef top = FSNode::make("", 0);
    for (std::size_t length = 1; length <= 300; ++length)
        top->append(std::string(length, static_cast<char>('a' + length % 26)), static_cast<double>(length));
    std::size_t length = 0;
    for (const FSNode& child : top->children()) {
        ++length;
        ASSERT_EQ(child.name(), std::string(length, static_cast<char>('a' + length % 26)));
        ASSERT_EQ(child.lastModified, static_cast<double>(length));
    }
    EXPECT_EQ(length, 300U);
}

TEST(FSNode, longestNameIsKeptWhole) {
    const std::string name(FSNode::maximumNameLength, 'x');
    const NodeRef top = FSNode::make("", 0);
    for (int i = 0; i < 10; ++i) top->append(name, 0);  // more than one chunk of them
    for (const FSNode& child : top->children()) EXPECT_EQ(child.name(), name);
    EXPECT_DEATH(top->append(name + "x", 0), "too long");
}

TEST(FSNode, figuresDoNotTouchEachOther) {
    const NodeRef node = FSNode::make("name", 3);
    const std::int64_t files = (std::int64_t{1} << 37) - 1;
    node->fileCount = files;
    node->reclaimCategory = 255;
    node->setUnreadable();
    node->size = -1;
    node->ownFileBytes = -1;
    EXPECT_EQ(node->fileCount, files);
    EXPECT_EQ(node->reclaimCategory, 255);
    EXPECT_EQ(node->name(), "name");
    EXPECT_TRUE(node->isUnreadable());
    EXPECT_TRUE(node->isDirectory());
    EXPECT_EQ(node->lastModified, 3);
    node->fileCount = 0;
    EXPECT_EQ(node->reclaimCategory, 255);
    EXPECT_EQ(node->name(), "name");
    EXPECT_FALSE(FSNode::make("", 0, false)->isDirectory());
}

TEST(FSNode, threeHundredThousandChildrenAreAppendedAndRemovedOneByOne) {
    constexpr std::size_t count = 300'000;
    const NodeRef folder = FSNode::make("/r", 0);
    std::vector<FSNode*> nodes;
    for (std::size_t i = 0; i < count; ++i) nodes.push_back(&folder->append("f" + std::to_string(i), 0));
    EXPECT_EQ(folder->children().size(), count);
    std::size_t at = 0;
    for (const FSNode& child : folder->children()) ASSERT_EQ(&child, nodes[at++]);
    // From the back, where a search from the front would take half a minute.
    for (std::size_t i = count; i > 1; --i) folder->remove(*nodes[i - 1]);
    EXPECT_EQ(folder->onlyChild(), nodes.front());
}

TEST(FSNode, releasesAndNamesFiftyThousandLevelsWithoutRecursion) {
    NodeRef top = FSNode::make("", 0);
    FSNode* at = &top->append("/r", 0);
    for (int i = 0; i < 50'000; ++i) at = &at->append("d", 0);
    EXPECT_EQ(at->fullPath().size(), 2U + 2U * 50'000U);
    at->ownFileBytes = 7;
    EXPECT_EQ(rollUpSizes(*top), 7);
    EXPECT_EQ(top->children().front().size, 7);
    // A small stack, which recursion would overflow.
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
    FSNode& a = tree.root->append("a", 0);
    FSNode& b = tree.root->append("b", 0);
    a.ownFileBytes = 10;
    b.ownFileBytes = 100;
    b.append("c", 0).ownFileBytes = 1000;
    EXPECT_EQ(rollUpSizes(*tree.top), 1111);
    EXPECT_EQ(tree.top->size, 1111);
    EXPECT_EQ(tree.root->size, 1111);
    EXPECT_EQ(a.size, 10);
    EXPECT_EQ(b.size, 1100);
    EXPECT_EQ(b.children().front().size, 1000);
    EXPECT_EQ(rollUpSizes(*tree.top), 1111) << "a second roll-up must not add to the first";
}

TEST(RollUp, stopsAtTheNodeThatItWasAskedFor) {
    const Tree tree("/r");
    FSNode& a = tree.root->append("a", 0);
    tree.root->append("b", 0).ownFileBytes = 100;
    a.append("c", 0).ownFileBytes = 10;
    a.ownFileBytes = 1;
    EXPECT_EQ(rollUpSizes(a), 11);
    EXPECT_EQ(tree.root->size, 0);
    EXPECT_EQ(a.nextSibling()->size, 0);
}

TEST(RollUp, leavesOutWhatWasRemoved) {
    const Tree tree("/r");
    FSNode& a = tree.root->append("a", 0);
    tree.root->append("b", 0).ownFileBytes = 100;
    a.ownFileBytes = 1;
    tree.root->remove(a);
    EXPECT_EQ(rollUpSizes(*tree.top), 100);
}

TEST(RollUp, emptyTreeIsZero) {
    EXPECT_EQ(rollUpSizes(*FSNode::make("", 0)), 0);
}

}  // namespace
}  // namespace zelk
