// SPDX-License-Identifier: MIT
#include "platform/VitalsArithmetic.h"

#include <gtest/gtest.h>

#include <limits>

namespace zelk {
namespace {

constexpr std::uint64_t page = 16384;

MemoryStats memory(std::uint64_t total, std::uint64_t used, std::uint64_t free, std::uint64_t wired,
                   std::uint64_t compressed) {
    return {total, used, free, wired, compressed};
}

TEST(MemoryFromPages, sumsWiredActiveAndCompressorPages) {
    EXPECT_EQ(memoryFromPages(100 * page, page, PageCounts{10, 20, 5}),
              memory(100 * page, 35 * page, 65 * page, 10 * page, 5 * page));
}

TEST(MemoryFromPages, failedReadShowsNothingUsed) {
    EXPECT_EQ(memoryFromPages(100 * page, page, std::nullopt), memory(100 * page, 0, 100 * page, 0, 0));
}

TEST(MemoryFromPages, capsUsedAtPhysicalMemory) {
    EXPECT_EQ(memoryFromPages(100 * page, page, PageCounts{60, 30, 20}),
              memory(100 * page, 100 * page, 0, 60 * page, 20 * page));
}

TEST(MemoryFromPages, usingAllMemoryLeavesNoneFree) {
    EXPECT_EQ(memoryFromPages(100 * page, page, PageCounts{50, 30, 20}),
              memory(100 * page, 100 * page, 0, 50 * page, 20 * page));
}

TEST(MemoryFromPages, zeroPhysicalMemoryIsAllZeros) {
    EXPECT_EQ(memoryFromPages(0, page, std::nullopt), memory(0, 0, 0, 0, 0));
}

TEST(MemoryFromPagesDeathTest, abortsOnOverflow) {
    constexpr std::uint64_t most = std::numeric_limits<std::uint64_t>::max();
    EXPECT_DEATH(memoryFromPages(1, 1, PageCounts{most, 1, 0}), "overflow");
    EXPECT_DEATH(memoryFromPages(1, 1, PageCounts{most - 1, 1, 1}), "overflow");
    EXPECT_DEATH(memoryFromPages(1, page, PageCounts{0, most / page + 1, 0}), "overflow");
    EXPECT_DEATH(memoryFromPages(1, page, PageCounts{most / page + 1, 0, 0}), "overflow");
}

TEST(UsageSince, firstSampleIsZeroAndKept) {
    const CPUTicks now{10, 20, 30, 40};
    const auto [usage, kept] = usageSince(std::nullopt, now);
    EXPECT_EQ(usage, 0);
    EXPECT_EQ(kept, now);
}

TEST(UsageSince, missingSampleIsZeroAndForgetsThePrevious) {
    const auto [usage, kept] = usageSince(CPUTicks{10, 20, 30, 40}, std::nullopt);
    EXPECT_EQ(usage, 0);
    EXPECT_FALSE(kept.has_value());
}

TEST(UsageSince, countsUserSystemAndNiceAsBusy) {
    const CPUTicks before{100, 100, 100, 100};
    const CPUTicks now{110, 120, 150, 120};
    const auto [usage, kept] = usageSince(before, now);
    EXPECT_DOUBLE_EQ(usage, 0.5);
    EXPECT_EQ(kept, now);
}

TEST(UsageSince, equalTotalsAreZero) {
    const CPUTicks before{10, 10, 10, 10};
    const CPUTicks now{20, 10, 0, 10};
    const auto [usage, kept] = usageSince(before, now);
    EXPECT_EQ(usage, 0);
    EXPECT_EQ(kept, now);
}

TEST(UsageSince, fallingTotalsAreZero) {
    const CPUTicks now{1, 1, 1, 1};
    const auto [usage, kept] = usageSince(CPUTicks{10, 10, 10, 10}, now);
    EXPECT_EQ(usage, 0);
    EXPECT_EQ(kept, now);
}

TEST(UsageSince, fallingBusyTicksAreZero) {
    EXPECT_EQ(usageSince(CPUTicks{100, 0, 100, 0}, CPUTicks{90, 0, 200, 0}).first, 0);
}

TEST(UsageSince, fallingIdleTicksAreFullUse) {
    EXPECT_EQ(usageSince(CPUTicks{0, 0, 100, 0}, CPUTicks{100, 0, 90, 0}).first, 1);
}

BatteryFields battery(std::int64_t capacity, std::int64_t full) {
    BatteryFields fields;
    fields.currentCapacity = capacity;
    fields.maxCapacity = full;
    return fields;
}

TEST(PowerFromBattery, noBatteryIsOnAC) {
    const PowerInfo power = powerFromBattery(std::nullopt);
    EXPECT_FALSE(power.hasBattery);
    EXPECT_EQ(power.percent, 0);
    EXPECT_FALSE(power.charging);
    EXPECT_TRUE(power.onAC);
}

TEST(PowerFromBattery, missingPowerSourceIsNotOnAC) {
    const PowerInfo power = powerFromBattery(BatteryFields{});
    EXPECT_TRUE(power.hasBattery);
    EXPECT_EQ(power.percent, 0);
    EXPECT_FALSE(power.charging);
    EXPECT_FALSE(power.onAC);
}

TEST(PowerFromBattery, onlyTheExactStateIsOnAC) {
    BatteryFields fields = battery(50, 100);
    fields.powerSourceState = "AC Power";
    EXPECT_TRUE(powerFromBattery(fields).onAC);
    fields.powerSourceState = "ac power";
    EXPECT_FALSE(powerFromBattery(fields).onAC);
    fields.powerSourceState = "Battery Power";
    EXPECT_FALSE(powerFromBattery(fields).onAC);
}

TEST(PowerFromBattery, chargingComesFromTheBattery) {
    BatteryFields fields = battery(50, 100);
    fields.isCharging = true;
    EXPECT_TRUE(powerFromBattery(fields).charging);
}

TEST(PowerFromBattery, percentIsRoundedShareOfFullCapacity) {
    EXPECT_EQ(powerFromBattery(battery(50, 60)).percent, 83);
    EXPECT_EQ(powerFromBattery(battery(1, 200)).percent, 1);
    EXPECT_EQ(powerFromBattery(battery(57, 100)).percent, 57);
    EXPECT_EQ(powerFromBattery(battery(4000, 3900)).percent, 103);
}

TEST(PowerFromBattery, zeroFullCapacityShowsRawCapacity) {
    EXPECT_EQ(powerFromBattery(battery(5, 0)).percent, 5);
    EXPECT_EQ(powerFromBattery(battery(5, -10)).percent, 5);
}

TEST(PowerFromBattery, missingFullCapacityDefaultsToAHundred) {
    BatteryFields fields;
    fields.currentCapacity = 42;
    EXPECT_EQ(powerFromBattery(fields).percent, 42);
}

TEST(PowerFromBattery, saturatesAbsurdCapacities) {
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    EXPECT_GT(powerFromBattery(battery(most, 1)).percent, 0);
    EXPECT_LT(powerFromBattery(battery(std::numeric_limits<std::int64_t>::min(), 1)).percent, 0);
}

TEST(VersionText, omitsPatchLevelZero) {
    EXPECT_EQ(versionText("macOS", 14, 5, 0), "macOS 14.5");
}

TEST(VersionText, showsPositivePatchLevel) {
    EXPECT_EQ(versionText("macOS", 14, 5, 1), "macOS 14.5.1");
}

TEST(VersionText, omitsNegativePatchLevel) {
    EXPECT_EQ(versionText("macOS", 14, 0, -1), "macOS 14.0");
}

}  // namespace
}  // namespace zelk
