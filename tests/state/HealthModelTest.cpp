// SPDX-License-Identifier: MIT
#include "state/HealthModel.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "AppModelFixture.h"
#include "fakes/HeapInUse.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Notes in which order the probes are read.
class NotingVitals : public fakes::FakeVitals {
public:
    std::vector<std::string> reads;

    MemoryStats memory() override {
        reads.emplace_back("memory");
        return FakeVitals::memory();
    }
    std::optional<CPUTicks> ticks() override {
        reads.emplace_back("ticks");
        return FakeVitals::ticks();
    }
    PowerInfo power() override {
        reads.emplace_back("power");
        return FakeVitals::power();
    }
    std::optional<VolumeInfo> volume(const std::string& path) override {
        reads.push_back("volume of " + path);
        return FakeVitals::volume(path);
    }
    double uptime() override {
        reads.emplace_back("uptime");
        return FakeVitals::uptime();
    }
};

class Health : public AppModelFixture {
protected:
    HealthModel& health() {
        if (!health_) {
            health_ = std::make_unique<HealthModel>(machine.platform(), model().admin());
            QObject::connect(health_.get(), &HealthModel::sampled, [this] { heard.emplace_back("sampled"); });
            QObject::connect(health_.get(), &HealthModel::busyChanged,
                             [this] { heard.emplace_back(health_->busy() ? "busy" : "idle"); });
            QObject::connect(health_.get(), &HealthModel::outputChanged,
                             [this] { heard.push_back("output " + health_->lastOutput().value_or("none")); });
        }
        return *health_;
    }
    void endHealth() { health_.reset(); }
    void waitForCommand() {
        runUntil([&] { return !health().busy(); });
    }
    void setTicks(double user, double idle) { machine.vitals.cpuTicks = CPUTicks{user, 0, idle, 0}; }
    void answer(const std::string& output, int status = 0) {
        machine.processes.outcome = [=](const auto&) {
            ChildOutcome outcome;
            outcome.exitStatus = status;
            outcome.output = output;
            return outcome;
        };
    }

    std::vector<std::string> heard;

private:
    std::unique_ptr<HealthModel> health_;
};

}  // namespace

TEST_F(Health, readsMemoryPowerAndUptimeWhenCreated) {
    machine.vitals.memoryStats = MemoryStats{100, 40, 60, 20, 10};
    machine.vitals.powerInfo = PowerInfo{true, 55, true, true};
    machine.vitals.uptimeSeconds = 4321.5;
    EXPECT_EQ(health().memory(), (MemoryStats{100, 40, 60, 20, 10}));
    EXPECT_EQ(health().power(), (PowerInfo{true, 55, true, true}));
    EXPECT_EQ(health().uptime(), 4321.5);
    EXPECT_EQ(health().volume(), std::nullopt);
    EXPECT_EQ(health().cpuUsage(), 0);
    EXPECT_FALSE(health().busy());
    EXPECT_EQ(health().lastOutput(), std::nullopt);
}

TEST_F(Health, readsInOrder) {
    NotingVitals vitals;
    const Platform fake = machine.platform();
    const Platform noting{fake.clock,     fake.directories, fake.files,     fake.contents,  fake.trash, vitals,
                          fake.locations, fake.tasks,       fake.processes, fake.workspace, fake.system};
    HealthModel noted(noting, model().admin());
    EXPECT_THAT(vitals.reads, ElementsAre("memory", "power", "uptime"));
    vitals.reads.clear();
    noted.refresh();
    EXPECT_THAT(vitals.reads, ElementsAre("ticks", "memory", "volume of /home/me", "power", "uptime"));
}

