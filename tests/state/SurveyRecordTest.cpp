// SPDX-License-Identifier: MIT
#include "state/SurveyRecord.h"

#include <gmock/gmock.h>

#include <limits>

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using testing::Pair;

constexpr std::int64_t megabyte = 1'000'000;
constexpr double hour = 3600;
constexpr std::int64_t leastNumber = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t greatestNumber = std::numeric_limits<std::int64_t>::max();

FSNode& add(FSNode& parent, std::string_view name, std::int64_t size) {
    FSNode& node = parent.append(name, 0);
    node.size = size;
    return node;
}

FSNode& add(const NodeRef& top, std::string_view name, std::int64_t size) {
    return add(*top, name, size);
}

// Big folders.

TEST(BigFolders, treeWithoutRootsHasNone) {
    const NodeRef top = FSNode::make("", 0);
    top->size = 100 * megabyte;
    EXPECT_THAT(bigFolders(*top, 20 * megabyte, 400), IsEmpty());
}

TEST(BigFolders, includesRootsButNotTop) {
    const NodeRef top = FSNode::make("", 0);
    top->size = 100 * megabyte;
    FSNode& home = add(top, "/home/me", 70 * megabyte);
    add(home, "Movies", 50 * megabyte);
    add(top, "/data", 30 * megabyte);
    EXPECT_THAT(bigFolders(*top, 20 * megabyte, 400),
                ElementsAre(Pair("/data", 30 * megabyte), Pair("/home/me", 70 * megabyte),
                            Pair("/home/me/Movies", 50 * megabyte)));
}

TEST(BigFolders, minimumIsInclusive) {
    const NodeRef top = FSNode::make("", 0);
    add(top, "/exact", 20 * megabyte);
    add(top, "/below", 20 * megabyte - 1);
    EXPECT_THAT(bigFolders(*top, 20 * megabyte, 400), ElementsAre(Pair("/exact", 20 * megabyte)));
}

TEST(BigFolders, descendsIntoSmallFolders) {
    const NodeRef top = FSNode::make("", 0);
    FSNode& folder = add(add(top, "/home", 1), "small", 1);
    add(folder, "big", 20 * megabyte);
    EXPECT_THAT(bigFolders(*top, 20 * megabyte, 400), ElementsAre(Pair("/home/small/big", 20 * megabyte)));
}

TEST(BigFolders, limitKeepsLargest) {
    const NodeRef top = FSNode::make("", 0);
    for (int i = 1; i <= 1000; ++i) add(top, "/" + std::to_string(i * 10 % 1001), 20 * megabyte + i * 10 % 1001);
    const SizeByPath folders = bigFolders(*top, 20 * megabyte, 400);
    EXPECT_EQ(folders.size(), 400u);
    for (int i = 1; i <= 1000; ++i) EXPECT_EQ(folders.contains("/" + std::to_string(i)), i > 600) << i;
}

TEST(BigFolders, breaksTiesByDepthThenPath) {
    const auto tree = [](bool forwards) {
        const NodeRef top = FSNode::make("", 0);
        FSNode& root = add(top, "/r", 50 * megabyte);
        FSNode& one = add(root, forwards ? "a" : "b", 30 * megabyte);
        FSNode& two = add(root, forwards ? "b" : "a", 30 * megabyte);
        FSNode& first = forwards ? one : two;
        FSNode& second = forwards ? two : one;
        for (const char* name : {"y", "x", "z"}) {
            add(first, name, 30 * megabyte);
            add(second, name, 30 * megabyte);
        }
        return top;
    };
    const SizeByPath expected{{"/r", 50 * megabyte},     {"/r/a", 30 * megabyte},   {"/r/b", 30 * megabyte},
                              {"/r/a/x", 30 * megabyte}, {"/r/a/y", 30 * megabyte}, {"/r/a/z", 30 * megabyte},
                              {"/r/b/x", 30 * megabyte}};
    EXPECT_EQ(bigFolders(*tree(true), 20 * megabyte, 7), expected);
    EXPECT_EQ(bigFolders(*tree(false), 20 * megabyte, 7), expected);
}

TEST(BigFolders, zeroLimitHasNone) {
    const NodeRef top = FSNode::make("", 0);
    add(top, "/home", 20 * megabyte);
    EXPECT_THAT(bigFolders(*top, 20 * megabyte, 0), IsEmpty());
}

TEST(BigFolders, chainOfFiftyThousandKeepsUppermost) {
    const NodeRef top = FSNode::make("", 0);
    FSNode* folder = &add(top, "/r", 20 * megabyte);
    for (int depth = 0; depth < 50000; ++depth) folder = &add(*folder, "folder", 20 * megabyte);
    const SizeByPath folders = bigFolders(*top, 20 * megabyte, 400);
    EXPECT_EQ(folders.size(), 400u);
    std::size_t longest = 0;
    for (const auto& [path, size] : folders) longest = std::max(longest, path.size());
    EXPECT_EQ(longest, 2 + 399 * std::string_view("/folder").size());
}

