// SPDX-License-Identifier: MIT
#include "ui/shell/linux/FolderMeetingPoint.h"

#include <gmock/gmock.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <QCoreApplication>
#include <atomic>
#include <filesystem>
#include <thread>

#include "fakes/Environment.h"
#include "fakes/EventLoop.h"
#include "fakes/InChild.h"
#include "fakes/OpenDescriptors.h"
#include "fakes/TestFiles.h"
#include "zoo/TempFolder.h"

namespace zelk {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using Answer = MeetingPoint::Answer;
using Claim = MeetingPoint::Claim;
using Place = FolderMeetingPoint::Place;

constexpr int unlimitedSlices = 1'000'000'000;  // milliseconds: never reached
const Activation startFromPanel{QStringLiteral("token"), QStringLiteral("id_TIME5")};

class LinuxFolderMeetingPoint : public testing::Test {
protected:
    std::unique_ptr<FolderMeetingPoint> point(int patience = unlimitedSlices) const {
        return std::make_unique<FolderMeetingPoint>(Place{temp.path(), "zelk"}, patience);
    }
    /// The first, which comes forward if `comes`, and notes by what.
    std::unique_ptr<FolderMeetingPoint> first(bool comes = true) {
        auto made = point();
        EXPECT_EQ(made->claim(), Claim::held);
        made->serve([this, comes](const Activation& by) {
            asked.push_back(by);
            return comes;
        });
        return made;
    }
    /// What so many other starts are answered, all at the same time; meanwhile the event loop runs.
    static std::vector<Answer> answersTo(const std::vector<std::unique_ptr<FolderMeetingPoint>>& others,
                                         const Activation& by) {
        std::vector<Answer> answers(others.size());
        std::atomic<std::size_t> done = 0;
        std::vector<std::thread> threads;
        for (std::size_t at = 0; at < others.size(); ++at)
            threads.emplace_back([&, at] {
                answers[at] = others[at]->call(by);
                ++done;
                QMetaObject::invokeMethod(
                    qApp, [] {}, Qt::QueuedConnection);
            });
        runUntil([&] { return done == others.size(); });
        for (std::thread& thread : threads) thread.join();
        return answers;
    }
    static bool isUsable(const Place& place) {
        FolderMeetingPoint made(place);
        if (made.claim() != Claim::held) return false;
        EXPECT_EQ(FolderMeetingPoint(place).claim(), Claim::taken);
        return fs::is_directory(place.parent + "/" + place.name);
    }
    void makeFolder(const std::string& path, mode_t mode) const {
        ASSERT_EQ(::mkdir(path.c_str(), mode), 0);
        ASSERT_EQ(::chmod(path.c_str(), mode), 0);
    }

    const zoo::TempFolder temp;
    std::vector<Activation> asked;
};

}  // namespace

TEST_F(LinuxFolderMeetingPoint, belongsToOneProcess) {
    const auto held = first();
    EXPECT_EQ(held->claim(), Claim::held) << "again";
    const auto second = point();
    EXPECT_EQ(second->claim(), Claim::taken);
    EXPECT_EQ(second->claim(), Claim::taken);
}

