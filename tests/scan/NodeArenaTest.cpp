// SPDX-License-Identifier: MIT
#include "scan/NodeArena.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "fakes/HeapInUse.h"
#include "scan/FSNode.h"

namespace zelk {
namespace {

/// An arena that is released with this.
class HeldArena {
public:
    HeldArena() { arena_.retain(); }
    ~HeldArena() { arena_.release(); }
    NodeArena* operator->() const { return &arena_; }
    NodeArena& operator*() const { return arena_; }

private:
    NodeArena& arena_ = NodeArena::make();
};

TEST(NodeArena, everythingAllocatedIsAlignedApartFromTheRestAndLeadsToItsArena) {
    const HeldArena arena;
    NodeArena::Space space(*arena);
    std::map<std::uintptr_t, std::size_t> taken;
    for (std::size_t i = 0; i < 20'000; ++i) {
        const std::size_t bytes = 1 + i * 7 % 300;
        void* const place = space.allocate(bytes);
        std::memset(place, 0xEE, bytes);
        const auto address = reinterpret_cast<std::uintptr_t>(place);
        ASSERT_EQ(address % alignof(void*), 0U);
        ASSERT_EQ(&NodeArena::of(place), &*arena);
        ASSERT_TRUE(taken.emplace(address, bytes).second);
    }
    std::uintptr_t end = 0;
    for (const auto& [address, bytes] : taken) {
        ASSERT_GE(address, end);
        end = address + bytes;
    }
}

#if defined(__SANITIZE_ADDRESS__)
#define ZELK_TEST_WITH_CHECKED_ADDRESSES
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ZELK_TEST_WITH_CHECKED_ADDRESSES
#endif
#endif
#ifdef ZELK_TEST_WITH_CHECKED_ADDRESSES
TEST(NodeArenaDeathTest, sanitizerSeesWhoLeavesAName) {
    const NodeRef top = FSNode::make("", 0);
    const FSNode& node = top->append("abc", 0);
    top->append("next", 0);
    const volatile char* const name = node.name().data();
    EXPECT_EQ(name[2], 'c');
    EXPECT_DEATH(static_cast<void>(name[3]), "AddressSanitizer");
}
#endif

TEST(NodeArena, countsWhatWasAllocatedRoundedUpToTheAlignment) {
    const HeldArena arena;
    EXPECT_EQ(arena->usedBytes(), 0U);
    EXPECT_EQ(arena->takenBytes(), 0U);
    arena->ownersSpace().allocate(1);
    EXPECT_EQ(arena->usedBytes(), alignof(void*));
    arena->ownersSpace().allocate(2 * alignof(void*));
    EXPECT_EQ(arena->usedBytes(), 3 * alignof(void*));
    EXPECT_EQ(arena->takenBytes(), NodeArena::chunkBytes);
}

TEST(NodeArena, largestAllocationFillsAChunk) {
    const HeldArena arena;
    for (std::size_t count = 1; count <= 3; ++count) {
        void* const place = arena->ownersSpace().allocate(NodeArena::largestBytes);
        std::memset(place, 0xEE, NodeArena::largestBytes);
        EXPECT_EQ(&NodeArena::of(static_cast<char*>(place) + NodeArena::largestBytes - 1), &*arena);
        EXPECT_EQ(arena->takenBytes(), count * NodeArena::chunkBytes);
    }
}

TEST(NodeArena, whatDoesNotFitGoesIntoTheNextChunk) {
    const HeldArena arena;
    void* const first = arena->ownersSpace().allocate(NodeArena::largestBytes - 64);
    void* const second = arena->ownersSpace().allocate(256);
    std::memset(second, 0xEE, 256);
    EXPECT_EQ(arena->takenBytes(), 2 * NodeArena::chunkBytes);
    EXPECT_EQ(&NodeArena::of(first), &NodeArena::of(second));
}

TEST(NodeArena, spacesOfSeveralThreadsDoNotMeet) {
    const HeldArena arena;
    constexpr std::size_t each = 20'000;
    std::vector<std::thread> threads;
    std::vector<std::vector<std::size_t*>> places(4);
    for (std::size_t t = 0; t < places.size(); ++t) {
        threads.emplace_back([&, t] {
            NodeArena::Space space(*arena);
            for (std::size_t i = 0; i < each; ++i)
                places[t].push_back(new (space.allocate(sizeof(std::size_t))) std::size_t(t * each + i));
        });
    }
    for (std::thread& thread : threads) thread.join();
    for (std::size_t t = 0; t < places.size(); ++t)
        for (std::size_t i = 0; i < each; ++i) ASSERT_EQ(*places[t][i], t * each + i);
    EXPECT_EQ(arena->usedBytes(), places.size() * each * sizeof(std::size_t));
}

TEST(NodeArena, twoTreesHaveTheirOwn) {
    const NodeRef one = FSNode::make("/a", 0);
    const NodeRef two = FSNode::make("/b", 0);
    EXPECT_NE(&one->arena(), &two->arena());
    EXPECT_EQ(&one->append("x", 0).arena(), &one->arena());
    EXPECT_EQ(&two->append("x", 0).arena(), &two->arena());
}

TEST(NodeArena, referencesOfAnyNodeOfATreeAreCountedTogether) {
    NodeRef top = FSNode::make("", 0);
    NodeRef child(&top->append("a", 0));
    const NodeArena& arena = top->arena();
    EXPECT_EQ(arena.references(), 2U);
    const NodeRef copy = child;
    EXPECT_EQ(arena.references(), 3U);
    const NodeRef moved = std::move(child);
    EXPECT_EQ(arena.references(), 3U);
    top = nullptr;
    EXPECT_EQ(arena.references(), 2U);
    EXPECT_EQ(copy->fullPath(), "a");
}

/// Bytes for each of so many folders, whose names are as long as those in a home folder are.
double bytesPerFolder(std::size_t count) {
    const NodeRef top = FSNode::make("", 0);
    std::vector<FSNode*> nodes{top.get()};
    for (std::size_t i = 1; i <= count; ++i)
        nodes.push_back(&nodes[i / 8]->append("project_" + std::to_string(100'000 + i % 900'000), 0));
    return static_cast<double>(top->arena().usedBytes()) / static_cast<double>(count);
}

TEST(NodeArena, folderTakesNinetyBytesAtMost) {
    EXPECT_LE(bytesPerFolder(100'000), 90.0);
}

TEST(NodeArena, memoryPerFolderDoesNotDependOnTheirNumber) {
    const double few = bytesPerFolder(1'000);
    for (const std::size_t count : {10'000U, 100'000U, 400'000U}) EXPECT_NEAR(bytesPerFolder(count), few, 0.2) << count;
}

TEST(NodeArena, chunksTakeNoMoreThanIsUsedButForTheLast) {
    const NodeRef top = FSNode::make("", 0);
    for (int i = 0; i < 100'000; ++i) top->append("folder", 0);
    const NodeArena& arena = top->arena();
    // What is left at the end of a chunk is less than a node, and the header takes a few bytes.
    const std::size_t chunks = arena.takenBytes() / NodeArena::chunkBytes;
    EXPECT_LT(arena.takenBytes() - arena.usedBytes(), chunks * 128 + NodeArena::chunkBytes);
}

TEST(NodeArena, lastReferenceReleasesEverythingOnAnyThread) {
    const std::size_t before = fakes::heapInUse();
    NodeRef top = FSNode::make("", 0);
    for (int i = 0; i < 100'000; ++i) top->append("folder", 0);
    NodeRef last(top->firstChild());
    EXPECT_GE(fakes::heapInUse(), before + 7'000'000);
    top = nullptr;
    EXPECT_GE(fakes::heapInUse(), before + 7'000'000) << "one node keeps the whole tree";
    std::thread([released = std::move(last)]() mutable { released = nullptr; }).join();
    EXPECT_LT(fakes::heapInUse(), before + 1'000'000);
}

}  // namespace
}  // namespace zelk
