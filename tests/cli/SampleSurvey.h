// SPDX-License-Identifier: MIT
// Surveys made by hand, and what is written of them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "cli/Output.h"
#include "cli/Survey.h"
#include "scan/ScanEngine.h"

namespace zelk::cli {

inline FSNode& addFolder(FSNode& above, std::string_view name, std::int64_t bytes = 0, std::int64_t files = 0) {
    FSNode& folder = above.append(name, 1'750'000'000);
    folder.ownFileBytes = bytes;
    folder.fileCount = files;
    return folder;
}

/// Sums it up and counts it, as a finished survey is.
inline void settle(Survey& survey) {
    survey.stats.totalBytes = rollUpSizes(*survey.tree);
    survey.stats.filesScanned = survey.stats.dirsScanned = survey.stats.blockedPaths = 0;
    survey.stats.roots.clear();
    for (const FSNode& root : survey.tree->children()) survey.stats.roots.emplace_back(root.name());
    std::vector<const FSNode*> pending{survey.tree.get()};
    while (!pending.empty()) {
        const FSNode& folder = *pending.back();
        pending.pop_back();
        survey.stats.filesScanned += folder.fileCount;
        if (folder.isUnreadable())
            ++survey.stats.blockedPaths;
        else if (&folder != survey.tree.get())
            ++survey.stats.dirsScanned;
        for (const FSNode& child : folder.children()) pending.push_back(&child);
    }
}

inline Survey emptySurvey() {
    Survey survey;
    survey.tree = FSNode::make("", 1'750'000'000);
    survey.date = 1'750'000'000.75;
    return survey;
}

/// "/home/me" with three folders and two files.
inline Survey smallSurvey() {
    Survey survey = emptySurvey();
    FSNode& home = addFolder(*survey.tree, "/home/me", 500'000, 2);
    FSNode& music = addFolder(home, "Music", 1'000'000, 1);
    addFolder(music, "Old", 2'000'000, 1200);
    addFolder(home, "Docs", 6'500'000, 10);
    addFolder(home, "closed").setUnreadable();
    settle(survey);
    return survey;
}

/// What `write` writes.
template <class Write>
std::string written(Write write) {
    std::string bytes;
    Output output([&](std::string_view piece) {
        bytes += piece;
        return 0;
    });
    write(output);
    EXPECT_EQ(output.finish(), 0);
    return bytes;
}

}  // namespace zelk::cli
