// SPDX-License-Identifier: MIT
#include "cli/Survey.h"

#include <gmock/gmock.h>
#include <signal.h>
#include <unistd.h>

#include <filesystem>
#include <thread>

#include "SampleSurvey.h"
#include "fakes/FakePlatform.h"
#include "platform/posix/ThreadCount.h"
#include "state/SurveyHistory.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk::cli {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int64_t megabyte = 1'000'000;

TEST(Roots, areAbsoluteNormalizedAndNamedOnce) {
    EXPECT_THAT(namedRoots({"/a//b/", "c", "./c/.", "/a/b", "."}, "/w"), ElementsAre("/a/b", "/w/c", "/w"));
    EXPECT_THAT(namedRoots({"/"}, "/w"), ElementsAre("/"));
    EXPECT_THAT(namedRoots({"c", "-"}, "/"), ElementsAre("/c", "/-"));
    EXPECT_THAT(namedRoots({"..a", "b..", "..."}, "/w"), ElementsAre("/w/..a", "/w/b..", "/w/..."));
}

TEST(Roots, areResolvedOnTheDiskOnlyWhereTheyGoUp) {
    const zoo::TempFolder temp;
    zoo::makeFolder(temp / "real/inner");
    zoo::makeFolder(temp / "other");
    std::filesystem::create_directory_symlink(temp / "real/inner", temp / "link");
    const std::string top = std::filesystem::canonical(temp.path()).string();
    EXPECT_THAT(namedRoots({"link"}, top), ElementsAre(top + "/link"));
    std::filesystem::create_directory_symlink(temp / "real/inner", temp / "..link");
    EXPECT_THAT(namedRoots({"..link"}, top), ElementsAre(top + "/..link"));
    EXPECT_THAT(namedRoots({"link/.."}, top), ElementsAre(top + "/real"));
    EXPECT_THAT(namedRoots({"../real"}, top + "/other"), ElementsAre(top + "/real"));
    EXPECT_THAT(namedRoots({"missing/../x"}, top), ElementsAre(top + "/missing/../x"));
}

/// Whoever runs the tests may ignore signals, as a shell has it for what it runs in the background.
struct HeardSignals {
    HeardSignals() {
        for (const int number : {SIGINT, SIGTERM, SIGHUP}) ::signal(number, SIG_DFL);
    }
};

class SurveyRun : public testing::Test {
protected:
    SurveyRun() {
        ::setenv("ZELK_WORKERS", "4", 1);
        files.addFolder(locations.homePath);
    }
    ~SurveyRun() override {
        EXPECT_TRUE(drainThreads(60));
        ::unsetenv("ZELK_WORKERS");
    }

    std::optional<Survey> run(const std::vector<std::string>& roots) {
        return runSurvey(storage, roots, end, [this](const update::Progress& progress) { told.push_back(progress); });
    }

    void record(const SizeByPath& folders, TimePoint date, std::int64_t total = 0) {
        SurveyRecord record;
        record.date = date;
        record.totalScanned = total;
        record.folders = folders;
        SurveyHistory(files, locations).appendHistory(record);
    }

    fakes::FakeClock clock;
    fakes::FakeDirectoryService disk;
    fakes::FakeFileManager files;
    fakes::FakeLocations locations;
    const Storage storage{clock, disk, files, locations};
    const HeardSignals heard;
    EndRequest end;
    std::vector<update::Progress> told;
};

TEST_F(SurveyRun, findsWhatTheEngineAndTheClassifierFind) {
    disk.file("/home/me/a.mp4", 100);
    disk.file("/home/me/p/node_modules/b", 200);
    disk.directory("/home/me/closed");
    disk.unreadable("/home/me/closed");
    const std::optional<Survey> survey = run({"/home/me"});
    ASSERT_TRUE(survey);
    EXPECT_EQ(survey->tree->size, 300);
    EXPECT_EQ(survey->stats.totalBytes, 300);
    EXPECT_EQ(survey->stats.filesScanned, 2);
    EXPECT_EQ(survey->stats.blockedPaths, 1);
    EXPECT_EQ(survey->insights.topFiles.size(), 2U);
    ASSERT_EQ(survey->reclaimables.size(), 1U);
    EXPECT_EQ(survey->reclaimables[0].path, "/home/me/p/node_modules");
    EXPECT_EQ(survey->date, clock.now());
    EXPECT_FALSE(survey->growth);
}

