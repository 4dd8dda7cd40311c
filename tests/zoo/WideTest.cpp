// SPDX-License-Identifier: MIT
// Folders so large that several threads read one of them.
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "zoo/Scan.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk::zoo {

namespace {

/// The names of the children of the folder `name`, wherever it is, in their order.
std::vector<std::string> childrenOf(const Scan& its, std::string_view name) {
    std::vector<std::string> names;
    for (const FSNode* const node : nodesBelow(*its.root)) {
        if (node->name() != name && !node->name().ends_with('/' + std::string(name))) continue;
        for (const FSNode& child : node->children()) names.emplace_back(child.name());
    }
    return names;
}

/// What a directory stream delivers, which is what a survey does.
std::vector<std::string> foldersIn(const std::string& path) {
    std::vector<std::string> names;
    for (const auto& one : std::filesystem::directory_iterator(path))
        if (std::filesystem::is_directory(one.symlink_status())) names.push_back(one.path().filename());
    return names;
}

}  // namespace

TEST(WideFolder, isTheSameWithAnyNumberOfWorkers) {
    const TempFolder temp(TempFolder::Medium::memory);
    makeWide(temp / "root/wide", 300'000, 3'000);
    for (int file = 0; file < 300'000; file += 1'000) {
        makeFile(temp / "root/wide/folder" + std::to_string(file / 100) + "/file", 5'000);
        makeFile(temp / "root/wide/" + std::to_string(file) + ".full", 9'000);
    }
    const std::vector<std::string> folders = foldersIn(temp / "root/wide");
    ASSERT_EQ(folders.size(), 3'000U);
    const Count count = countedIndependently(temp / "root");
    EXPECT_EQ(count.bytes, count.duBytes);
    for (const int workers : {1, 2, 8}) {
        SCOPED_TRACE(workers);
        const Scan its = scan({temp / "root"}, workers);
        expectConsistent(its);
        EXPECT_EQ(its.stats.totalBytes, count.bytes);
        EXPECT_EQ(its.stats.filesScanned, 300'600);
        EXPECT_EQ(its.stats.dirsScanned, 3'002);
        EXPECT_EQ(its.stats.blockedPaths, 0);
        EXPECT_EQ(childrenOf(its, "wide"), folders);
    }
}

// Two at once, and one that a single worker comes across on its way down.
TEST(WideFolder, mayBeOneOfSeveralAtAnyDepth) {
    const TempFolder temp(TempFolder::Medium::memory);
    for (const char* const place : {"root/a", "root/b", "root/1/2/3/4/5/6/7/deep"}) {
        makeWide(temp / place, 5'000, 50);
        makeHardLinks(temp / place, temp / "outside");
        makeLinks(temp / place, temp / "outside/links");
        std::filesystem::remove_all(temp / "outside");
    }
    const Count count = countedIndependently(temp / "root");
    EXPECT_EQ(count.bytes, count.duBytes);
    for (const int workers : {1, 2, 8}) {
        for (int round = 0; round < 5; ++round) {
            SCOPED_TRACE(workers);
            const Scan its = scan({temp / "root"}, workers);
            expectConsistent(its);
            EXPECT_EQ(its.stats.totalBytes, count.bytes);
            EXPECT_EQ(its.stats.filesScanned, count.files);
            EXPECT_EQ(its.stats.dirsScanned, count.folders);
            for (const char* const name : {"a", "b", "deep"})
                EXPECT_EQ(childrenOf(its, name),
                          foldersIn(temp / (name[1] == 0 ? "root/" : "root/1/2/3/4/5/6/7/") + name));
        }
    }
}

TEST(WideFolder, losesOnlyWhatVanishes) {
    const TempFolder temp(TempFolder::Medium::memory);
    constexpr int vanishing = 20'000;
    makeWide(temp / "root", 10'000, 1'000);
    for (int file = 0; file < vanishing; ++file) makeFile(temp / "root/vanishing" + std::to_string(file));
    std::atomic<int> removed = 0;
    std::atomic<int> rounds = 0;
    std::thread remover([&] {
        for (; removed < vanishing; ++removed) {
            while (removed == vanishing / 2 && rounds == 0) std::this_thread::yield();
            std::filesystem::remove(temp / "root/vanishing" + std::to_string(removed));
        }
    });
    do {
        const int before = removed;
        const Scan its = scan({temp / "root"}, rounds % 2 == 0 ? 2 : 8);
        const int after = removed;
        expectConsistent(its);
        EXPECT_EQ(its.stats.blockedPaths, 0);
        EXPECT_EQ(its.stats.dirsScanned, 1'001);
        // One may be gone and not yet counted.
        EXPECT_GE(its.stats.filesScanned, 10'000 + vanishing - after - 1);
        EXPECT_LE(its.stats.filesScanned, 10'000 + vanishing - before);
        ++rounds;
    } while (removed < vanishing);
    remover.join();
    EXPECT_GT(rounds.load(), 1);
    EXPECT_EQ(scan({temp / "root"}, 8).stats.filesScanned, 10'000);
}

}  // namespace zelk::zoo
