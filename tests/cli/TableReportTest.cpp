// SPDX-License-Identifier: MIT
#include "cli/TableReport.h"

#include <gmock/gmock.h>
#include <time.h>

#include <cstdint>

#include "SampleSurvey.h"
#include "cli/Figures.h"
#include "fakes/Environment.h"
#include "platform/ByteFormat.h"

namespace zelk::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string table(const Survey& survey, std::uint64_t top = 10) {
    return written([&](Output& output) { writeTable(output, survey, top); });
}

Reclaimable item(const std::string& path, std::uint64_t bytes, const std::string& category, ReclaimSafety safety) {
    return {path, path, bytes, category, safety, ReclaimMethod::trash(), 0, 1};
}

TEST(Table, tellsEverythingThatWasFound) {
    const fakes::EnvironmentVariable zone("TZ", "UTC");
    ::tzset();
    Survey survey = smallSurvey();
    survey.insights.typeTotals[FileType::video] = {2'500'000, 3};
    survey.insights.typeTotals[FileType::other] = {7'500'000, 1210};
    survey.insights.topFiles = {{"/home/me/Docs/a", 5'000'000, 0, FileType::other},
                                {"/home/me/b\x1B.mp4", 1'234'567, 0, FileType::video}};
    survey.reclaimables = {item("/home/me/p/node_modules", 800'000, "node_modules", ReclaimSafety::regenerates),
                           item("/home/me/.npm/_cacache", 1'000'000, "npm_cache", ReclaimSafety::safe)};
    survey.growth = Growth{
        1'750'000'059, 9'000'000, {{{"/home/me/Docs", 500'000, 6'500'000}}, {{"/home/me/Music", 0, 3'000'000}}, {}}};
    EXPECT_EQ(table(survey), R"(10 MB in 1,213 files and 4 folders

In /home/me
     6.5 MB   65 %  Docs
       3 MB   30 %  Music
     500 KB    5 %  (2 files)
    0 bytes    0 %  closed

Types
     7.5 MB   75 %        1,210  Other
     2.5 MB   25 %            3  Videos

Largest files
       5 MB  /home/me/Docs/a
     1.2 MB  /home/me/b\x1B.mp4

Can be had again: 1.8 MB
       1 MB  safe         npm cache
     800 KB  regenerates  node_modules

Since 2025-06-15 15:07: 1 MB more
       +6 MB     6.5 MB       /home/me/Docs
       +3 MB       3 MB  new  /home/me/Music

1 folder could not be read.
)");
}

TEST(Table, saysWhatALimitLeavesOut) {
    Survey survey = smallSurvey();
    survey.growth = Growth{0, 10'000'000, {{{"/b", 1, 61}, {"/c", 1, 51}}, {{"/a", 0, 70}}, {}}};
    const std::string text = table(survey, 2);
    EXPECT_THAT(text, HasSubstr("     6.5 MB   65 %  Docs\n       3 MB   30 %  Music\n     500 KB    5 %  (2 more)\n"));
    EXPECT_THAT(text, HasSubstr(": as much\n"));
    EXPECT_THAT(text, HasSubstr("   +70 bytes   70 bytes  new  /a\n   +60 bytes   61 bytes       /b\n  (1 more)\n"));
    EXPECT_THAT(table(survey, 3), Not(HasSubstr("(1 more)\n\n  ")));
    EXPECT_THAT(table(survey, 4), Not(HasSubstr("more)")));
}

// The history is a file that anybody may have written.
TEST(Table, tellsGrowthOfAnyNumbers) {
    Survey survey = smallSurvey();
    survey.growth = Growth{1e300, INT64_MIN, {{{"/small", 0, 5}, {"/b", INT64_MIN, 7}}, {}, {}}};
    const std::string least = table(survey);
    EXPECT_THAT(least, HasSubstr("\nSince an unknown date: " + byteText(INT64_MAX) + " more\n"));
    const std::size_t first = least.find("+" + byteText(INT64_MAX));
    EXPECT_LT(first, least.find("/b\n"));
    EXPECT_LT(least.find("/b\n"), least.find("/small\n"));
    survey.growth = Growth{-1e300, INT64_MAX, {}};
    EXPECT_THAT(table(survey), HasSubstr("Since an unknown date: " + byteText(INT64_MAX - 10'000'000) + " less\n"));
    survey.stats.totalBytes = -2;
    EXPECT_THAT(table(survey), HasSubstr(": " + byteText(INT64_MAX) + " less\n"));
}

