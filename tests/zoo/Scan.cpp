// SPDX-License-Identifier: MIT
#include "zoo/Scan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>
#include <variant>

#include "fakes/Environment.h"
#include "platform/NativePlatform.h"
#include "scan/ScanEngine.h"

namespace zelk::zoo {

Scan scan(const std::vector<std::string>& roots, int workers) {
    const fakes::EnvironmentVariable setting("ZELK_WORKERS", std::to_string(workers));
    NativePlatform native;
    const auto queue = std::make_shared<UpdateQueue>();
    ScanEngine(native.platform().directories, native.platform().clock).runHere(queue, roots);
    Scan scan;
    for (ScanUpdate& update : queue->takeAll().updates) {
        if (auto* const insights = std::get_if<update::Insights>(&update)) {
            scan.insights = std::move(insights->insights);
        } else if (auto* const finished = std::get_if<update::Finished>(&update)) {
            scan.root = std::move(finished->root);
            scan.stats = std::move(finished->stats);
        }
    }
    while (!native.drain(1.0)) {
    }
    return scan;
}

std::vector<const FSNode*> nodesBelow(const FSNode& top) {
    std::vector<const FSNode*> nodes{&top};
    for (std::size_t at = 0; at < nodes.size(); ++at)
        for (const FSNode& child : nodes[at]->children()) nodes.push_back(&child);
    nodes.erase(nodes.begin());
    return nodes;
}

void expectConsistent(const Scan& scan) {
    ASSERT_TRUE(scan.root);
    const std::vector<const FSNode*> nodes = nodesBelow(*scan.root);
    std::int64_t files = 0;
    for (const FSNode* const node : nodes) {
        std::int64_t size = node->ownFileBytes;
        for (const FSNode& child : node->children()) {
            size += child.size;
            ASSERT_EQ(child.parent(), node);
        }
        ASSERT_EQ(node->size, size);
        ASSERT_GE(node->ownFileBytes, 0);
        files += node->fileCount;
    }
    EXPECT_EQ(scan.stats.filesScanned, files);
    EXPECT_EQ(scan.stats.dirsScanned + scan.stats.blockedPaths, static_cast<std::int64_t>(nodes.size()));
    EXPECT_EQ(scan.stats.totalBytes, scan.root->size);

    TypeTally all;
    for (const FileType type : allFileTypes) {
        all.bytes += scan.insights.typeTotals[type].bytes;
        all.count += scan.insights.typeTotals[type].count;
    }
    EXPECT_EQ(all, (TypeTally{scan.stats.totalBytes, scan.stats.filesScanned}));
    const auto smaller = [](const LargeFile& a, const LargeFile& b) { return a.size > b.size; };
    EXPECT_TRUE(std::is_sorted(scan.insights.topFiles.begin(), scan.insights.topFiles.end(), smaller));
    EXPECT_LE(scan.insights.topFiles.size(), 250U);
}

namespace {

std::int64_t member(std::string_view json, const std::string& name) {
    const std::size_t at = json.find('"' + name + "\": ");
    return at == std::string_view::npos ? -1 : std::atoll(json.data() + at + name.size() + 4);
}

}  // namespace

Count countedIndependently(const std::string& root) {
    const std::string command = "python3 '" ZELK_SOURCE_DIR "/tests/zoo/du_check.py' '" + root + "'";
    std::FILE* const pipe = popen(command.c_str(), "r");
    std::array<char, 4096> text{};
    const std::size_t length = std::fread(text.data(), 1, text.size() - 1, pipe);
    EXPECT_EQ(pclose(pipe), 0) << command;
    const std::string json(text.data(), length);
    return {member(json, "bytes"),   member(json, "files"),     member(json, "folders"),    member(json, "blocked"),
            member(json, "duBytes"), member(json, "findFiles"), member(json, "findFolders")};
}

}  // namespace zelk::zoo
