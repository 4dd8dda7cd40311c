// SPDX-License-Identifier: MIT
// A clean-up on a real disk, through the real window: what leaves is what the review listed, and nothing else.
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>

#include "ReclaimHands.h"
#include "fakes/Environment.h"
#include "fakes/TestFiles.h"
#include "fakes/TrashContent.h"
#include "platform/NativePlatform.h"
#include "state/AppModel.h"
#include "ui/screens/reclaim/ReclaimScreenModel.h"
#include "ui/shell/MainWindow.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/Motion.h"
#include "zoo/TempFolder.h"

namespace zelk {

namespace {

namespace fs = std::filesystem;
using testing::IsEmpty;
using testing::StartsWith;

/// What an entry is, so that one that was moved is told from one that was made anew.
struct Entry {
    ino_t inode = 0;
    mode_t mode = 0;
    std::uint64_t allocated = 0;

    bool operator==(const Entry&) const = default;
};
using Tree = std::map<std::string, Entry>;

Entry entryAt(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
    return {status.st_ino, status.st_mode,
            S_ISDIR(status.st_mode) ? 0 : static_cast<std::uint64_t>(status.st_blocks) * 512};
}

bool isAtOrBelow(const std::string& path, const std::string& folder) {
    return path == folder || path.starts_with(folder + "/");
}

class RealCleanup : public testing::Test {
protected:
    RealCleanup() {
        fs::create_directories(tools);
        fs::create_directories(home);
    }
    ~RealCleanup() override {
        main_.reset();
        model_.reset();
        EXPECT_TRUE(!native_ || native_->drain(60));
    }