TEST(Table, ofNoRowsHasTotalsOnly) {
    Survey survey = smallSurvey();
    survey.insights.topFiles = {{"/home/me/Docs/a", 5'000'000, 0, FileType::other}};
    EXPECT_EQ(table(survey, 0), "10 MB in 1,213 files and 4 folders\n\n1 folder could not be read.\n");
}

TEST(Table, listsAsManyFilesAsItMay) {
    Survey survey = smallSurvey();
    for (int at = 0; at < 12; ++at)
        survey.insights.topFiles.push_back({"/f" + std::to_string(at), 1000 - at, 0, FileType::other});
    EXPECT_THAT(table(survey), HasSubstr("/f9\n"));
    EXPECT_THAT(table(survey), Not(HasSubstr("/f10\n")));
    EXPECT_THAT(table(survey, UINT64_MAX), HasSubstr("/f11\n"));
}

TEST(Table, listsTheRootsIfThereAreSeveral) {
    Survey survey = smallSurvey();
    addFolder(*survey.tree, "/srv", 30'000'000, 1);
    settle(survey);
    EXPECT_THAT(table(survey), HasSubstr("\nFolders\n      30 MB   75 %  /srv\n      10 MB   25 %  /home/me\n"));
}

TEST(Table, ofAnEmptyFolderIsOneLine) {
    Survey survey = emptySurvey();
    addFolder(*survey.tree, "/empty");
    settle(survey);
    EXPECT_EQ(table(survey), "0 bytes in 0 files and 1 folder\n");
}

TEST(Table, ordersEqualSizesByName) {
    Survey survey = emptySurvey();
    FSNode& root = addFolder(*survey.tree, "/a");
    for (const char* name : {"z", "x", "y"}) addFolder(root, name, 10, 1);
    settle(survey);
    EXPECT_THAT(table(survey), HasSubstr("  x\n   10 bytes   33 %  y\n   10 bytes   33 %  z\n"));
}

TEST(Table, showsNamesVisibly) {
    Survey survey = emptySurvey();
    FSNode& root = addFolder(*survey.tree, "/\x1B[2J");
    addFolder(root, "a\nb\xFF", 10, 1);
    settle(survey);
    survey.growth = Growth{0, 20, {{}, {{"/\x1B[2J/\t", 0, 10}}, {}}};
    const std::string text = table(survey);
    EXPECT_THAT(text, HasSubstr("In /\\x1B[2J\n"));
    EXPECT_THAT(text, HasSubstr("  a\\nb\\xFF\n"));
    EXPECT_THAT(text, HasSubstr("new  /\\x1B[2J/\\t\n"));
    EXPECT_THAT(text, HasSubstr(": 10 bytes less\n"));
    for (const char c : text) EXPECT_TRUE(c == '\n' || (c >= ' ' && c <= '~'));
}

TEST(Table, roundsShares) {
    Survey survey = emptySurvey();
    FSNode& root = addFolder(*survey.tree, "/a");
    addFolder(root, "x", 996, 1);
    addFolder(root, "y", 4, 1);
    settle(survey);
    EXPECT_THAT(table(survey), HasSubstr("  996 bytes  100 %  x\n    4 bytes    0 %  y\n"));
}

TEST(Table, hasEnglishNamesForEveryType) {
    Survey survey = smallSurvey();
    for (const FileType type : allFileTypes) survey.insights.typeTotals[type] = {1, 1};
    const std::string text = table(survey);
    for (const char* name : {"Videos", "Audio", "Images", "Archives", "Disk images", "Documents", "Other"})
        EXPECT_THAT(text, HasSubstr(std::string("  ") + name + "\n"));
}

TEST(Figures, areGroupedAndCounted) {
    EXPECT_EQ(grouped(0), "0");
    EXPECT_EQ(grouped(999), "999");
    EXPECT_EQ(grouped(1000), "1,000");
    EXPECT_EQ(grouped(123456), "123,456");
    EXPECT_EQ(grouped(1234567), "1,234,567");
    EXPECT_EQ(counted(0, "file"), "0 files");
    EXPECT_EQ(counted(1, "file"), "1 file");
    EXPECT_EQ(counted(2000, "folder"), "2,000 folders");
    EXPECT_EQ(looseFiles(1), "(1 file)");
    EXPECT_EQ(looseFiles(1234), "(1234 files)");
}

}  // namespace
}  // namespace zelk::cli