TEST(BigFolders, nestedRootsAreCountedOnce) {
    const NodeRef top = FSNode::make("", 0);
    add(add(top, "/home", 60 * megabyte), "me", 50 * megabyte);
    add(top, "/home/me", 40 * megabyte);
    add(top, "/data", 30 * megabyte);
    EXPECT_THAT(
        bigFolders(*top, 20 * megabyte, 3),
        ElementsAre(Pair("/data", 30 * megabyte), Pair("/home", 60 * megabyte), Pair("/home/me", 50 * megabyte)));
}

TEST(BigFolders, keepsNonUtf8NamesAsBytes) {
    const NodeRef top = FSNode::make("", 0);
    add(add(top, "/r", 1), "\xff", 20 * megabyte);
    EXPECT_THAT(bigFolders(*top, 20 * megabyte, 400), ElementsAre(Pair("/r/\xff", 20 * megabyte)));
}

TEST(BigFoldersDeathTest, duplicateRootAborts) {
    const NodeRef top = FSNode::make("", 0);
    add(top, "/home", 20 * megabyte);
    add(top, "/home", 20 * megabyte);
    EXPECT_DEATH(bigFolders(*top, 20 * megabyte, 400), "scan root twice");
}

// Days until the drive is full.

SurveyRecord survey(double date, std::int64_t used, std::int64_t free) {
    SurveyRecord record;
    record.date = date;
    record.used = used;
    record.free = free;
    return record;
}

TEST(DaysUntilFull, needsTwoSurveys) {
    EXPECT_EQ(daysUntilFull({}), std::nullopt);
    EXPECT_EQ(daysUntilFull({survey(0, 100, 100)}), std::nullopt);
}

TEST(DaysUntilFull, fourHoursGiveNoAnswer) {
    EXPECT_EQ(daysUntilFull({survey(0, 100, 100), survey(4 * hour, 200, 100)}), std::nullopt);
    EXPECT_EQ(daysUntilFull({survey(0, 100, 100), survey(4.8 * hour, 200, 100)}), std::nullopt);
}

TEST(DaysUntilFull, fiveHoursGiveAnswer) {
    EXPECT_EQ(daysUntilFull({survey(0, 100, 100), survey(5 * hour, 200, 1000)}), 2);
    EXPECT_EQ(daysUntilFull({survey(0, 100, 100), survey(4.8 * hour + 1, 200, 1000)}), 2);
}

TEST(DaysUntilFull, flatOrFallingUseGivesNoAnswer) {
    std::vector<SurveyRecord> history;
    for (int day = 0; day < 30; ++day) history.push_back(survey(day * secondsPerDay, 1000 - day, 100));
    EXPECT_EQ(daysUntilFull(history), std::nullopt);
    EXPECT_EQ(daysUntilFull({survey(0, 100, 100), survey(secondsPerDay, 100, 100)}), std::nullopt);
}

TEST(DaysUntilFull, rateSpansFirstToLastRecord) {
    EXPECT_EQ(daysUntilFull({survey(0, 100, 0), survey(secondsPerDay, 900, 0), survey(10 * secondsPerDay, 200, 1000)}),
              100);
}

TEST(DaysUntilFull, truncatesDays) {
    EXPECT_EQ(daysUntilFull({survey(0, 0, 0), survey(secondsPerDay, 10, 99)}), 9);
    EXPECT_EQ(daysUntilFull({survey(0, 0, 0), survey(secondsPerDay, 10, 9)}), 0);
}

TEST(DaysUntilFull, noFreeSpaceGivesNoAnswer) {
    EXPECT_EQ(daysUntilFull({survey(0, 0, 100), survey(secondsPerDay, 10, 0)}), std::nullopt);
    EXPECT_EQ(daysUntilFull({survey(0, 0, 100), survey(secondsPerDay, 10, -5)}), std::nullopt);
    EXPECT_EQ(daysUntilFull({survey(0, 0, 0), survey(secondsPerDay, 1, 1)}), 1);
}

TEST(DaysUntilFull, clockThatWentBackGivesNoAnswer) {
    EXPECT_EQ(daysUntilFull({survey(secondsPerDay, 0, 100), survey(0, 10, 100)}), std::nullopt);
}

TEST(DaysUntilFull, survivesExtremeFigures) {
    EXPECT_EQ(daysUntilFull({survey(0, leastNumber, 0), survey(secondsPerDay, greatestNumber, greatestNumber)}), 0);
    EXPECT_EQ(daysUntilFull({survey(0, greatestNumber, 0), survey(secondsPerDay, leastNumber, greatestNumber)}),
              std::nullopt);
    EXPECT_EQ(daysUntilFull({survey(0, 0, 0), survey(secondsPerDay, 1, greatestNumber - 1023)}), greatestNumber - 1023);
}

TEST(DaysUntilFull, overflowGivesNoAnswer) {
    EXPECT_EQ(daysUntilFull({survey(0, 0, 0), survey(secondsPerDay, 1, greatestNumber)}), std::nullopt);
    EXPECT_EQ(daysUntilFull({survey(0, 0, 0), survey(1e300, 1, greatestNumber)}), std::nullopt);
}

