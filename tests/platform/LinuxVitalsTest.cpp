// SPDX-License-Identifier: MIT
#include "platform/linux/vitals/LinuxVitals.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <stdlib.h>
#include <sys/statvfs.h>
#include <time.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <limits>

#include "fakes/InChild.h"
#include "fakes/TestFiles.h"

namespace zelk {
namespace {

/// A fake /proc, /sys and /etc.
class FakeMachine : public testing::Test {
protected:
    FakeMachine() {
        std::string pattern = (std::filesystem::temp_directory_path() / "zelk-vitals-XXXXXX").string();
        root = ::mkdtemp(pattern.data());
    }
    ~FakeMachine() override { std::filesystem::remove_all(root); }

    void write(const std::string& path, std::string_view content) {
        const std::filesystem::path file = root + path;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << content;
        ASSERT_TRUE(std::filesystem::is_regular_file(file));
    }
    void writeSupply(const std::string& name, const std::vector<std::pair<std::string, std::string>>& files) {
        for (const auto& [file, content] : files) write("/sys/class/power_supply/" + name + "/" + file, content + "\n");
    }

    std::string root;
    LinuxVitals vitals() const { return LinuxVitals(root); }
    DeviceInfo device() const { return vitals().device(); }
    PowerInfo power() const { return vitals().power(); }
};

PowerInfo battery(std::int64_t percent, bool charging, bool onAC) {
    return {true, percent, charging, onAC};
}

TEST_F(FakeMachine, missingSourcesGiveEmptyRecords) {
    const DeviceInfo info = device();
    EXPECT_EQ(info.computerName, "This computer");
    EXPECT_EQ(info.chip, "");
    EXPECT_EQ(info.osVersion, "");
    EXPECT_EQ(info.modelIdentifier, "");
    EXPECT_GT(info.cores, 0);
    EXPECT_FALSE(vitals().ticks().has_value());
    EXPECT_EQ(power(), PowerInfo{});
}

TEST_F(FakeMachine, failedMemoryReadShowsNothingUsed) {
    const MemoryStats stats = vitals().memory();
    EXPECT_EQ(stats.total, static_cast<std::uint64_t>(::sysconf(_SC_PHYS_PAGES)) *
                               static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE)));
    EXPECT_EQ(stats, (MemoryStats{stats.total, 0, stats.total, 0, 0}));
}

TEST_F(FakeMachine, tellsTheHostOfASandboxAndNotItsRuntime) {
    write("/.flatpak-info", "[Application]\n");
    write("/etc/os-release", "PRETTY_NAME=\"A runtime\"\n");
    write("/etc/machine-info", "PRETTY_HOSTNAME=\"A runtime\"\n");
    EXPECT_EQ(device().osVersion, "");
    EXPECT_EQ(device().computerName, "This computer");
    write("/run/host/os-release", "PRETTY_NAME=\"Sample OS 1\"\n");
    EXPECT_EQ(device().osVersion, "Sample OS 1");
    write("/run/host/usr/lib/os-release", "PRETTY_NAME=\"Sample OS 2\"\n");
    EXPECT_EQ(device().osVersion, "Sample OS 2");
    write("/run/host/etc/os-release", "PRETTY_NAME=\"Sample OS 3\"\n");
    write("/run/host/etc/hostname", "static\n");
    EXPECT_EQ(device().osVersion, "Sample OS 3");
    EXPECT_EQ(device().computerName, "static");
    write("/run/host/etc/machine-info", "PRETTY_HOSTNAME=\"My machine\"\n");
    EXPECT_EQ(device().computerName, "My machine");
    std::filesystem::remove(root + "/.flatpak-info");
    EXPECT_EQ(device().osVersion, "A runtime");
    EXPECT_EQ(device().computerName, "A runtime");
}

TEST_F(FakeMachine, prefersPrettyHostname) {
    write("/etc/hostname", "static\n");
    EXPECT_EQ(device().computerName, "static");
    write("/proc/sys/kernel/hostname", "running\n");
    EXPECT_EQ(device().computerName, "running");
    write("/etc/machine-info", "CHASSIS=laptop\nPRETTY_HOSTNAME=\"Anna's laptop\"\n");
    EXPECT_EQ(device().computerName, "Anna's laptop");
}