    void makeSampleHome(const std::string& system) const {
        fs::remove(home);
        const std::string command =
            "'" ZELK_SOURCE_DIR "/tools/sample_home' '" + home + "' --scale 0.0005 --system " + system + " >/dev/null";
        ASSERT_EQ(std::system(command.c_str()), 0);
        // Bytes that two items share are counted in the one that the survey meets first; here nothing is shared.
        fs::remove_all(home + "/Projects/field-notes-app/node_modules/.pnpm");
    }
    /// A program that the next clean-up finds by this name, in place of all that is installed.
    void makeTool(const char* name, const std::string& script) const {
        fakes::writeFile(tools + "/" + name, "#!/bin/sh\n" + script + "\n");
        fs::permissions(tools + "/" + name, fs::perms::owner_all);
    }
    void makeModules(const std::string& project) const {
        fs::create_directories(project + "/node_modules/left-pad");
        fakes::writeFile(project + "/node_modules/left-pad/index.js", std::string(100'000, 'x'));
    }

    /// Up to the finished survey, at Reclaim.
    void surveyAs(AppModel::Audience audience) {
        native_ = std::make_unique<NativePlatform>(home);
        model_ = std::make_unique<AppModel>(native_->platform());
        model_->setAudience(audience);
        main_ = std::make_unique<MainWindow>(*model_);
        main_->motion().setReduced(true);
        main_->show();
        runUntil([&] { return main_->isUp(); });
        clickControl(window(), "scanButton");
        untilSurveyed(1);
        clickControl(window(), "sidebarReclaim");
    }
    void untilSurveyed(std::size_t surveys) {
        runUntil([&] {
            return model_->history().size() == surveys && model_->scanPhase() == AppModel::ScanPhase::finished;
        });
    }
    void chooseAll() {
        clickControl(window(), "selectMenu");
        runUntil([&] { return menuEntry(window(), "All") != nullptr; });
        clickMiddle(window(), menuEntry(window(), "All"));
        runUntil([&] { return menuEntry(window(), "All") == nullptr; });
    }
    void review() {
        clickControl(window(), "reviewButton");
        runUntil([&] { return control(window(), "confirmCleanup") != nullptr; });
    }
    void confirm(bool permanently) {
        if (permanently) clickControl(window(), "permanentSwitch");
        confirm();
    }
    void confirm() {
        clickControl(window(), "confirmCleanup");
        runUntil([&] { return control(window(), "cleanupResult") != nullptr; });
    }
    void keep() {
        clickControl(window(), "keepInTrash");
        untilSurveyed(2);
    }

    bool shows(const std::string& text) {
        return findVisible(window(), [&](const QQuickItem& item) {
                   return item.property("text").toString() == QString::fromStdString(text);
               }) != nullptr;
    }

    QQuickWindow& window() { return main_->window(); }
    const std::vector<Cleaner::Result>& results() { return main_->reclaim().cleanup().lastResults(); }
    std::map<std::string, Cleaner::Status> statuses() {
        std::map<std::string, Cleaner::Status> all;
        for (const Cleaner::Result& result : results()) all.emplace(result.id, result.status);
        return all;
    }

    /// The whole disk that the clean-up could reach, but for the application's own records.
    Tree tree() const {
        Tree all;
        for (const auto& entry : fs::recursive_directory_iterator(temp.path())) {
            const std::string path = entry.path().string();
            if (!isAtOrBelow(path, home + "/.local/share/Zelk")) all[path] = entryAt(path);
        }
        return all;
    }
    /// `before`, with these items gone and, where they were trashed, found again in the Trash as they were.
    Tree without(const Tree& before, const std::set<std::string>& items, bool permanently) const {
        Tree after = before;
        const std::map<std::string, std::string> inTrash = fakes::restorable(trash);
        for (const std::string& item : items) {
            const auto place = inTrash.find(item);
            EXPECT_EQ(place == inTrash.end(), permanently) << item;
            for (const auto& [path, entry] : before) {
                if (!isAtOrBelow(path, item)) continue;
                after.erase(path);
                if (place != inTrash.end()) after[place->second + path.substr(item.size())] = entry;
            }
            if (place == inTrash.end()) continue;
            const std::string info = trash + "/info" + place->second.substr(trash.size() + 6) + ".trashinfo";
            after[info] = entryAt(info);
        }
        // The folders of a Trash that nobody had used before.
        if (!permanently && !items.empty()) {
            for (const char* folder : {"", "/files", "/info"})
                after.try_emplace(trash + folder, entryAt(trash + folder));
        }
        return after;
    }

    const zoo::TempFolder temp;
    const std::string home = temp / "home";
    const std::string tools = temp / "tools";
    const std::string outside = temp / "outside";
    const std::string trash = home + "/.local/share/Trash";

private:
    std::unique_ptr<NativePlatform> native_;
    std::unique_ptr<AppModel> model_;
    std::unique_ptr<MainWindow> main_;
};

/// The command of the one tool that does its work.
constexpr const char* wellTool = "/usr/bin/env npm cache clean --force";

struct Way {
    const char* system;
    AppModel::Audience audience;
    bool permanently;
};

class WholeCleanup : public RealCleanup, public testing::WithParamInterface<Way> {};

std::string nameOfWay(const testing::TestParamInfo<Way>& way) {
    return std::string(way.param.system) +
           (way.param.audience == AppModel::Audience::normal ? "ByCategory" : "ByItem") +
           (way.param.permanently ? "Permanently" : "ToTheTrash");
}

/// Where the name of nothing is replaced the diff would be thousands of lines, so only what differs is told.
std::vector<std::string> differences(const Tree& one, const Tree& other) {
    std::vector<std::string> paths;
    for (const auto& [path, entry] : one)
        if (const auto found = other.find(path); found == other.end() || found->second != entry)
            paths.push_back("- " + path);
    for (const auto& [path, entry] : other)
        if (!one.contains(path)) paths.push_back("+ " + path);
    return paths;
}

}  // namespace

TEST_P(WholeCleanup, takesWhatTheReviewListedAndNothingElse) {
    const auto [system, audience, permanently] = GetParam();
    makeSampleHome(system);
    makeTool("npm", "echo \"npm was told: $*\"");
    makeTool("pnpm", "echo 'pnpm is unwell'; exit 3");
    const fakes::EnvironmentVariable path("PATH", tools);

    surveyAs(audience);
    if (audience == AppModel::Audience::normal) {
        chooseAll();
    } else {
        tabTo(window(), "ageSlider");
        for (int day = 14; day > 0; --day) tour::pressKey(window(), Qt::Key_Left);
    }
    review();
    const std::vector<std::string> folders = texts(window(), "dryRunList", "folder");
    const std::vector<std::string> names = texts(window(), "dryRunList", "name");
    const std::vector<std::string> methods = texts(window(), "dryRunList", "method");
    std::set<std::string> toTrash;
    std::map<std::string, std::string> byTool;
    for (std::size_t row = 0; row < names.size(); ++row) {
        const std::string item = folders[row] + "/" + names[row];
        if (methods[row] == "Trash")
            toTrash.insert(item);
        else
            byTool.emplace(item, methods[row]);
    }
    ASSERT_GT(toTrash.size(), 4U);
    ASSERT_GT(byTool.size(), 2U);

    const Tree before = tree();
    const auto bytesOf = [&before](const std::string& item) {
        std::uint64_t bytes = 0;
        for (const auto& [entryPath, entry] : before)
            if (isAtOrBelow(entryPath, item)) bytes += entry.allocated;
        return bytes;
    };
    std::uint64_t listed = 0;
    std::size_t gone = 0;
    for (const std::string& item : toTrash) {
        listed += bytesOf(item);
        if (bytesOf(item) > 0) ++gone;  // nothing is gained by what takes up nothing
    }
    std::uint64_t all = listed;
    std::uint64_t recovered = listed;
    for (const auto& [item, tool] : byTool) {
        all += bytesOf(item);
        if (tool != wellTool) continue;
        recovered += bytesOf(item);
        ++gone;
    }
    ASSERT_GT(recovered, listed);
    const std::string total = byteFigure(static_cast<std::int64_t>(all)).toStdString();
    EXPECT_TRUE(shows(std::to_string(toTrash.size()) + " to Trash · " + std::to_string(byTool.size()) +
                      " via command · " + total + " to recover"));
    EXPECT_EQ(textOf(window(), "confirmCleanup"), "Move " + total + " to Trash");
    if (permanently) {
        clickControl(window(), "permanentSwitch");
        EXPECT_EQ(textOf(window(), "confirmCleanup"), "Delete " + total + " permanently");
    }
    confirm();
    const Tree after = tree();
    EXPECT_THAT(differences(without(before, toTrash, permanently), after), IsEmpty());

    // The sums: of the survey, of the disk before, and of what the Trash got.
    std::uint64_t surveyed = 0;
    std::size_t taken = 0;
    std::size_t failed = 0;
    for (const Cleaner::Result& result : results()) {
        if (std::holds_alternative<Cleaner::Trashed>(result.status)) {
            surveyed += result.item.size;
            EXPECT_TRUE(toTrash.contains(result.id)) << result.id;
            ++taken;
        }
        if (std::holds_alternative<Cleaner::Failed>(result.status)) ++failed;
    }
    EXPECT_EQ(taken, toTrash.size());
    EXPECT_EQ(surveyed, listed);
    if (!permanently) {
        std::uint64_t inTrash = 0;
        const std::map<std::string, std::string> found = fakes::restorable(trash);
        for (const std::string& item : toTrash)
            for (const auto& [entryPath, entry] : after)
                if (isAtOrBelow(entryPath, found.at(item))) inTrash += entry.allocated;
        EXPECT_EQ(inTrash, listed);
    }

    // Tools run for real, and fail with what they say.
    const auto ended = statuses();
    std::size_t unwell = 0;
    for (const auto& [item, tool] : byTool) {
        const Cleaner::Status& status = ended.at(item);
        const auto* failure = std::get_if<Cleaner::Failed>(&status);
        if (tool == wellTool) {
            EXPECT_EQ(status, Cleaner::Status(Cleaner::RanCommand{"npm was told: cache clean --force\n"}));
            continue;
        }
        ++unwell;
        ASSERT_NE(failure, nullptr) << item << " by " << tool;
        const char* wanted = tool == "/usr/bin/env pnpm store prune"  ? "exit 3: pnpm is unwell\n"
                             : tool.starts_with("/usr/bin/env cargo") ? "exit 127: "
                                                                      : "No such file or directory";
        EXPECT_THAT(failure->error, StartsWith(wanted)) << tool;
    }
    EXPECT_GT(unwell, 1U);
    EXPECT_EQ(failed, unwell);
    EXPECT_EQ(textOf(window(), "cleanupResult"), byteFigure(static_cast<std::int64_t>(recovered)).toStdString() +
                                                     " · " + std::to_string(gone) + " items · " +
                                                     std::to_string(unwell) + " skipped");

    keep();
    EXPECT_THAT(differences(after, tree()), IsEmpty()) << "the survey that follows only looks";
}

INSTANTIATE_TEST_SUITE_P(Of, WholeCleanup,
                         testing::Values(Way{"linux", AppModel::Audience::normal, false},
                                         Way{"macos", AppModel::Audience::normal, true},
                                         Way{"macos", AppModel::Audience::developer, false},
                                         Way{"linux", AppModel::Audience::developer, true}),
                         nameOfWay);

class ChangedWorld : public RealCleanup, public testing::WithParamInterface<bool> {
protected:
    bool permanently() const { return GetParam(); }
    std::string project(const char* name) const { return home + "/" + name; }
    std::string modules(const char* name) const { return project(name) + "/node_modules"; }
    bool went(const char* name) { return std::holds_alternative<Cleaner::Trashed>(statuses().at(modules(name))); }