TEST(DaysUntilFull, survivesInvalidDates) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double first : {0.0, nan, infinity, -infinity, 1e308, -1e308}) {
        for (const double last : {nan, infinity, -infinity, 1e308, -1e308}) {
            EXPECT_EQ(daysUntilFull({survey(first, 0, 0), survey(last, 1000, 1000)}), std::nullopt)
                << first << " " << last;
        }
    }
}

// Changes between two surveys.

SurveyRecord withFolders(std::optional<SizeByPath> folders) {
    SurveyRecord record;
    record.folders = std::move(folders);
    return record;
}

FolderChanges changes(SizeByPath before, SizeByPath now) {
    return folderChanges({withFolders(std::move(before)), withFolders(std::move(now))}).value();
}

TEST(ChangedFolders, needTwoSurveysWithFolders) {
    EXPECT_EQ(folderChanges({}), std::nullopt);
    EXPECT_EQ(folderChanges({withFolders(SizeByPath{})}), std::nullopt);
    EXPECT_EQ(folderChanges({withFolders(std::nullopt), withFolders(std::nullopt), withFolders(SizeByPath{})}),
              std::nullopt);
    EXPECT_EQ(folderChanges({withFolders(SizeByPath{}), withFolders(SizeByPath{})}), FolderChanges{});
}

TEST(ChangedFolders, skipSurveysWithoutFolders) {
    const auto found =
        folderChanges({withFolders(SizeByPath{{"/first", 1}}), withFolders(SizeByPath{{"/old", 1}}),
                       withFolders(std::nullopt), withFolders(SizeByPath{{"/new", 2}}), withFolders(std::nullopt)});
    ASSERT_TRUE(found);
    EXPECT_THAT(found->appeared, ElementsAre(FolderChange{"/new", 0, 2}));
    EXPECT_THAT(found->gone, ElementsAre(FolderChange{"/old", 1, 0}));
}

TEST(ChangedFolders, growthCountsFromFiftyMillionBytes) {
    const FolderChanges found = changes({{"/less", 30 * megabyte}, {"/more", 30 * megabyte}},
                                        {{"/less", 30 * megabyte + 49'999'999}, {"/more", 80 * megabyte}});
    EXPECT_THAT(found.grew, ElementsAre(FolderChange{"/more", 30 * megabyte, 80 * megabyte}));
    EXPECT_THAT(found.appeared, IsEmpty());
    EXPECT_THAT(found.gone, IsEmpty());
}

TEST(ChangedFolders, ignoreShrinkage) {
    EXPECT_EQ(changes({{"/a", 900 * megabyte}}, {{"/a", 20 * megabyte}}), FolderChanges{});
}

TEST(ChangedFolders, sortGrownByGrowth) {
    const FolderChanges found = changes({{"/a", 0}, {"/b", 900 * megabyte}, {"/c", 0}},
                                        {{"/a", 60 * megabyte}, {"/b", 970 * megabyte}, {"/c", 80 * megabyte}});
    EXPECT_THAT(found.grew,
                ElementsAre(FolderChange{"/c", 0, 80 * megabyte}, FolderChange{"/b", 900 * megabyte, 970 * megabyte},
                            FolderChange{"/a", 0, 60 * megabyte}));
}

TEST(ChangedFolders, sortAppearedAndGoneBySize) {
    const FolderChanges found =
        changes({{"/gone", 20}, {"/vanished", 40}, {"/lost", 30}}, {{"/a", 2}, {"/b", 4}, {"/c", 3}});
    EXPECT_THAT(found.appeared,
                ElementsAre(FolderChange{"/b", 0, 4}, FolderChange{"/c", 0, 3}, FolderChange{"/a", 0, 2}));
    EXPECT_THAT(found.gone, ElementsAre(FolderChange{"/vanished", 40, 0}, FolderChange{"/lost", 30, 0},
                                        FolderChange{"/gone", 20, 0}));
}

TEST(ChangedFolders, breakTiesByPath) {
    const FolderChanges found = changes({{"/z", 5}, {"/y", 5}, {"/grew2", 0}, {"/grew1", 1}},
                                        {{"/b", 4}, {"/a", 4}, {"/grew2", 50'000'000}, {"/grew1", 50'000'001}});
    EXPECT_THAT(found.appeared, ElementsAre(FolderChange{"/a", 0, 4}, FolderChange{"/b", 0, 4}));
    EXPECT_THAT(found.gone, ElementsAre(FolderChange{"/y", 5, 0}, FolderChange{"/z", 5, 0}));
    EXPECT_THAT(found.grew, ElementsAre(FolderChange{"/grew1", 1, 50'000'001}, FolderChange{"/grew2", 0, 50'000'000}));
}

TEST(ChangedFolders, surviveExtremeFigures) {
    const FolderChanges found = changes({{"/down", greatestNumber}, {"/half", -1}, {"/up", leastNumber}},
                                        {{"/down", leastNumber}, {"/half", greatestNumber}, {"/up", greatestNumber}});
    EXPECT_THAT(found.grew, ElementsAre(FolderChange{"/up", leastNumber, greatestNumber},
                                        FolderChange{"/half", -1, greatestNumber}));
}

}  // namespace
}  // namespace zelk