TEST_F(FakeMachine, skipsEmptyNames) {
    write("/etc/machine-info", "PRETTY_HOSTNAME=\"\"\n");
    write("/proc/sys/kernel/hostname", "(none)\n");
    write("/etc/hostname", "\n");
    EXPECT_EQ(device().computerName, "This computer");
}

TEST_F(FakeMachine, chipFallsBackToTheDeviceTree) {
    write("/proc/device-tree/compatible", std::string_view("raspberrypi,4-model-b\0brcm,bcm2711\0", 36));
    write("/proc/cpuinfo", "processor\t: 0\nCPU part\t: 0xd08\n");
    EXPECT_EQ(device().chip, "bcm2711");
    write("/proc/cpuinfo", "processor\t: 0\nmodel name\t: AMD Ryzen 7\n");
    EXPECT_EQ(device().chip, "AMD Ryzen 7");
}

TEST_F(FakeMachine, systemVersionFallsBackToTheKernel) {
    write("/proc/sys/kernel/osrelease", "6.1.5-7-amd64\n");
    EXPECT_EQ(device().osVersion, "Linux 6.1.5");
    write("/usr/lib/os-release", "PRETTY_NAME=\"Fedora Linux 39 (Workstation Edition)\"\n");
    EXPECT_EQ(device().osVersion, "Fedora Linux 39");
    write("/etc/os-release", "PRETTY_NAME=\"Debian GNU/Linux 12 (bookworm)\"\n");
    EXPECT_EQ(device().osVersion, "Debian GNU/Linux 12");
}

TEST_F(FakeMachine, ignoresPlaceholderModels) {
    write("/proc/device-tree/model", std::string_view("Raspberry Pi 4 Model B\0", 23));
    EXPECT_EQ(device().modelIdentifier, "Raspberry Pi 4 Model B");
    write("/sys/class/dmi/id/product_name", "To Be Filled By O.E.M.\n");
    EXPECT_EQ(device().modelIdentifier, "Raspberry Pi 4 Model B");
    write("/sys/class/dmi/id/product_name", "20XW0026GE\n");
    EXPECT_EQ(device().modelIdentifier, "20XW0026GE");
}

TEST_F(FakeMachine, memoryIncludesZram) {
    write(
        "/proc/meminfo",
        "MemTotal: 1000 kB\nActive(anon): 100 kB\nInactive(anon): 50 kB\nUnevictable: 20 kB\nInactive(file): 700 kB\n");
    write("/sys/block/zram0/mm_stat", "9 9 10240 0 0 0 0 0 0\n");
    write("/sys/block/zram1/mm_stat", "9 9 20480 0 0 0 0 0 0\n");
    write("/sys/block/sda/mm_stat", "9 9 40960 0 0 0 0 0 0\n");
    EXPECT_EQ(vitals().memory(), (MemoryStats{1000 * 1024, 200 * 1024, 800 * 1024, 20 * 1024, 30 * 1024}));
    EXPECT_EQ(device().memoryBytes, 1000U * 1024);
}

TEST_F(FakeMachine, usedMemoryIsCappedAtTheTotal) {
    write("/proc/meminfo", "MemTotal: 100 kB\nActive(anon): 90 kB\nInactive(anon): 50 kB\n");
    EXPECT_EQ(vitals().memory(), (MemoryStats{100 * 1024, 100 * 1024, 0, 0, 0}));
}

TEST_F(FakeMachine, readsTicks) {
    write("/proc/stat", "cpu  1 2 3 4 5 6 7 8 0 0\n");
    EXPECT_EQ(vitals().ticks(), (CPUTicks{1, 24, 9, 2}));
}

TEST_F(FakeMachine, desktopWithoutBatteryIsOnAC) {
    writeSupply("AC", {{"type", "Mains"}, {"online", "0"}});
    EXPECT_EQ(power(), PowerInfo{});
}