    void surveyAndReview() {
        surveyAs(AppModel::Audience::normal);
        chooseAll();
        review();
    }
};

TEST_P(ChangedWorld, anItemThatIsGoneIsSkipped) {
    makeModules(project("gone"));
    makeModules(project("kept"));
    surveyAndReview();
    fs::remove_all(modules("gone"));
    const Tree before = tree();
    confirm(permanently());
    EXPECT_FALSE(went("gone"));
    EXPECT_TRUE(went("kept"));
    EXPECT_THAT(differences(without(before, {modules("kept")}, permanently()), tree()), IsEmpty());
    EXPECT_THAT(textOf(window(), "cleanupResult"), testing::EndsWith(" · 1 item · 1 skipped"));
    keep();
}

TEST_P(ChangedWorld, anItemThatBecameALinkGoesAsTheLinkThatItIs) {
    makeModules(project("linked"));
    makeModules(outside);
    surveyAndReview();
    fs::remove_all(modules("linked"));
    fs::create_directory_symlink(outside, modules("linked"));
    const Tree before = tree();
    confirm(permanently());
    EXPECT_TRUE(went("linked"));
    EXPECT_THAT(differences(without(before, {modules("linked")}, permanently()), tree()), IsEmpty());
    keep();
}

TEST_P(ChangedWorld, anItemThatBecameAFileGoesAsThatFile) {
    makeModules(project("filed"));
    surveyAndReview();
    fs::remove_all(modules("filed"));
    fakes::writeFile(modules("filed"), "a file");
    const Tree before = tree();
    confirm(permanently());
    EXPECT_TRUE(went("filed"));
    EXPECT_THAT(differences(without(before, {modules("filed")}, permanently()), tree()), IsEmpty());
    keep();
}

TEST_P(ChangedWorld, anItemWhoseFolderWasRenamedIsSkippedAndStays) {
    makeModules(project("before"));
    surveyAndReview();
    fs::rename(project("before"), project("after"));
    const Tree before = tree();
    confirm(permanently());
    EXPECT_FALSE(went("before"));
    EXPECT_THAT(differences(without(before, {}, permanently()), tree()), IsEmpty());
    EXPECT_EQ(textOf(window(), "cleanupResult"), "0 bytes · 0 items · 1 skipped");
    keep();
}

TEST_P(ChangedWorld, anItemWhoseFolderBecameALinkIsSkippedAndNothingBehindTheLinkIsTouched) {
    makeModules(project("swapped"));
    makeModules(home + "/deep/er/swapped");
    makeModules(outside);
    makeModules(outside + "/er/swapped");
    surveyAndReview();
    fs::rename(project("swapped"), temp / "aside");
    fs::create_directory_symlink(outside, project("swapped"));
    fs::rename(home + "/deep", temp / "deep aside");
    fs::create_directory_symlink(outside, home + "/deep");
    const Tree before = tree();
    confirm(permanently());
    EXPECT_FALSE(went("swapped"));
    EXPECT_FALSE(went("deep/er/swapped"));
    EXPECT_THAT(differences(without(before, {}, permanently()), tree()), IsEmpty());
    EXPECT_EQ(textOf(window(), "cleanupResult"), "0 bytes · 0 items · 2 skipped");
    keep();
}

TEST_P(ChangedWorld, aHomeThatIsALinkItselfIsNoReasonToSkip) {
    fs::rename(home, temp / "real");
    fs::create_directory_symlink(temp / "real", home);
    makeModules(project("project"));
    surveyAndReview();
    confirm(permanently());
    EXPECT_TRUE(went("project"));
    EXPECT_FALSE(fs::exists(temp / "real/project/node_modules"));
    EXPECT_TRUE(fs::exists(temp / "real/project"));
    keep();
}

INSTANTIATE_TEST_SUITE_P(And, ChangedWorld, testing::Bool(),
                         [](const auto& way) { return way.param ? "DeletesPermanently" : "MovesToTheTrash"; });

}  // namespace zelk