TEST_F(Health, refreshTakesEverythingAnew) {
    machine.vitals.uptimeSeconds = 10;
    health();
    machine.vitals.memoryStats = MemoryStats{200, 50, 150, 0, 0};
    machine.vitals.powerInfo = PowerInfo{true, 12, false, false};
    machine.vitals.uptimeSeconds = 12;
    health().refresh();
    EXPECT_EQ(health().memory().used, 50U);
    EXPECT_EQ(health().power().percent, 12);
    EXPECT_EQ(health().uptime(), 12);
    EXPECT_EQ(health().volume(), (VolumeInfo{1'000, 400, 450}));
    EXPECT_THAT(heard, ElementsAre("sampled"));
}

TEST_F(Health, loadIsZeroUntilThereAreTwoSamples) {
    setTicks(500, 500);
    health().refresh();
    EXPECT_EQ(health().cpuUsage(), 0);
    setTicks(530, 570);
    health().refresh();
    EXPECT_DOUBLE_EQ(health().cpuUsage(), 0.3);
}

TEST_F(Health, keepsLoadAndSampleIfTicksCannotBeRead) {
    setTicks(0, 0);
    health().refresh();
    setTicks(60, 40);
    health().refresh();
    ASSERT_DOUBLE_EQ(health().cpuUsage(), 0.6);
    machine.vitals.cpuTicks.reset();
    health().refresh();
    EXPECT_DOUBLE_EQ(health().cpuUsage(), 0.6);
    // Measured from the last sample that was there.
    setTicks(80, 120);
    health().refresh();
    EXPECT_DOUBLE_EQ(health().cpuUsage(), 0.2);
}

TEST_F(Health, loadFallsToZeroWhenNoTimePassed) {
    setTicks(0, 0);
    health().refresh();
    setTicks(60, 40);
    health().refresh();
    health().refresh();
    EXPECT_EQ(health().cpuUsage(), 0);
}

TEST_F(Health, unreadableVolumeIsAbsent) {
    health().refresh();
    ASSERT_TRUE(health().volume().has_value());
    machine.vitals.setVolume(home, std::nullopt);
    health().refresh();
    EXPECT_EQ(health().volume(), std::nullopt);
}

TEST_F(Health, readsHomeOnce) {
    health();
    machine.locations.homePath = "/elsewhere";
    health().refresh();
    EXPECT_THAT(machine.vitals.volumeReads(), ElementsAre("/home/me"));
}

TEST_F(Health, scoreIsThatOfLastSample) {
    machine.vitals.memoryStats = MemoryStats{100, 10, 90, 0, 0};
    machine.vitals.setVolume(home, VolumeInfo{100, 2, 50});
    EXPECT_EQ(health().score(), 1) << "without a volume";
    EXPECT_EQ(health().grade(), HealthGrade::excellent);
    health().refresh();
    EXPECT_EQ(health().score(), 425.0 / 900);
    EXPECT_EQ(health().grade(), HealthGrade::attention);
    machine.vitals.powerInfo = PowerInfo{true, 100, false, true};
    setTicks(0, 0);
    health().refresh();
    EXPECT_EQ(health().score(), 0.525);
    EXPECT_EQ(health().grade(), HealthGrade::fair);
}

TEST_F(Health, freeMemoryRunsPurgeAndTakesSample) {
    answer("freed\n");
    machine.tasks.hold();
    health().freeMemory();
    EXPECT_TRUE(health().busy());
    EXPECT_EQ(health().lastOutput(), std::nullopt);
    EXPECT_THAT(heard, ElementsAre("busy"));
    machine.tasks.release();
    waitForCommand();
    EXPECT_EQ(health().lastOutput(), "freed\n") << "not trimmed";
    EXPECT_THAT(heard, ElementsAre("busy", "idle", "output freed\n", "sampled"));
    ASSERT_EQ(machine.processes.calls().size(), 1U);
    EXPECT_EQ(machine.processes.calls()[0].executable, "/usr/bin/osascript");
    EXPECT_THAT(machine.processes.calls()[0].arguments,
                ElementsAre("-e", "do shell script \"/usr/sbin/purge\" with administrator privileges"));
}

TEST_F(Health, unwatchedActionTakesNoSample) {
    health().setWatched(false);
    health().freeMemory();
    waitForCommand();
    EXPECT_THAT(heard, ElementsAre("busy", "idle", "output done"));
    EXPECT_THAT(machine.vitals.volumeReads(), IsEmpty());
    health().setWatched(true);
    health().freeMemory();
    waitForCommand();
    EXPECT_THAT(machine.vitals.volumeReads(), ElementsAre("/home/me"));
}

TEST_F(Health, flushDNSRunsItsLineAndTakesNoSample) {
    health().flushDNS();
    EXPECT_TRUE(health().busy());
    waitForCommand();
    EXPECT_EQ(health().lastOutput(), "done");
    EXPECT_THAT(heard, ElementsAre("busy", "idle", "output done"));
    EXPECT_THAT(machine.vitals.volumeReads(), IsEmpty());
    ASSERT_EQ(machine.processes.calls().size(), 1U);
    EXPECT_THAT(machine.processes.calls()[0].arguments,
                ElementsAre("-e",
                            "do shell script \"/usr/bin/dscacheutil -flushcache; /usr/bin/killall -HUP mDNSResponder\" "
                            "with administrator privileges"));
}

TEST_F(Health, onLinuxFlushingSaysThatNoCacheRuns) {
    machine.system = SystemKind::desktopLinux;
    answer("Failed to flush caches: Unit dbus-org.freedesktop.resolve1.service not found.\n", 1);
    health().flushDNS();
    waitForCommand();
    EXPECT_EQ(health().lastOutput(), "No DNS cache runs here.");
}

TEST_F(Health, onLinuxFreeingMemoryAsksThroughPkexec) {
    machine.system = SystemKind::desktopLinux;
    health().freeMemory();
    waitForCommand();
    ASSERT_EQ(machine.processes.calls().size(), 1U);
    EXPECT_EQ(machine.processes.calls()[0].executable, "/usr/bin/pkexec");
}

TEST_F(Health, declinedQuestionIsCancelled) {
    answer("User canceled. (-128)", 1);
    health().freeMemory();
    waitForCommand();
    EXPECT_EQ(health().lastOutput(), "cancelled");
}

TEST_F(Health, resultStaysUntilNextOneReplacesIt) {
    answer("first");
    health().flushDNS();
    waitForCommand();
    answer("second");
    machine.tasks.hold();
    health().freeMemory();
    EXPECT_EQ(health().lastOutput(), "first");
    machine.tasks.release();
    waitForCommand();
    EXPECT_EQ(health().lastOutput(), "second");
}

TEST_F(Health, tellsOfSameResultAgain) {
    health().flushDNS();
    waitForCommand();
    heard.clear();
    health().flushDNS();
    waitForCommand();
    EXPECT_THAT(heard, ElementsAre("busy", "idle", "output done"));
}

TEST_F(Health, runsOneActionAtATime) {
    machine.tasks.hold();
    health().freeMemory();
    health().flushDNS();
    health().freeMemory();
    EXPECT_EQ(machine.tasks.waiting().size(), 1U);
    EXPECT_THAT(heard, ElementsAre("busy"));
    machine.tasks.release();
    waitForCommand();
    EXPECT_EQ(machine.processes.calls().size(), 1U);
}

TEST_F(Health, samplesWhileCommandRuns) {
    machine.tasks.hold();
    health().flushDNS();
    machine.vitals.uptimeSeconds = 99;
    health().refresh();
    EXPECT_EQ(health().uptime(), 99);
    EXPECT_TRUE(health().busy());
    machine.tasks.release();
    waitForCommand();
}

TEST_F(Health, mayGoWhileItsCommandRuns) {
    machine.tasks.hold();
    health().freeMemory();
    endHealth();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(machine.processes.calls().size(), 1U);
    EXPECT_THAT(heard, ElementsAre("busy"));
}

TEST_F(Health, samplingAllocatesNothingThatStays) {
    health();
    const auto sample = [this](int times) {
        for (int at = 0; at < times; ++at) {
            setTicks(at % 7, at);
            health().refresh();
        }
    };
    heard.reserve(2000);
    sample(10);
    // The fake keeps a list of its reads; what it holds is measured by reading as often without the model.
    heard.clear();
    fakes::FakeVitals other;
    const auto before = static_cast<std::ptrdiff_t>(fakes::heapInUse());
    for (int at = 0; at < 1010; ++at) other.volume(home);
    const std::ptrdiff_t listed = static_cast<std::ptrdiff_t>(fakes::heapInUse()) - before;
    const auto start = static_cast<std::ptrdiff_t>(fakes::heapInUse());
    sample(1000);
    EXPECT_LE(static_cast<std::ptrdiff_t>(fakes::heapInUse()) - start, listed + 4096);
}

}  // namespace zelk