TEST_F(FakeMachine, laptopOnACCharges) {
    writeSupply("AC", {{"type", "Mains"}, {"online", "1"}});
    writeSupply("BAT0", {{"type", "Battery"}, {"present", "1"}, {"capacity", "63"}, {"status", "Charging"}});
    EXPECT_EQ(power(), battery(63, true, true));
}

TEST_F(FakeMachine, laptopOffACDischarges) {
    writeSupply("AC", {{"type", "Mains"}, {"online", "0"}});
    writeSupply("BAT0", {{"type", "Battery"}, {"capacity", "63"}, {"status", "Discharging"}});
    EXPECT_EQ(power(), battery(63, false, false));
}

TEST_F(FakeMachine, fullBatteryOnUsbChargerIsOnACAndNotCharging) {
    writeSupply("BAT0", {{"type", "Battery"}, {"capacity", "100"}, {"status", "Full"}});
    writeSupply("ucsi-1", {{"type", "USB"}, {"online", "0"}});
    writeSupply("ucsi-2", {{"type", "USB"}, {"online", "1"}});
    EXPECT_EQ(power(), battery(100, false, true));
}

TEST_F(FakeMachine, batteryStatusDecidesACWithoutOtherSupply) {
    writeSupply("BAT0", {{"type", "Battery"}, {"capacity", "50"}, {"status", "Not charging"}});
    EXPECT_EQ(power(), battery(50, false, true));
    writeSupply("BAT0", {{"status", "Discharging"}});
    EXPECT_EQ(power(), battery(50, false, false));
    writeSupply("BAT0", {{"status", "Unknown"}});
    EXPECT_EQ(power(), battery(50, false, false));
}

TEST_F(FakeMachine, ignoresBatteryOfAPeripheral) {
    writeSupply("hidpp_battery_0", {{"type", "Battery"}, {"scope", "Device"}, {"capacity", "5"}});
    EXPECT_EQ(power(), PowerInfo{});
    writeSupply("z", {{"type", "Battery"}, {"scope", "System"}, {"capacity", "40"}, {"status", "Discharging"}});
    EXPECT_EQ(power(), battery(40, false, false));
}

TEST_F(FakeMachine, ignoresUps) {
    writeSupply("ups", {{"type", "UPS"}, {"online", "1"}, {"capacity", "90"}});
    EXPECT_EQ(power(), PowerInfo{});
    writeSupply("BAT0", {{"type", "Battery"}, {"capacity", "50"}, {"status", "Discharging"}});
    EXPECT_EQ(power(), battery(50, false, false));
}

TEST_F(FakeMachine, ignoresEmptyBatteryBay) {
    writeSupply("BAT0", {{"type", "Battery"}, {"present", "0"}});
    EXPECT_EQ(power(), PowerInfo{});
}

TEST_F(FakeMachine, usesTheFirstOfTwoBatteries) {
    writeSupply("BAT1", {{"type", "Battery"}, {"capacity", "10"}, {"status", "Full"}});
    writeSupply("BAT0", {{"type", "Battery"}, {"capacity", "80"}, {"status", "Full"}});
    EXPECT_EQ(power().percent, 80);
}

TEST_F(FakeMachine, percentFallsBackToEnergyOrCharge) {
    writeSupply("BAT0", {{"type", "Battery"}, {"energy_now", "50"}, {"energy_full", "60"}});
    EXPECT_EQ(power().percent, 83);
    writeSupply("BAT0", {{"energy_full", "0"}});
    EXPECT_EQ(power().percent, 50) << "without a full capacity the raw one is shown";
    std::filesystem::remove(root + "/sys/class/power_supply/BAT0/energy_now");
    writeSupply("BAT0", {{"charge_now", "1000"}, {"charge_full", "4000"}});
    EXPECT_EQ(power().percent, 25);
}

TEST_F(FakeMachine, batteryWithoutValuesHasZeroPercent) {
    writeSupply("BAT0", {{"type", "Battery"}, {"capacity", "many"}});
    EXPECT_EQ(power(), battery(0, false, false));
}