TEST_F(SurveyRun, countsHardLinksOnceInTheWholeTree) {
    disk.file("/a/one", 4096);
    disk.directory("/b");
    disk.hardLink("/a/two", "/a/one");
    disk.hardLink("/b/three", "/a/one");
    const std::optional<Survey> survey = run({"/a", "/b"});
    ASSERT_TRUE(survey);
    EXPECT_EQ(survey->stats.totalBytes, 4096);
    EXPECT_EQ(survey->stats.filesScanned, 3);
}

TEST_F(SurveyRun, tellsItsProgress) {
    for (int folder = 0; folder < 5; ++folder)
        for (int file = 0; file < 20'000; ++file)
            disk.file("/a/" + std::to_string(folder) + "/" + std::to_string(file), 1);
    ASSERT_TRUE(run({"/a"}));
    ASSERT_FALSE(told.empty());
    EXPECT_GE(told.back().scanned, 20'000);
    EXPECT_TRUE(told.back().currentPath.starts_with("/a/"));
}

TEST_F(SurveyRun, writesNothing) {
    disk.file("/home/me/a", 100 * megabyte);
    record({{"/home/me", 30 * megabyte}}, 1'700'000'000);
    const std::size_t before = files.calls().size();
    ASSERT_TRUE(run({"/home/me"}));
    const auto calls = files.calls();
    for (std::size_t at = before; at < calls.size(); ++at) EXPECT_EQ(calls[at].operation, "read");
}

TEST_F(SurveyRun, endsAtASignal) {
    disk.file("/a/b/c", 1);
    disk.hold("/a/b");
    std::thread interrupter([&] {
        disk.waitUntilHeld("/a/b");
        ::kill(::getpid(), SIGINT);
    });
    EXPECT_FALSE(run({"/a"}));
    EXPECT_EQ(end.signal(), SIGINT);
    interrupter.join();
    disk.release();
}

TEST_F(SurveyRun, remembersTheFirstSignal) {
    ::raise(SIGTERM);
    ::raise(SIGINT);
    EXPECT_EQ(end.signal(), SIGTERM);
    EXPECT_FALSE(run({"/a"}));
}

TEST_F(SurveyRun, refusesARootThatIsNoFolder) {
    disk.file("/a/file", 1);
    files.addFolder("/a");
    files.addFile("/a/file", {}, 1);
    EXPECT_EQ(whyNot(storage, {"/a"}), std::nullopt);
    EXPECT_EQ(whyNot(storage, {"/a", "/a/file"}), "/a/file is no folder.");
    EXPECT_EQ(whyNot(storage, {"/a/\x1B"}), "/a/\\x1B cannot be surveyed: No such file or directory.");
    const std::string longest = "/" + std::string(FSNode::maximumNameLength - 1, 'x');
    disk.directory(longest);
    disk.directory(longest + "x");
    files.addFolder(longest + "x");
    EXPECT_EQ(whyNot(storage, {longest}), std::nullopt);
    EXPECT_EQ(whyNot(storage, {longest + "x"}), longest + "x cannot be surveyed: File name too long.");
}

TEST_F(SurveyRun, tellsWhatHasGrownSinceTheLastRecordOfTheSameRoots) {
    disk.file("/home/me/Big/a", 200 * megabyte);
    disk.file("/home/me/New/a", 30 * megabyte);
    record({{"/home/me", 500}, {"/home/me/Big", 400}}, 1'600'000'000);
    record({{"/home/me", 130 * megabyte}, {"/home/me/Big", 100 * megabyte}, {"/home/me/Old", 25 * megabyte}},
           1'700'000'000, 131 * megabyte);
    record({{"/srv", 130 * megabyte}}, 1'700'000'001);
    const std::optional<Survey> survey = run({"/home/me"});
    ASSERT_TRUE(survey && survey->growth);
    EXPECT_EQ(survey->growth->since, 1'700'000'000);
    EXPECT_EQ(survey->growth->totalBefore, 131 * megabyte);
    EXPECT_THAT(survey->growth->changes.grew,
                ElementsAre(FolderChange{"/home/me", 130 * megabyte, 230 * megabyte},
                            FolderChange{"/home/me/Big", 100 * megabyte, 200 * megabyte}));
    EXPECT_THAT(survey->growth->changes.appeared, ElementsAre(FolderChange{"/home/me/New", 0, 30 * megabyte}));
    EXPECT_THAT(survey->growth->changes.gone, ElementsAre(FolderChange{"/home/me/Old", 25 * megabyte, 0}));
}

TEST(GrowthSince, needsARecordOfTheSameRoots) {
    Survey survey = emptySurvey();
    addFolder(addFolder(*survey.tree, "/home/me"), "x", 50 * megabyte, 1);
    addFolder(*survey.tree, "/srv", 50 * megabyte, 1);
    settle(survey);
    const auto growth = [&](const std::optional<SizeByPath>& folders) {
        SurveyRecord record;
        record.folders = folders;
        return growthSince({record}, *survey.tree).has_value();
    };
    EXPECT_TRUE(growth(SizeByPath{{"/home/me", 1}, {"/srv", 1}}));
    EXPECT_TRUE(growth(SizeByPath{{"/home/me", 1}, {"/home/me/y", 1}, {"/srv", 1}, {"/srv/a/b", 1}}));
    EXPECT_FALSE(growth(SizeByPath{{"/home/me", 1}}));
    EXPECT_FALSE(growth(SizeByPath{{"/home/me", 1}, {"/srv", 1}, {"/var", 1}}));
    EXPECT_FALSE(growth(SizeByPath{{"/home", 1}, {"/home/me", 1}, {"/srv", 1}}));
    EXPECT_FALSE(growth(SizeByPath{{"/", 1}, {"/home/me", 1}, {"/srv", 1}}));
    EXPECT_FALSE(growth(SizeByPath{{"/home/me", 1}, {"/home/me-too", 1}, {"/srv", 1}}));
    EXPECT_FALSE(growth(SizeByPath{}));
    EXPECT_FALSE(growth(std::nullopt));
    EXPECT_FALSE(growthSince({}, *survey.tree));
}

TEST(GrowthSince, ofTheWholeDriveComparesItsFolders) {
    Survey survey = emptySurvey();
    addFolder(addFolder(*survey.tree, "/"), "usr", 90 * megabyte, 1);
    settle(survey);
    SurveyRecord record;
    record.folders = SizeByPath{{"/", 30 * megabyte}, {"/usr", 30 * megabyte}};
    const std::optional<Growth> growth = growthSince({record}, *survey.tree);
    ASSERT_TRUE(growth);
    EXPECT_EQ(growth->changes.grew.size(), 2U);

    addFolder(survey.tree->children().front(), "u", 90 * megabyte, 1);
    settle(survey);
    const std::optional<Growth> later = growthSince({record}, *survey.tree);
    ASSERT_TRUE(later) << "a folder of one letter lies in the root too";
    EXPECT_THAT(later->changes.appeared, ElementsAre(FolderChange{"/u", 0, 90 * megabyte}));
}

TEST(GrowthSince, isUnknownWhereNoFolderIsBigEnoughForARecord) {
    Survey survey = emptySurvey();
    addFolder(*survey.tree, "/a", 1, 1);
    settle(survey);
    SurveyRecord record;
    record.folders = SizeByPath{};
    EXPECT_FALSE(growthSince({record}, *survey.tree));
}

}  // namespace
}  // namespace zelk::cli
