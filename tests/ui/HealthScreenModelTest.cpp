// SPDX-License-Identifier: MIT
#include "ui/screens/health/HealthScreenModel.h"

#include <gmock/gmock.h>

#include <QMetaMethod>
#include <QSignalSpy>
#include <QTimer>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "TextsOf.h"
#include "state/AppModelFixture.h"

namespace zelk {

namespace {

using testing::ElementsAre;

class HealthScreen : public AppModelFixture {
protected:
    HealthScreen() {
        machine.vitals.deviceInfo = DeviceInfo{"Studio", "Quad Core", 8, std::uint64_t{16} << 30, "TestOS 14.5", ""};
        machine.vitals.memoryStats = MemoryStats{16'000'000'000, 4'000'000'000, 12'000'000'000, 0, 0};
        machine.vitals.setVolume(home, VolumeInfo{1'000'000'000'000, 600'000'000'000, 0});
    }

    /// Created at the first call, on the first visit.
    HealthScreenModel& screen() {
        if (!screen_) {
            model().setSelection(Screen::health);
            screen_ = std::make_unique<HealthScreenModel>(model(), [this] { ++helps; });
        }
        return *screen_;
    }
    std::size_t samples() const { return machine.vitals.volumeReads().size(); }
    QTimer& timer() { return *screen().findChild<QTimer*>(); }
    void tick() { QMetaObject::invokeMethod(&timer(), "timeout"); }
    void leaveAndReturn() {
        model().setSelection(Screen::survey);
        model().setSelection(Screen::health);
    }
    void waitForCommand() {
        runUntil([&] { return !screen().busy(); });
    }
    void answer(const std::string& output) {
        machine.processes.outcome = [=](const auto&) {
            ChildOutcome outcome;
            outcome.output = output;
            return outcome;
        };
    }
    void setTicks(double user, double idle) { machine.vitals.cpuTicks = CPUTicks{user, 0, idle, 0}; }
    const TextsOf texts{macOS};
    int helps = 0;

private:
    std::unique_ptr<HealthScreenModel> screen_;
};

std::string gaugeLine(const GaugeFace& gauge) {
    if (!gauge.shown) return "none";
    return (gauge.caption + u'|' + QString::number(gauge.value) + u'|' + QString::number(gauge.percent) + u'|' +
            gauge.detail + u'|' + QString::number(gauge.levelIndex()))
        .toStdString();
}

}  // namespace

TEST_F(HealthScreen, samplesOnlyWhileWatched) {
    EXPECT_EQ(samples(), 0U);
    EXPECT_FALSE(timer().isActive());
    screen().setWatched(true);
    EXPECT_EQ(samples(), 1U) << "at once";
    EXPECT_TRUE(timer().isActive());
    EXPECT_EQ(timer().interval(), 2000);
    tick();
    EXPECT_EQ(samples(), 2U);
    EXPECT_TRUE(timer().isActive());
    screen().setWatched(false);
    EXPECT_FALSE(timer().isActive()) << "not even a timer";
    tick();
    EXPECT_EQ(samples(), 2U);
    EXPECT_FALSE(timer().isActive());
    screen().setWatched(true);
    EXPECT_EQ(samples(), 3U);
}

TEST_F(HealthScreen, goesOnSamplingByItself) {
    screen();
    timer().setInterval(0);
    screen().setWatched(true);
    runUntil([&] { return samples() >= 4; });
}

TEST_F(HealthScreen, isNotWatchedTwice) {
    QSignalSpy changes(&screen(), &HealthScreenModel::watchedChanged);
    screen().setWatched(true);
    screen().setWatched(true);
    EXPECT_EQ(samples(), 1U);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(HealthScreen, samplesNothingOnAnotherScreen) {
    screen().setWatched(true);
    model().setSelection(Screen::tune);
    EXPECT_FALSE(timer().isActive());
    EXPECT_EQ(screen().model(), nullptr);
    tick();
    EXPECT_EQ(samples(), 1U);
    model().setSelection(Screen::health);
    EXPECT_EQ(samples(), 2U) << "a view that is watched still";
    EXPECT_TRUE(timer().isActive());
}

TEST_F(HealthScreen, selectingItAgainIsNoVisit) {
    screen().setWatched(true);
    const HealthModel* before = screen().model();
    model().setSelection(Screen::health);
    EXPECT_EQ(screen().model(), before);
    EXPECT_EQ(samples(), 1U);
}

TEST_F(HealthScreen, everyVisitStartsAnew) {
    answer("freed");
    setTicks(0, 0);
    screen().setWatched(true);
    setTicks(90, 10);
    tick();
    screen().flushDNS();
    waitForCommand();
    screen().setShowScoreInfo(true);
    ASSERT_EQ(screen().cpu().percent, 90);
    ASSERT_EQ(screen().output(), QStringLiteral("freed"));
    leaveAndReturn();
    EXPECT_EQ(screen().cpu().percent, 0);
    EXPECT_EQ(screen().output(), QString());
    EXPECT_FALSE(screen().showScoreInfo());
    EXPECT_FALSE(screen().busy());
    EXPECT_EQ(screen().disk().percent, 40) << "with a fresh sample";
}

TEST_F(HealthScreen, noGaugeGoesAndComesOnReturn) {
    screen().setWatched(true);
    ASSERT_EQ(screen().gaugeCount(), 3);
    QSignalSpy count(&screen(), &HealthScreenModel::gaugeCountChanged);
    QSignalSpy disk(&screen(), &HealthScreenModel::diskChanged);
    QSignalSpy grade(&screen(), &HealthScreenModel::gradeChanged);
    leaveAndReturn();
    EXPECT_EQ(samples(), 2U) << "one sample, and nothing is shown without it";
    EXPECT_EQ(count.count(), 0);
    EXPECT_EQ(disk.count(), 0);
    EXPECT_EQ(grade.count(), 0);
    EXPECT_TRUE(timer().isActive());
}

TEST_F(HealthScreen, outputGoesWhenItIsLeft) {
    screen().setWatched(true);
    screen().flushDNS();
    waitForCommand();
    ASSERT_EQ(screen().output(), QStringLiteral("done"));
    QSignalSpy told(&screen(), &HealthScreenModel::outputChanged);
    model().setSelection(Screen::survey);
    EXPECT_EQ(screen().output(), QString());
    EXPECT_EQ(told.count(), 1);
    model().setSelection(Screen::health);
    EXPECT_EQ(told.count(), 1);
}

TEST_F(HealthScreen, commandThatEndsUnseenTakesNoSample) {
    screen().setWatched(true);
    machine.tasks.hold();
    screen().freeMemory();
    screen().setWatched(false);
    const std::size_t before = samples();
    machine.tasks.release();
    waitForCommand();
    runWhatIsThere();
    EXPECT_EQ(samples(), before);
    screen().setWatched(true);
    EXPECT_EQ(samples(), before + 1) << "as soon as it is seen again";
    screen().setWatched(false);
    leaveAndReturn();
    screen().freeMemory();
    waitForCommand();
    runWhatIsThere();
    EXPECT_EQ(samples(), before + 1) << "on another visit too";
}

TEST_F(HealthScreen, commandOfEarlierVisitIsNotHeardOf) {
    answer("late");
    screen().setWatched(true);
    machine.tasks.hold();
    screen().freeMemory();
    ASSERT_TRUE(screen().busy());
    leaveAndReturn();
    EXPECT_FALSE(screen().busy());
    const std::size_t before = samples();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(screen().output(), QString());
    EXPECT_EQ(samples(), before);
}

TEST_F(HealthScreen, keepsItsTextsWhileHidden) {
    fillHome();
    screen().setWatched(true);
    screen().setWatched(false);
    model().setSelection(Screen::survey);
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    const QMetaObject* type = screen().metaObject();
    for (int at = type->methodOffset(); at < type->methodCount(); ++at)
        if (type->method(at).methodType() == QMetaMethod::Signal)
            spies.push_back(std::make_unique<QSignalSpy>(&screen(), type->method(at)));
    ASSERT_GE(spies.size(), 12U);
    machine.vitals.powerInfo = PowerInfo{true, 5, false, false};
    survey();
    for (const auto& spy : spies) EXPECT_EQ(spy->count(), 0) << spy->signal().toStdString();
    EXPECT_EQ(screen().junkTitle(), QStringLiteral("Find junk to clean"));
    model().setSelection(Screen::health);
    EXPECT_EQ(screen().junkTitle(), QStringLiteral("Reclaim 50 MB"));
}

TEST_F(HealthScreen, showsGauges) {
    setTicks(0, 0);
    screen().setWatched(true);
    setTicks(125, 875);
    tick();
    EXPECT_EQ(gaugeLine(screen().cpu()), "CPU|0.125|13|8 cores|0") << "halves are rounded up";
    EXPECT_EQ(gaugeLine(screen().memory()), "Memory|0.25|25|4 GB used|0");
    EXPECT_EQ(gaugeLine(screen().disk()), "Disk|0.4|40|600 GB free|0");
    EXPECT_EQ(gaugeLine(screen().battery()), "none");
    EXPECT_EQ(screen().gaugeCount(), 3);
    machine.vitals.powerInfo = PowerInfo{true, 41, false, false};
    tick();
    EXPECT_EQ(gaugeLine(screen().battery()), "Battery|0.41|41|on battery|0");
    EXPECT_EQ(screen().gaugeCount(), 4);
    machine.vitals.powerInfo = PowerInfo{true, 16, true, true};
    tick();
    EXPECT_EQ(gaugeLine(screen().battery()), "Charging|0.16|16|on power|1");
    machine.vitals.powerInfo = PowerInfo{true, 15, false, true};
    machine.vitals.setVolume(home, std::nullopt);
    tick();
    EXPECT_EQ(gaugeLine(screen().battery()), "Battery|0.15|15|on power|2") << "full, or charging held back";
    EXPECT_EQ(gaugeLine(screen().disk()), "none");
    EXPECT_EQ(screen().gaugeCount(), 3);
}

TEST_F(HealthScreen, gaugesSurviveStrangeReadings) {
    machine.vitals.memoryStats = MemoryStats{0, 5'000'000'000, 0, 0, 0};
    machine.vitals.setVolume(home, VolumeInfo{0, 7'000'000'000, 0});
    screen().setWatched(true);
    EXPECT_EQ(gaugeLine(screen().memory()), "Memory|0|0|5 GB used|0");
    EXPECT_EQ(gaugeLine(screen().disk()), "Disk|0|0|7 GB free|0") << "shown at 0%";
    machine.vitals.setVolume(home, VolumeInfo{100, 300, 0});
    machine.vitals.memoryStats = MemoryStats{1, std::numeric_limits<std::uint64_t>::max(), 0, 0, 0};
    tick();
    EXPECT_EQ(gaugeLine(screen().disk()), "Disk|0|0|300 bytes free|0");
    EXPECT_EQ(screen().memory().level, LoadLevel::high);
    EXPECT_EQ(screen().memory().detail, QStringLiteral("9.22 EB used"));
}

TEST_F(HealthScreen, levelsAreThoseOfTheGauges) {
    machine.vitals.memoryStats = MemoryStats{10, 7, 3, 0, 0};
    machine.vitals.setVolume(home, VolumeInfo{10, 1, 0});
    setTicks(0, 0);
    screen().setWatched(true);
    EXPECT_EQ(screen().memory().level, LoadLevel::elevated);
    EXPECT_EQ(screen().disk().level, LoadLevel::high);
    EXPECT_EQ(screen().cpu().level, LoadLevel::normal);
    EXPECT_EQ(screen().normalLoad(), QColor(50, 199, 123));
    EXPECT_EQ(screen().elevatedLoad(), QColor(245, 166, 35));
}

TEST_F(HealthScreen, firstSampleShowsNoLoad) {
    setTicks(900, 100);
    screen().setWatched(true);
    EXPECT_EQ(gaugeLine(screen().cpu()), "CPU|0|0|8 cores|0");
}

TEST_F(HealthScreen, tellsOnlyWhatHasChanged) {
    screen().setWatched(true);
    QSignalSpy cpu(&screen(), &HealthScreenModel::cpuChanged);
    QSignalSpy memory(&screen(), &HealthScreenModel::memoryChanged);
    QSignalSpy grade(&screen(), &HealthScreenModel::gradeChanged);
    QSignalSpy uptime(&screen(), &HealthScreenModel::uptimeChanged);
    machine.vitals.memoryStats.used = 4'500'000'000;
    machine.vitals.uptimeSeconds = 3630;  // 1h 0m, as before
    tick();
    EXPECT_EQ(cpu.count(), 0);
    EXPECT_EQ(memory.count(), 1);
    EXPECT_EQ(grade.count(), 0);
    EXPECT_EQ(uptime.count(), 0);
}

TEST_F(HealthScreen, hasFiveGrades) {
    const auto faces = screen().grades();
    ASSERT_EQ(faces.size(), 5);
    const auto expect = [&](int place, const char* label, const QColor& color, const char* summary) {
        EXPECT_EQ(faces[place].label.toStdString(), label);
        EXPECT_EQ(faces[place].color, color);
        EXPECT_EQ(faces[place].summary.toStdString(), summary);
    };
    expect(0, "Excellent", {91, 200, 250}, "Everything looks great — plenty of headroom.");
    expect(1, "Good", {47, 211, 165}, "Your Mac is in good shape.");
    expect(2, "Fair", {245, 200, 75}, "A cleanup would help free things up.");
    expect(3, "Requires Attention", {245, 166, 35}, "Worth reclaiming space and easing load.");
    expect(4, "Critical", {255, 90, 77}, "Low on resources — clean up soon.");
}

TEST_F(HealthScreen, gradeFollowsSamples) {
    screen().setWatched(true);
    EXPECT_EQ(screen().gradeIndex(), 0);
    machine.vitals.setVolume(home, VolumeInfo{100, 1, 0});
    machine.vitals.memoryStats = MemoryStats{100, 95, 5, 0, 0};
    machine.vitals.powerInfo = PowerInfo{true, 3, false, false};
    QSignalSpy changes(&screen(), &HealthScreenModel::gradeChanged);
    tick();
    EXPECT_EQ(screen().gradeIndex(), 4) << "245 of 1000 points";
    EXPECT_EQ(screen().grade().label, QStringLiteral("Critical"));
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(HealthScreen, showsFacts) {
    EXPECT_EQ(screen().chip(), QStringLiteral("Quad Core"));
    EXPECT_EQ(screen().cores(), QStringLiteral("8"));
    EXPECT_EQ(screen().memorySize(), QStringLiteral("16 GB"));
    EXPECT_EQ(screen().osVersion(), QStringLiteral("TestOS 14.5"));
    EXPECT_EQ(screen().uptime(), QStringLiteral("1h 0m"));
    EXPECT_EQ(screen().look().color, QColor(47, 211, 165));
}

TEST(UptimeText, isInTheTwoLargestUnits) {
    for (const auto& [seconds, text] : {std::pair(0.0, "0m"),
                                        {59.0, "0m"},
                                        {3599.0, "59m"},
                                        {3600.0, "1h 0m"},
                                        {86'399.0, "23h 59m"},
                                        {86'400.0, "1d 0h"},
                                        {10 * 86'400.0 + 23.5 * 3600, "10d 23h"},
                                        {-3.0, "0m"}})
        EXPECT_EQ(uptimeText(seconds).toStdString(), text);
}

TEST_F(HealthScreen, junkIsLookedForBeforeSurvey) {
    EXPECT_EQ(screen().junkTitle(), QStringLiteral("Find junk to clean"));
    screen().pressJunk();
    EXPECT_EQ(model().selection(), Screen::reclaim);
    EXPECT_TRUE(machine.trash.trashed().empty());
}

TEST_F(HealthScreen, junkIsReclaimedAfterSurvey) {
    fillHome();
    machine.files.addFile(home + "/Library/Caches/Yarn/v6", {}, 50'000'000);
    screen();
    survey();
    EXPECT_EQ(screen().junkTitle(), QStringLiteral("Reclaim 50 MB")) << "what is safe, not the modules";
    screen().pressJunk();
    EXPECT_EQ(model().selection(), Screen::health);
    runUntil([&] { return !machine.trash.trashed().empty(); });
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(home + "/Library/Caches/Yarn"));
    runUntil([&] { return model().scanPhase() == Phase::scanning; });
    EXPECT_EQ(screen().junkTitle(), QStringLiteral("Find junk to clean"));
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    letScansDrain();
}

TEST_F(HealthScreen, junkIsReclaimedOnceAtATime) {
    fillHome();
    machine.files.addFile(home + "/Library/Caches/Yarn/v6", {}, 50'000'000);
    screen();
    survey();
    machine.tasks.hold();
    screen().pressJunk();
    const std::size_t tasks = machine.tasks.waiting().size();
    ASSERT_TRUE(model().removals().underWay());
    screen().pressJunk();
    EXPECT_EQ(machine.tasks.waiting().size(), tasks);
    EXPECT_EQ(model().removals().progress().items, 1U);
    EXPECT_EQ(model().selection(), Screen::health);
    machine.tasks.release();
    runUntil([&] { return model().scanPhase() == Phase::scanning; });
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    letScansDrain();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(home + "/Library/Caches/Yarn"));
    // To look for something, no removal is in the way.
    model().cancelScan();
    const auto removal = model().removals().begin(1);
    screen().pressJunk();
    EXPECT_EQ(model().selection(), Screen::reclaim);
    removal->noteDone();
    runWhatIsThere();
}

TEST_F(HealthScreen, junkIsLookedForIfNothingIsSafe) {
    machine.directories.file(home + "/projects/app/node_modules/a.js", 10'000'000, 2'000);
    screen();
    survey();
    ASSERT_GT(model().reclaimableBytes(), 0);
    EXPECT_EQ(screen().junkTitle(), QStringLiteral("Find junk to clean"));
}

TEST_F(HealthScreen, outputTellsOfSameResultAgain) {
    QSignalSpy told(&screen(), &HealthScreenModel::outputChanged);
    for (int times = 1; times <= 2; ++times) {
        screen().flushDNS();
        EXPECT_TRUE(screen().busy());
        waitForCommand();
        EXPECT_EQ(screen().output(), QStringLiteral("done"));
        EXPECT_EQ(told.count(), times);
    }
}

TEST_F(HealthScreen, freeMemorySamplesAfterwards) {
    screen().setWatched(true);
    screen().freeMemory();
    waitForCommand();
    runUntil([&] { return samples() == 2; });
    screen().flushDNS();
    waitForCommand();
    EXPECT_EQ(samples(), 2U);
}

TEST_F(HealthScreen, otherRowsWaitForCommand) {
    machine.tasks.hold();
    screen().freeMemory();
    screen().pressJunk();
    screen().findDuplicates();
    screen().findLargeFiles();
    EXPECT_EQ(model().selection(), Screen::health);
    machine.tasks.release();
    waitForCommand();
    screen().findDuplicates();
    EXPECT_EQ(model().selection(), Screen::duplicates);
    model().setSelection(Screen::health);
    screen().findLargeFiles();
    EXPECT_EQ(model().selection(), Screen::clutter);
}

TEST_F(HealthScreen, learnMoreOpensHelpAndClosesExplanation) {
    screen().setShowScoreInfo(true);
    screen().learnMore();
    EXPECT_EQ(helps, 1);
    EXPECT_FALSE(screen().showScoreInfo());
}

}  // namespace zelk
