// SPDX-License-Identifier: MIT
// The homes that tools/sample_home creates contain what they promise to a survey.
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "platform/NativePlatform.h"
#include "reclaim/ReclaimClassifier.h"
#include "state/SurveyHistory.h"
#include "state/SurveyRecord.h"
#include "zoo/Scan.h"
#include "zoo/TempFolder.h"

namespace zelk::zoo {
namespace {

using testing::Contains;
using testing::Field;
using testing::HasSubstr;
using testing::SizeIs;

/// The output of the program; `status` receives its exit status.
std::string sampleHome(const std::string& arguments, int& status) {
    const std::string command = "'" ZELK_SOURCE_DIR "/tools/sample_home' " + arguments + " 2>&1";
    std::FILE* const pipe = popen(command.c_str(), "r");
    std::string said;
    std::array<char, 4096> text{};
    while (const std::size_t length = std::fread(text.data(), 1, text.size(), pipe)) said.append(text.data(), length);
    status = pclose(pipe);
    return said;
}

/// A small home; few of its files are larger than a block.
std::string madeIn(const TempFolder& temp, const std::string& options) {
    const std::string home = temp / "home";
    int status = -1;
    const std::string said = sampleHome("'" + home + "' --scale 0.0005 " + options, status);
    EXPECT_EQ(status, 0) << said;
    EXPECT_THAT(said, HasSubstr("made a "));
    return home;
}

std::vector<Reclaimable> reclaimablesIn(const Scan& its, const std::string& home) {
    NativePlatform native(home);
    std::vector<Reclaimable> items;
    ReclaimClassifier(native.platform().files, ReclaimPlaces::of(native.platform().locations))
        .collect(*its.root, home, items);
    return items;
}

std::set<std::string> categoriesIn(const std::string& home) {
    std::set<std::string> categories;
    for (const Reclaimable& item : reclaimablesIn(scan({home}, 2), home)) categories.insert(item.categoryID);
    return categories;
}

std::string readWhole(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void expectEqualToTheTools(const std::string& home) {
    const Scan its = scan({home}, 4);
    const Count count = countedIndependently(home);
    EXPECT_EQ(its.stats.totalBytes, count.bytes);
    EXPECT_EQ(its.stats.totalBytes, count.duBytes);
    EXPECT_EQ(its.stats.filesScanned, count.files);
    EXPECT_EQ(its.stats.dirsScanned, count.folders);
    EXPECT_GT(count.files, 1000);
    for (const FileType type : allFileTypes) EXPECT_TRUE(its.insights.typeTotals.contains(type)) << rawValue(type);
}

SizeByPath foldersOf(const Scan& its) {
    return bigFolders(*its.root, 20'000'000, 400);
}

}  // namespace

TEST(SampleHome, macHomeHoldsEveryCategory) {
    const TempFolder temp;
    std::set<std::string> all;
    for (const ReclaimCategory& category : reclaimCatalogue()) all.emplace(category.id);
    EXPECT_EQ(categoriesIn(madeIn(temp, "--system macos")), all);
}

TEST(SampleHome, linuxHomeHoldsEveryLinuxCategory) {
    const TempFolder temp;
    const std::set<std::string> made{"android_system_images",
                                     "electron_cache",
                                     "electron_workspace",
                                     "expo",
                                     "gradle",
                                     "next_turbo",
                                     "node_modules",
                                     "npm_cache",
                                     "pnpm_store",
                                     "python_pycache",
                                     "python_venv",
                                     "rust_target",
                                     "yarn_cache"};
    EXPECT_EQ(categoriesIn(madeIn(temp, "--system linux")), made);
}

TEST(SampleHome, surveyMatchesDu) {
    for (const std::string system : {"linux", "macos"}) {
        SCOPED_TRACE(system);
        const TempFolder temp;
        expectEqualToTheTools(madeIn(temp, "--system " + system));
    }
}

TEST(SampleHome, isReproducible) {
    const auto listed = [](const std::string& home) {
        std::vector<std::tuple<std::string, off_t, time_t>> all;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(home)) {
            struct stat status {};
            ::lstat(entry.path().c_str(), &status);
            // Ignore the dates of links and the size of the marker file.
            if (!entry.is_symlink() && entry.path().filename() != ".sample_home.json")
                all.emplace_back(entry.path().lexically_relative(home).string(),
                                 S_ISDIR(status.st_mode) ? 0 : status.st_size, status.st_mtime);
        }
        std::sort(all.begin(), all.end());
        return all;
    };
    const TempFolder one;
    const TempFolder two;
    const auto first = listed(madeIn(one, "--system macos --now 1750000000"));
    EXPECT_EQ(first, listed(madeIn(two, "--system macos --now 1750000000")));
    EXPECT_GT(first.size(), 2000U);
}

TEST(SampleHome, refusesExistingFolder) {
    const TempFolder temp;
    std::filesystem::create_directories(temp / "full/child");
    int status = 0;
    EXPECT_THAT(sampleHome("'" + (temp / "full") + "'", status), HasSubstr("not an empty folder"));
    EXPECT_NE(status, 0);
    EXPECT_THAT(sampleHome("'" + (temp / "full") + "' --grow", status), HasSubstr("not made by this program"));
    EXPECT_NE(status, 0);
    EXPECT_THAT(sampleHome("'" + (temp / "new") + "' --grow", status), HasSubstr("not made by this program"));
    EXPECT_NE(status, 0);
    EXPECT_FALSE(std::filesystem::exists(temp / "new"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(temp / "full"), {}), 1);

    const std::string home = madeIn(temp, "--system linux");
    EXPECT_THAT(sampleHome("'" + home + "'", status), HasSubstr("not an empty folder"));
    EXPECT_NE(status, 0);
}

TEST(SampleHome, refusesTheUsersHome) {
    const TempFolder temp;
    const std::string own = temp / "own";
    std::filesystem::create_directories(own);
    std::filesystem::create_directory_symlink(own, temp / "alias");
    for (const std::string& place : {own, own + "/", temp.path(), temp / "alias"}) {
        const std::string command =
            "env HOME='" + own + "' '" ZELK_SOURCE_DIR "/tools/sample_home' '" + place + "' 2>&1";
        EXPECT_EQ(std::system((command + " | grep -q 'home folder of this user'").c_str()), 0) << place;
    }
    EXPECT_TRUE(std::filesystem::is_empty(own));
}

TEST(SampleHome, growthIsVisibleInASecondSurvey) {
    const TempFolder temp;
    const std::string home = madeIn(temp, "--system linux");
    for (const std::string round : {"1", "2"}) {
        const SizeByPath before = foldersOf(scan({home}, 2));
        int status = -1;
        const std::string said = sampleHome("'" + home + "' --grow", status);
        ASSERT_EQ(status, 0) << said;
        SurveyRecord old, now;
        old.folders = before;
        now.folders = foldersOf(scan({home}, 2));
        const auto changes = folderChanges({old, now});
        ASSERT_TRUE(changes);
        if (round == "2") {  // too small to be recorded before in this test's small home
            EXPECT_THAT(changes->grew, Contains(Field(&FolderChange::path, home + "/Videos")));
        }
        EXPECT_THAT(changes->appeared, Contains(Field(&FolderChange::path, home + "/Documents/Conference " + round)));
        const std::string gone = round == "1" ? "/Documents/Moving house" : "/Documents/Conference 1";
        EXPECT_THAT(changes->gone, Contains(Field(&FolderChange::path, home + gone)));
    }
}

TEST(SampleHome, historyEndsWithTheCurrentState) {
    for (const auto& [system, support] :
         {std::pair<std::string, std::string>{"linux", "/.local/share"}, {"macos", "/Library/Application Support"}}) {
        const TempFolder temp;
        const std::string home = madeIn(temp, "--history --system " + system);
        const std::string file = home + support + "/Zelk/history.json";
        const auto history = decodeHistory(readWhole(file));
        ASSERT_TRUE(history) << system;
        ASSERT_THAT(*history, SizeIs(14));
        EXPECT_TRUE(daysUntilFull(*history));
        EXPECT_TRUE(folderChanges(*history));
        EXPECT_TRUE(std::is_sorted(history->begin(), history->end(),
                                   [](const auto& a, const auto& b) { return a.date < b.date; }));

        std::filesystem::remove(file);
        const Scan its = scan({home}, 2);
        const SurveyRecord& last = history->back();
        EXPECT_EQ(last.totalScanned, its.stats.totalBytes);
        EXPECT_EQ(last.folders, foldersOf(its));
        for (const FileType type : allFileTypes)
            EXPECT_EQ(last.types.at(std::string(rawValue(type))), its.insights.typeTotals[type].bytes)
                << rawValue(type);
        std::uint64_t reclaimable = 0;
        for (const Reclaimable& item : reclaimablesIn(its, home)) reclaimable += item.size;
        EXPECT_EQ(static_cast<std::uint64_t>(last.reclaimable), reclaimable) << system;
    }
}

}  // namespace zelk::zoo