TEST_F(LinuxFolderMeetingPoint, isFreeAfterItsHolderWasKilled) {
    const std::string place = temp.path();
    const pid_t child = ::fork();
    if (child == 0) {
        FolderMeetingPoint held({place, "zelk"});
        if (held.claim() != Claim::held) ::_exit(1);
        held.announce();
        ::kill(::getpid(), SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    ASSERT_TRUE(fs::exists(temp / "zelk/socket")) << "what a crash leaves";

    const auto held = first();
    held->announce();
    std::vector<std::unique_ptr<FolderMeetingPoint>> others;
    others.push_back(point());
    ASSERT_EQ(others[0]->claim(), Claim::taken);
    EXPECT_THAT(answersTo(others, startFromPanel), ElementsAre(Answer::heard));
    EXPECT_THAT(asked, ElementsAre(startFromPanel));
}

TEST_F(LinuxFolderMeetingPoint, isNotHeldByWhatItsHolderStarts) {
    auto held = first();
    held->announce();
    const pid_t child = ::fork();
    if (child == 0) ::execlp("sleep", "sleep", "inf", nullptr);
    const std::string program = "/proc/" + std::to_string(child) + "/exe";
    std::error_code gone;
    while (fs::read_symlink(program, gone) == fs::read_symlink("/proc/self/exe", gone)) ::usleep(1000);
    const auto second = point();
    ASSERT_EQ(second->claim(), Claim::taken);
    held.reset();
    EXPECT_EQ(second->call(startFromPanel), Answer::gone);
    EXPECT_EQ(second->claim(), Claim::held);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
}

TEST_F(LinuxFolderMeetingPoint, leavesNoDescriptors) {
    const auto open = fakes::openDescriptors();
    {
        const auto held = first();
        held->announce();
        const auto second = point(1);
        ASSERT_EQ(second->claim(), Claim::taken);
        EXPECT_EQ(second->call(startFromPanel), Answer::silent);
        FolderMeetingPoint refused({"/", "tmp", true});
        EXPECT_EQ(refused.claim(), Claim::impossible) << "others may write to it";
    }
    EXPECT_EQ(fakes::openDescriptors(), open);
}

TEST_F(LinuxFolderMeetingPoint, doesNotWaitForHolderThatStarts) {
    const auto held = first();
    const auto second = point();
    ASSERT_EQ(second->claim(), Claim::taken);
    EXPECT_EQ(second->call(startFromPanel), Answer::starting);
    EXPECT_EQ(second->claim(), Claim::taken);
}

TEST_F(LinuxFolderMeetingPoint, tellsSilentHolder) {
    const auto held = first();
    held->announce();
    const auto second = point(1);
    ASSERT_EQ(second->claim(), Claim::taken);
    EXPECT_EQ(second->call(startFromPanel), Answer::silent) << "no event loop runs";
}

TEST_F(LinuxFolderMeetingPoint, holderThatEndsDoesNotAnswer) {
    auto held = first(false);
    held->announce();
    const auto second = point();
    ASSERT_EQ(second->claim(), Claim::taken);
    Answer answer = Answer::silent;
    std::thread other([&] { answer = second->call(startFromPanel); });
    runUntil([&] { return !asked.empty(); });
    held.reset();
    other.join();
    EXPECT_EQ(answer, Answer::gone);
    EXPECT_EQ(second->claim(), Claim::held);
    EXPECT_EQ(point()->claim(), Claim::taken);
}

TEST_F(LinuxFolderMeetingPoint, noticesThatHolderHasGone) {
    auto held = first();
    held->announce();
    const auto second = point();
    ASSERT_EQ(second->claim(), Claim::taken);
    held.reset();
    EXPECT_EQ(second->call(startFromPanel), Answer::gone);
    EXPECT_EQ(second->claim(), Claim::held);
}

TEST_F(LinuxFolderMeetingPoint, hearsMoreThanItsQueueHolds) {
    const auto held = first();
    held->announce();
    std::vector<std::unique_ptr<FolderMeetingPoint>> others;
    for (int made = 0; made < 50; ++made) {
        others.push_back(point());
        ASSERT_EQ(others.back()->claim(), Claim::taken);
    }
    EXPECT_THAT(answersTo(others, startFromPanel), testing::Each(Answer::heard));
    EXPECT_THAT(asked, testing::SizeIs(50));
}

TEST_F(LinuxFolderMeetingPoint, hearsWithoutActivationAndWithOneTooLong) {
    const auto held = first();
    held->announce();
    std::vector<std::unique_ptr<FolderMeetingPoint>> others;
    others.push_back(point());
    ASSERT_EQ(others[0]->claim(), Claim::taken);
    const Activation tooLong{QStringLiteral("token"), QString(5000, QLatin1Char('x'))};
    EXPECT_THAT(answersTo(others, {}), ElementsAre(Answer::heard));
    EXPECT_THAT(answersTo(others, tooLong), ElementsAre(Answer::heard));
    EXPECT_THAT(asked, ElementsAre(Activation(), Activation()));
}

TEST_F(LinuxFolderMeetingPoint, hasRoomForLongPaths) {
    const std::string deep = temp / std::string(200, 'd');
    makeFolder(deep, 0700);
    FolderMeetingPoint held({deep, "zelk"});
    ASSERT_EQ(held.claim(), Claim::held);
    held.announce();
    std::vector<std::unique_ptr<FolderMeetingPoint>> others;
    others.push_back(std::make_unique<FolderMeetingPoint>(Place{deep, "zelk"}, unlimitedSlices));
    ASSERT_EQ(others[0]->claim(), Claim::taken);
    EXPECT_THAT(answersTo(others, {}), ElementsAre(Answer::heard));
}

// Where it lies.

TEST_F(LinuxFolderMeetingPoint, isPrivate) {
    const auto held = first();
    EXPECT_EQ(fs::status(temp / "zelk").permissions(), fs::perms::owner_all);
}

TEST_F(LinuxFolderMeetingPoint, needsAnAbsoluteFolderThatExists) {
    EXPECT_TRUE(isUsable({temp.path(), "zelk"}));
    EXPECT_TRUE(isUsable({temp.path(), "zelk"})) << "it is there already";
    for (const std::string& parent : {temp / "missing", std::string(), std::string("relative")})
        EXPECT_FALSE(isUsable({parent, "zelk"})) << parent;
}

TEST_F(LinuxFolderMeetingPoint, refusesRelativeFolderThatExists) {
    const fs::path before = fs::current_path();
    makeFolder(temp / "relative", 0700);
    fs::current_path(temp.path());
    EXPECT_FALSE(isUsable({"relative", "zelk"}));
    fs::current_path(before);
}

TEST_F(LinuxFolderMeetingPoint, refusesFilesAndLinksInItsPlace) {
    fakes::writeFile(temp / "file", "");
    makeFolder(temp / "elsewhere", 0700);
    fs::create_symlink(temp / "elsewhere", temp / "link");
    EXPECT_FALSE(isUsable({temp.path(), "file"}));
    EXPECT_FALSE(isUsable({temp.path(), "link"}));
    EXPECT_FALSE(isUsable({temp / "file", "zelk"}));
}

TEST_F(LinuxFolderMeetingPoint, refusesWhatOthersMayWriteTo) {
    makeFolder(temp / "group", 0720);
    makeFolder(temp / "others", 0702);
    makeFolder(temp / "readable", 0755);
    EXPECT_FALSE(isUsable({temp.path(), "group"}));
    EXPECT_FALSE(isUsable({temp.path(), "others"}));
    EXPECT_TRUE(isUsable({temp.path(), "readable"}));
}

TEST_F(LinuxFolderMeetingPoint, refusesFoldersOfOthers) {
    // /tmp could be written to, and /usr is as private as it should be.
    const std::string unique = fs::path(temp.path()).filename().string() + "-of-others";
    EXPECT_TRUE(fakes::asOrdinaryUser([&] {
        return !isUsable({"/tmp", unique}) && !isUsable({"/", "usr", true}) && isUsable({"/tmp", unique, true}) &&
               ::rmdir(("/tmp/" + unique).c_str()) == 0;
    }));
}

TEST_F(LinuxFolderMeetingPoint, refusesFolderThatCannotBeWrittenTo) {
    makeFolder(temp / "readonly", 0500);
    fakes::giveToOrdinaryUser(temp.path());
    EXPECT_TRUE(fakes::asOrdinaryUser([&] { return !isUsable({temp / "readonly", "zelk"}); }));
}

TEST_F(LinuxFolderMeetingPoint, usualPlacesAreThoseOfTheEnvironment) {
    const auto listed = [] {
        std::vector<std::string> places;
        for (const Place& place : FolderMeetingPoint::usualPlaces())
            places.push_back(place.parent + "/" + place.name + (place.shared ? " shared" : ""));
        return places;
    };
    const std::string user = std::to_string(::geteuid());
    fakes::EnvironmentVariable runtime("XDG_RUNTIME_DIR", "/run/user/5");
    {
        fakes::EnvironmentVariable temporary("TMPDIR", "/var/tmp");
        EXPECT_THAT(listed(),
                    ElementsAre("/run/user/5/io.github.zelk.Zelk", "/var/tmp/io.github.zelk.Zelk-" + user + " shared"));
    }
    for (const std::optional<std::string>& none : {std::optional<std::string>(), {""}, {"relative"}}) {
        fakes::EnvironmentVariable temporary("TMPDIR", none);
        EXPECT_THAT(listed(),
                    ElementsAre("/run/user/5/io.github.zelk.Zelk", "/tmp/io.github.zelk.Zelk-" + user + " shared"));
    }
    fakes::EnvironmentVariable missing("XDG_RUNTIME_DIR", std::nullopt);
    fakes::EnvironmentVariable temporary("TMPDIR", std::nullopt);
    EXPECT_THAT(listed(), ElementsAre("/tmp/io.github.zelk.Zelk-" + user + " shared"));
}

}  // namespace zelk
