// SPDX-License-Identifier: MIT
#include "system/HealthScore.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <initializer_list>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "zoo/TempFolder.h"

namespace zelk {

namespace {

constexpr double never = std::numeric_limits<double>::quiet_NaN();

/// A desktop with ample space, light memory use and an idle processor.
HealthReadings healthyDesktop() {
    HealthReadings readings;
    readings.volume = VolumeInfo{1000, 900, 900};
    readings.memory = MemoryStats{1000, 100, 900, 0, 0};
    return readings;
}

HealthReadings laptop(std::int64_t percent) {
    HealthReadings readings = healthyDesktop();
    readings.power = PowerInfo{true, percent, false, false};
    return readings;
}

/// The points that a disk earns which is that full, in thousandths.
double diskPointsOf(std::int64_t used, std::int64_t total) {
    HealthReadings readings = healthyDesktop();
    readings.volume = VolumeInfo{total, total - used, 0};
    return std::round(healthScore(readings) * 900) - 400;
}

double memoryPointsOf(std::uint64_t used, std::uint64_t total) {
    HealthReadings readings = healthyDesktop();
    readings.memory = MemoryStats{total, used, 0, 0, 0};
    return std::round(healthScore(readings) * 900) - 600;
}

double cpuPointsOf(double usage) {
    HealthReadings readings = healthyDesktop();
    readings.cpuUsage = usage;
    return std::round(healthScore(readings) * 900) - 800;
}

double batteryPointsOf(std::int64_t percent) {
    return std::round(healthScore(laptop(percent)) * 1000) - 900;
}

/// Readings as they are found and stranger ones, every second one on the edge of a step or right beside it. No size
/// exceeds what a double holds exactly.
HealthReadings randomReadings(std::mt19937_64& random) {
    const auto upTo = [&](std::int64_t most) {
        return static_cast<std::int64_t>(random() % (static_cast<std::uint64_t>(most) + 1));
    };
    const auto oneOf = [&](std::initializer_list<std::int64_t> values) {
        return *(values.begin() + upTo(static_cast<std::int64_t>(values.size()) - 1));
    };
    // A share of 100 times this many bytes, and a byte more or less.
    const auto used = [&](std::int64_t hundredth, std::initializer_list<std::int64_t> edges) {
        if (upTo(1) == 0) return upTo(100 * hundredth);
        return std::max<std::int64_t>(0, oneOf(edges) * hundredth + upTo(2) - 1);
    };
    HealthReadings readings;
    if (upTo(9) > 0) {
        const std::int64_t hundredth = upTo(9) == 0 ? 0 : upTo(80'000'000'000'000);
        const std::int64_t total = 100 * hundredth;
        readings.volume = VolumeInfo{total, total - used(hundredth, {0, 75, 90, 97, 100}), upTo(total)};
        if (upTo(19) == 0) readings.volume->available = total + upTo(1000);
    }
    const std::int64_t hundredth = upTo(9) == 0 ? 0 : upTo(20'000'000'000);
    readings.memory.total = static_cast<std::uint64_t>(100 * hundredth);
    readings.memory.used = static_cast<std::uint64_t>(used(hundredth, {0, 70, 90, 100}));
    const double edge = static_cast<double>(oneOf({0, 70, 90, 100})) / 100;
    const std::int64_t side = upTo(2) - 1;
    const double beside = side == 0 ? edge : std::nextafter(edge, static_cast<double>(10 * side));
    readings.cpuUsage = upTo(1) == 0 ? static_cast<double>(upTo(1'000'000)) / 1'000'000 : beside;
    readings.power.hasBattery = upTo(1) == 0;
    readings.power.percent = upTo(1) == 0 ? upTo(100) : oneOf({0, 15, 16, 40, 41, 100});
    return readings;
}

}  // namespace

TEST(HealthGrade, hasFiveStableCases) {
    ASSERT_EQ(allHealthGrades.size(), 5U);
    for (std::size_t place = 0; place < allHealthGrades.size(); ++place)
        EXPECT_EQ(static_cast<std::size_t>(allHealthGrades[place]), place);
    EXPECT_EQ(HealthGrade::excellent, allHealthGrades[0]);
    EXPECT_EQ(HealthGrade::good, allHealthGrades[1]);
    EXPECT_EQ(HealthGrade::fair, allHealthGrades[2]);
    EXPECT_EQ(HealthGrade::attention, allHealthGrades[3]);
    EXPECT_EQ(HealthGrade::critical, allHealthGrades[4]);
}

TEST(HealthGrade, followsBandsFromBothSides) {
    const auto below = [](double score) { return gradeOf(std::nextafter(score, 0)); };
    EXPECT_EQ(gradeOf(1), HealthGrade::excellent);
    EXPECT_EQ(gradeOf(0.85), HealthGrade::excellent);
    EXPECT_EQ(below(0.85), HealthGrade::good);
    EXPECT_EQ(gradeOf(0.7), HealthGrade::good);
    EXPECT_EQ(below(0.7), HealthGrade::fair);
    EXPECT_EQ(gradeOf(0.5), HealthGrade::fair);
    EXPECT_EQ(below(0.5), HealthGrade::attention);
    EXPECT_EQ(gradeOf(0.3), HealthGrade::attention);
    EXPECT_EQ(below(0.3), HealthGrade::critical);
    EXPECT_EQ(gradeOf(0.2999), HealthGrade::critical);
    EXPECT_EQ(gradeOf(0), HealthGrade::critical);
    EXPECT_EQ(gradeOf(-1), HealthGrade::critical);
}

TEST(HealthGrade, ofWhatIsNoNumberIsCritical) {
    EXPECT_EQ(gradeOf(never), HealthGrade::critical);
}

TEST(HealthScore, isOneForHealthyDesktopAndLaptop) {
    EXPECT_EQ(healthScore(healthyDesktop()), 1);
    EXPECT_EQ(healthScore(laptop(100)), 1);
}

TEST(HealthScore, isOneWithoutVolumeToo) {
    HealthReadings readings = healthyDesktop();
    readings.volume.reset();
    EXPECT_EQ(healthScore(readings), 1);
    readings.cpuUsage = 1;
    EXPECT_EQ(healthScore(readings), 0.825);
}

TEST(HealthScore, takesVolumeOfNoSizeForNone) {
    HealthReadings readings = healthyDesktop();
    readings.cpuUsage = 1;
    for (const std::int64_t total : {0, -5}) {
        readings.volume = VolumeInfo{total, 0, 0};
        EXPECT_EQ(healthScore(readings), 0.825) << total;
    }
    readings.volume = VolumeInfo{1, 0, 0};
    EXPECT_EQ(healthScore(readings), 355.0 / 900) << "one byte is a size";
}

TEST(HealthScore, stepsDownAsDiskFills) {
    EXPECT_EQ(diskPointsOf(0, 100), 500);
    EXPECT_EQ(diskPointsOf(749'999, 1'000'000), 500);
    EXPECT_EQ(diskPointsOf(75, 100), 300);
    EXPECT_EQ(diskPointsOf(899'999, 1'000'000), 300);
    EXPECT_EQ(diskPointsOf(90, 100), 150);
    EXPECT_EQ(diskPointsOf(969'999, 1'000'000), 150);
    EXPECT_EQ(diskPointsOf(97, 100), 25);
    EXPECT_EQ(diskPointsOf(100, 100), 25);
}

TEST(HealthScore, takesExactSharesOfLargeDisks) {
    constexpr std::int64_t hundredth = 40'000'000'000;
    for (const auto& [percent, points] : {std::pair(75, 300), {90, 150}, {97, 25}}) {
        EXPECT_EQ(diskPointsOf(percent * hundredth, 100 * hundredth), points) << percent;
        EXPECT_GT(diskPointsOf(percent * hundredth - 1, 100 * hundredth), points) << percent;
    }
}

TEST(HealthScore, ignoresWhatCouldBePurged) {
    HealthReadings readings = healthyDesktop();
    readings.volume = VolumeInfo{1000, 20, 1000};
    EXPECT_EQ(healthScore(readings), 425.0 / 900);
}

TEST(HealthScore, takesMoreAvailableThanThereIsForEmptyDisk) {
    EXPECT_EQ(diskPointsOf(-500, 1000), 500);
    EXPECT_EQ(diskFraction(VolumeInfo{1000, 1500, 0}), 0);
}

TEST(HealthScore, stepsDownAsMemoryFills) {
    EXPECT_EQ(memoryPointsOf(0, 10), 300);
    EXPECT_EQ(memoryPointsOf(699'999, 1'000'000), 300);
    EXPECT_EQ(memoryPointsOf(7, 10), 180);
    EXPECT_EQ(memoryPointsOf(899'999, 1'000'000), 180);
    EXPECT_EQ(memoryPointsOf(9, 10), 90);
    EXPECT_EQ(memoryPointsOf(10, 10), 90);
    EXPECT_EQ(memoryPointsOf(5, 0), 300) << "of unknown size";
    EXPECT_EQ(memoryPointsOf(1, 1), 90);
}

TEST(HealthScore, stepsDownWithProcessorLoad) {
    EXPECT_EQ(cpuPointsOf(0), 100);
    EXPECT_EQ(cpuPointsOf(std::nextafter(0.7, 0)), 100);
    EXPECT_EQ(cpuPointsOf(0.7), 60);
    EXPECT_EQ(cpuPointsOf(std::nextafter(0.9, 0)), 60);
    EXPECT_EQ(cpuPointsOf(0.9), 30);
    EXPECT_EQ(cpuPointsOf(1), 30);
}

TEST(HealthScore, stepsDownAsBatteryDrains) {
    EXPECT_EQ(batteryPointsOf(100), 100);
    EXPECT_EQ(batteryPointsOf(41), 100);
    EXPECT_EQ(batteryPointsOf(40), 60);
    EXPECT_EQ(batteryPointsOf(16), 60);
    EXPECT_EQ(batteryPointsOf(15), 30);
    EXPECT_EQ(batteryPointsOf(0), 30);
}

TEST(HealthScore, countsBatteryOnlyIfThereIsOne) {
    HealthReadings readings = healthyDesktop();
    readings.power.percent = 0;
    EXPECT_EQ(healthScore(readings), 1);
    EXPECT_LT(healthScore(laptop(0)), 1);
}

/// Combinations of readings whose points lie exactly on the edge of a band belong to the band above it.
TEST(HealthScore, onEdgeOfBandBelongsToBandAbove) {
    const auto gradeAt = [](std::optional<std::int64_t> diskUsed, std::uint64_t memoryUsed, double cpu,
                            std::optional<std::int64_t> battery) {
        HealthReadings readings;
        if (diskUsed) readings.volume = VolumeInfo{100, 100 - *diskUsed, 0};
        readings.memory = MemoryStats{100, memoryUsed, 0, 0, 0};
        readings.cpuUsage = cpu;
        if (battery) readings.power = PowerInfo{true, *battery, false, true};
        return std::pair(healthScore(readings), gradeOf(healthScore(readings)));
    };
    const std::pair good(0.7, HealthGrade::good);
    const std::pair fair(0.5, HealthGrade::fair);
    const std::pair attention(0.3, HealthGrade::attention);
    EXPECT_EQ(gradeAt({}, 80, 0, {}), good);
    EXPECT_EQ(gradeAt(80, 0, 0.95, {}), good);
    EXPECT_EQ(gradeAt({}, 95, 0, 30), fair);
    EXPECT_EQ(gradeAt({}, 95, 0.8, 80), fair);
    EXPECT_EQ(gradeAt(80, 95, 0.8, {}), fair);
    EXPECT_EQ(gradeAt({}, 95, 0.95, {}), attention);
    EXPECT_EQ(gradeAt({}, 95, 0.95, 5), attention);
    EXPECT_EQ(gradeAt(95, 95, 0.95, {}), attention);
    EXPECT_EQ(gradeAt(95, 95, 0.95, 5), attention);
    EXPECT_EQ(gradeAt(99, 95, 0.95, 5).second, HealthGrade::critical);
}

TEST(HealthScore, matchesReferenceModel) {
    constexpr int cases = 10'000;
    const zoo::TempFolder folder;
    const std::string inputPath = folder / "cases";
    const std::string outputPath = folder / "scores";
    std::mt19937_64 random(20'261'122);
    std::vector<HealthReadings> all;
    {
        std::ofstream out(inputPath);
        out.precision(17);
        for (int at = 0; at < cases; ++at) {
            const HealthReadings& one = all.emplace_back(randomReadings(random));
            const VolumeInfo volume = one.volume.value_or(VolumeInfo());
            out << one.volume.has_value() << ' ' << volume.total << ' ' << volume.available << ' ' << one.memory.total
                << ' ' << one.memory.used << ' ' << one.cpuUsage << ' ' << one.power.hasBattery << ' '
                << one.power.percent << '\n';
        }
    }
    const std::string command =
        "python3 '" ZELK_SOURCE_DIR "/tests/system/health_model.py' < '" + inputPath + "' > '" + outputPath + "'";
    ASSERT_EQ(std::system(command.c_str()), 0);

    std::ifstream in(outputPath);
    std::vector<int> grades(allHealthGrades.size());
    for (const HealthReadings& one : all) {
        double score = -1;
        int grade = -1;
        int cpu = -1;
        int memory = -1;
        int battery = -1;
        ASSERT_TRUE(in >> score >> grade >> cpu >> memory >> battery);
        ASSERT_EQ(healthScore(one), score);
        ASSERT_EQ(static_cast<int>(gradeOf(healthScore(one))), grade);
        ASSERT_EQ(static_cast<int>(loadLevel(one.cpuUsage)), cpu);
        ASSERT_EQ(static_cast<int>(loadLevel(memoryFraction(one.memory))), memory);
        ASSERT_EQ(static_cast<int>(batteryLevel(one.power.percent)), battery);
        ++grades[static_cast<std::size_t>(grade)];
    }
    for (const int count : grades) EXPECT_GT(count, 0) << "some grade never occurs";
}

TEST(DiskFraction, isUsedShare) {
    EXPECT_EQ(diskFraction(VolumeInfo{1000, 250, 900}), 0.75);
    EXPECT_EQ(diskFraction(VolumeInfo{1000, 1000, 0}), 0);
    EXPECT_EQ(diskFraction(VolumeInfo{0, 0, 0}), 0);
    EXPECT_EQ(diskFraction(VolumeInfo{-1, -5, 0}), 0);
    EXPECT_EQ(diskFraction(VolumeInfo{1, 0, 0}), 1);
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    EXPECT_NEAR(diskFraction(VolumeInfo{most, -most, 0}), 2, 1e-9) << "no overflow";
}

TEST(MemoryFraction, isUsedShare) {
    EXPECT_EQ(memoryFraction(MemoryStats{16, 4, 12, 0, 0}), 0.25);
    EXPECT_EQ(memoryFraction(MemoryStats{0, 4, 0, 0, 0}), 0);
    EXPECT_EQ(memoryFraction(MemoryStats{1, 1, 0, 0, 0}), 1);
}

TEST(LoadLevel, stepsFromBothSides) {
    EXPECT_EQ(loadLevel(0), LoadLevel::normal);
    EXPECT_EQ(loadLevel(std::nextafter(0.7, 0)), LoadLevel::normal);
    EXPECT_EQ(loadLevel(0.7), LoadLevel::elevated);
    EXPECT_EQ(loadLevel(std::nextafter(0.9, 0)), LoadLevel::elevated);
    EXPECT_EQ(loadLevel(0.9), LoadLevel::high);
    EXPECT_EQ(loadLevel(7), LoadLevel::high);
    EXPECT_EQ(loadLevel(never), LoadLevel::high);
}

TEST(BatteryLevel, stepsFromBothSides) {
    EXPECT_EQ(batteryLevel(100), LoadLevel::normal);
    EXPECT_EQ(batteryLevel(41), LoadLevel::normal);
    EXPECT_EQ(batteryLevel(40), LoadLevel::elevated);
    EXPECT_EQ(batteryLevel(16), LoadLevel::elevated);
    EXPECT_EQ(batteryLevel(15), LoadLevel::high);
    EXPECT_EQ(batteryLevel(0), LoadLevel::high);
}

TEST(UptimeParts, areTheTwoLargestUnits) {
    using Unit = UptimeParts::Unit;
    EXPECT_EQ(uptimeParts(0), (UptimeParts{Unit::minutes, 0, 0, 0}));
    EXPECT_EQ(uptimeParts(59.9), (UptimeParts{Unit::minutes, 0, 0, 0}));
    EXPECT_EQ(uptimeParts(60), (UptimeParts{Unit::minutes, 0, 0, 1}));
    EXPECT_EQ(uptimeParts(3599), (UptimeParts{Unit::minutes, 0, 0, 59}));
    EXPECT_EQ(uptimeParts(3599.999), (UptimeParts{Unit::minutes, 0, 0, 59})) << "truncated";
    EXPECT_EQ(uptimeParts(3600), (UptimeParts{Unit::hours, 0, 1, 0}));
    EXPECT_EQ(uptimeParts(86'399), (UptimeParts{Unit::hours, 0, 23, 59}));
    EXPECT_EQ(uptimeParts(86'400), (UptimeParts{Unit::days, 1, 0, 0}));
    EXPECT_EQ(uptimeParts(2 * 86'400 - 1), (UptimeParts{Unit::days, 1, 23, 0}));
    EXPECT_EQ(uptimeParts(400 * 86'400.0 + 5 * 3600), (UptimeParts{Unit::days, 400, 5, 0}));
}

TEST(UptimeParts, surviveWhatIsNoTime) {
    for (const double seconds : {-1.0, -1e300, never}) EXPECT_EQ(uptimeParts(seconds), UptimeParts()) << seconds;
    EXPECT_GT(uptimeParts(std::numeric_limits<double>::infinity()).days, 1'000'000);
}

}  // namespace zelk
