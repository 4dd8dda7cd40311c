// SPDX-License-Identifier: MIT
// Scans a tree while another process changes it. ZELK_MUTATOR_SECONDS sets the duration.
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <string>
#include <string_view>

#include "zoo/Mutator.h"
#include "zoo/Scan.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk::zoo {

namespace {

constexpr std::int64_t canaryBytes = 64 << 20;

double secondsOfMutation() {
    const char* const given = std::getenv("ZELK_MUTATOR_SECONDS");
    return given != nullptr ? std::atof(given) : 5.0;
}

/// Names that no scan of the root may see: in the folder that links lead to, in limbo, and beside the root.
void makeCanaries(const TempFolder& temp) {
    allocateFile(temp / "canary-file.iso", canaryBytes);
    for (const char* const place : {"canary", "limbo", "."}) {
        const std::string folder = temp / place;
        makeFolder(folder);
        ASSERT_TRUE(folder.ends_with("/.") ||
                    link((temp / "canary-file.iso").c_str(), (folder + "/canary-file.iso").c_str()) == 0);
        makeFile(folder + "/canary-folder/canary-inner", 1);
        // A walker that strays here finds the names that it expects.
        for (const char* const name : {"/d0", "/d1"}) {
            makeFile(folder + name + "/canary-inner", 100000);
            makeFile(folder + name + "/d0/canary-inner", 100000);
        }
    }
}

void expectNothingOfTheCanary(const Scan& its, const std::string& root) {
    for (const FSNode* const node : nodesBelow(*its.root)) {
        ASSERT_FALSE(node->name().starts_with("canary")) << node->fullPath();
        ASSERT_NE(node->name(), "limbo");
        ASSERT_EQ(node->fullPath().compare(0, root.size(), root), 0);
    }
    for (const LargeFile& file : its.insights.topFiles)
        ASSERT_EQ(file.path.find("canary"), std::string::npos) << file.path;
    ASSERT_TRUE(its.insights.diskImages.empty());
    // Everything that the mutator creates is far smaller than one canary.
    ASSERT_LT(its.stats.totalBytes, canaryBytes);
}

}  // namespace

TEST(Mutation, survivesTreeChangedWhileWalking) {
    const TempFolder temp(TempFolder::Medium::memory);
    const std::string root = temp / "root";
    makeFolder(root);
    makeCanaries(temp);
    const Count canary = countedIndependently(temp / "canary");

    std::int64_t files = 0;
    std::uint64_t rounds = 0;
    Mutator::Done done;
    {
        const Mutator mutator(root, temp / "canary", temp / "limbo", 1);
        const auto start = std::chrono::steady_clock::now();
        const std::chrono::duration<double> length(secondsOfMutation());
        while (rounds < 20 || std::chrono::steady_clock::now() - start < length) {
            ASSERT_TRUE(mutator.waitForMore(50)) << "the mutator died";
            const Scan its = scan({root}, rounds % 3 == 0 ? 1 : rounds % 3 == 1 ? 2 : 8);
            expectConsistent(its);
            expectNothingOfTheCanary(its, root);
            ASSERT_EQ(its.root->children().size(), 1U);
            ASSERT_GE(its.stats.dirsScanned, 1);
            if (HasFailure()) return;
            files += its.stats.filesScanned;
            ++rounds;
        }
        done = mutator.done();
    }
    RecordProperty("rounds", static_cast<int>(rounds));
    RecordProperty("acts", static_cast<int>(done.all()));
    EXPECT_GT(files, 0);
    EXPECT_GT(done.created, 0U);
    EXPECT_GT(done.renamed, 0U);
    EXPECT_GT(done.deleted, 0U);
    EXPECT_GT(done.swapped, 0U);
    EXPECT_GT(done.movedAway, 0U);
    EXPECT_EQ(countedIndependently(temp / "canary"), canary);  // otherwise the mutator itself was in there

    // After the mutator stops, the count is exact again.
    const Count count = countedIndependently(root);
    const Scan its = scan({root}, 8);
    EXPECT_EQ(its.stats.totalBytes, count.bytes);
    EXPECT_EQ(its.stats.filesScanned, count.files);
    EXPECT_EQ(its.stats.dirsScanned, count.folders);
    EXPECT_EQ(its.stats.blockedPaths, 0);
}

}  // namespace zelk::zoo