TEST_F(FakeMachine, volumeMatchesStatvfs) {
    struct statvfs expected {};
    ASSERT_EQ(::statvfs(root.c_str(), &expected), 0);
    const auto volume = vitals().volume(root);
    ASSERT_TRUE(volume.has_value());
    EXPECT_EQ(volume->total, static_cast<std::int64_t>(expected.f_blocks * expected.f_frsize));
    EXPECT_GE(volume->available, 0);
    EXPECT_LE(volume->available, volume->total);
    EXPECT_EQ(volume->importantAvailable, volume->available);
}

TEST_F(FakeMachine, missingVolumeIsAbsent) {
    EXPECT_FALSE(vitals().volume(root + "/missing").has_value());
    EXPECT_FALSE(vitals().volume("").has_value());
}

/// A record whose fields all differ.
struct statvfs volumeRecord() {
    struct statvfs record {};
    record.f_bsize = 1'048'576;
    record.f_frsize = 4'096;
    record.f_blocks = 1'000;
    record.f_bfree = 500;
    record.f_bavail = 250;
    record.f_files = 70;
    record.f_ffree = 60;
    record.f_favail = 50;
    return record;
}

TEST(VolumeOfRecord, usesFragmentSizeAndUnprivilegedBlocks) {
    EXPECT_EQ(volumeOfRecord(volumeRecord()), (VolumeInfo{4'096'000, 1'024'000, 1'024'000}));
}

TEST(VolumeOfRecord, fallsBackToBlockSize) {
    struct statvfs record = volumeRecord();
    record.f_frsize = 0;
    EXPECT_EQ(volumeOfRecord(record), (VolumeInfo{1'048'576'000, 262'144'000, 262'144'000}));
}

TEST(LinuxVitals, readsTheRealMachine) {
    LinuxVitals vitals;
    const DeviceInfo device = vitals.device();
    EXPECT_FALSE(device.computerName.empty());
    EXPECT_GT(device.cores, 0);
    EXPECT_GT(device.memoryBytes, 0U);
    const MemoryStats memory = vitals.memory();
    EXPECT_EQ(memory.total, device.memoryBytes);
    EXPECT_EQ(memory.used + memory.free, memory.total);
    EXPECT_GT(memory.used, 0U);
    EXPECT_GT(memory.free, 0U);
    const auto ticks = vitals.ticks();
    ASSERT_TRUE(ticks.has_value());
    EXPECT_GT(ticks->user + ticks->system, 0);
    EXPECT_TRUE(vitals.volume("/").has_value());
}

double secondsOf(clockid_t clock) {
    timespec now{};
    ::clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

TEST(LinuxVitals, uptimeIsThatOfTheClockThatStopsInSleep) {
    const double before = secondsOf(CLOCK_MONOTONIC);
    const double uptime = LinuxVitals().uptime();
    EXPECT_GE(uptime, before);
    EXPECT_LE(uptime, secondsOf(CLOCK_MONOTONIC));
}

// Most machines that run tests never sleep. A time namespace can be told that this one slept for a day.
TEST(LinuxVitals, uptimeExcludesSleep) {
    constexpr int newTime = 0x80;  // CLONE_NEWTIME, which older headers lack
    const bool permitted = fakes::inChild([] { return ::unshare(newTime) == 0; });
    if (!permitted) GTEST_SKIP() << "no time namespace can be made here";
    EXPECT_TRUE(fakes::inChild([] {
        const double awake = secondsOf(CLOCK_MONOTONIC);
        if (::unshare(newTime) != 0) return false;
        fakes::writeFile("/proc/self/timens_offsets", "boottime 86400 0\n");
        return fakes::inChild([awake] {
            const bool slept = secondsOf(CLOCK_BOOTTIME) >= awake + 86400;
            const double uptime = LinuxVitals().uptime();
            return slept && uptime >= awake && uptime <= secondsOf(CLOCK_MONOTONIC);
        });
    }));
}

}  // namespace
}  // namespace zelk
