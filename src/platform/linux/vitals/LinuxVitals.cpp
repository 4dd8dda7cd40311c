// SPDX-License-Identifier: MIT
#include "platform/linux/vitals/LinuxVitals.h"

#include <fcntl.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>

#include "platform/Translation.h"
#include "platform/VitalsArithmetic.h"
#include "platform/linux/vitals/ProcText.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/DirectoryNames.h"

namespace zelk {

namespace {

constexpr std::size_t maxBytesRead = 64 * 1024;

/// Placeholders that manufacturers leave instead of a model name.
bool isPlaceholder(const std::string& model) {
    constexpr std::array<std::string_view, 5> placeholders{"To Be Filled By O.E.M.", "To be filled by O.E.M.",
                                                           "System Product Name", "Default string", "None"};
    return std::find(placeholders.begin(), placeholders.end(), model) != placeholders.end();
}

std::optional<std::string> readStart(const std::string& path) {
    const Descriptor file(uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC); }));
    if (!file) return std::nullopt;
    std::string text(maxBytesRead, '\0');
    std::size_t length = 0;
    while (length < text.size()) {  // /proc may return a file in pieces
        const ssize_t count =
            uninterrupted([&] { return ::read(file.get(), text.data() + length, text.size() - length); });
        if (count < 0) return std::nullopt;
        if (count == 0) break;
        length += static_cast<std::size_t>(count);
    }
    text.resize(length);
    return text;
}

}  // namespace

VolumeInfo volumeOfRecord(const struct statvfs& record) {
    return volumeOfBlocks(record.f_frsize != 0 ? record.f_frsize : record.f_bsize, record.f_blocks, record.f_bavail);
}

DeviceInfo LinuxVitals::device() {
    DeviceInfo device;
    device.computerName = computerName();
    device.chip = chip();
    device.cores = std::max(::sysconf(_SC_NPROCESSORS_ONLN), 0L);
    device.memoryBytes = physicalMemory(readOrEmpty("/proc/meminfo"));
    device.osVersion = systemVersion();
    device.modelIdentifier = modelIdentifier();
    return device;
}

MemoryStats LinuxVitals::memory() {
    const std::string meminfo = readOrEmpty("/proc/meminfo");
    return memoryFromPages(physicalMemory(meminfo), meminfoUnit, memoryCounts(meminfo, zramBytes()));
}

std::optional<CPUTicks> LinuxVitals::ticks() {
    return processorTicks(readOrEmpty("/proc/stat"));
}

PowerInfo LinuxVitals::power() {
    const std::string folder = "/sys/class/power_supply";
    std::vector<PowerSupply> supplies;
    for (const std::string& name : list(folder)) supplies.push_back(powerSupply(folder + "/" + name));
    return powerFromBattery(machineBattery(supplies));
}

std::optional<VolumeInfo> LinuxVitals::volume(const std::string& path) {
    struct statvfs volume {};
    if (uninterrupted([&] { return ::statvfs(path.c_str(), &volume); }) != 0) return std::nullopt;
    return volumeOfRecord(volume);
}

double LinuxVitals::uptime() {
    timespec awake{};  // /proc/uptime and CLOCK_BOOTTIME go on while the machine sleeps
    if (::clock_gettime(CLOCK_MONOTONIC, &awake) != 0) return 0;
    return static_cast<double>(awake.tv_sec) + static_cast<double>(awake.tv_nsec) / 1e9;
}

std::optional<std::string> LinuxVitals::read(const std::string& path) const {
    return readStart(root_ + path);
}

std::string LinuxVitals::textOfHost(const std::string& path) const {
    return sandbox_.isInside() ? readStart(sandbox_.hostPath(path)).value_or("") : readOrEmpty(path);
}

std::vector<std::string> LinuxVitals::list(const std::string& path) const {
    Descriptor folder(
        uninterrupted([&] { return ::open((root_ + path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    std::vector<std::string> names = directoryNames(std::move(folder)).value_or(std::vector<std::string>{});
    std::sort(names.begin(), names.end());
    return names;
}

std::string LinuxVitals::computerName() const {
    if (std::string name = tidied(assignedValue(textOfHost("/etc/machine-info"), "PRETTY_HOSTNAME").value_or(""));
        !name.empty())
        return name;
    // The kernel's name is the one in effect; it is "(none)" if unset.
    for (const std::string& text : {readOrEmpty("/proc/sys/kernel/hostname"), textOfHost("/etc/hostname")})
        if (std::string name = tidied(text); !name.empty() && name != "(none)") return name;
    return translated("SystemTexts", "This computer");
}

std::string LinuxVitals::chip() const {
    std::string name = processorName(readOrEmpty("/proc/cpuinfo"));
    return name.empty() ? chipOfDeviceTree(readOrEmpty("/proc/device-tree/compatible")) : name;
}

std::string LinuxVitals::systemVersion() const {
    // The last one is for a sandbox, which is always given it.
    for (const char* file : {"/etc/os-release", "/usr/lib/os-release", "/os-release"})
        if (std::string name = systemName(textOfHost(file)); !name.empty()) return name;
    return kernelVersionText(readOrEmpty("/proc/sys/kernel/osrelease"));
}

std::string LinuxVitals::modelIdentifier() const {
    for (const char* file : {"/sys/class/dmi/id/product_name", "/proc/device-tree/model"})
        if (std::string model = tidied(readOrEmpty(file)); !model.empty() && !isPlaceholder(model)) return model;
    return {};
}

std::uint64_t LinuxVitals::physicalMemory(const std::string& meminfo) const {
    if (const auto total = memoryField(meminfo, "MemTotal")) return *total;
    const long pages = ::sysconf(_SC_PHYS_PAGES);
    const long pageSize = ::sysconf(_SC_PAGESIZE);
    return pages < 0 || pageSize < 0 ? 0 : static_cast<std::uint64_t>(pages) * static_cast<std::uint64_t>(pageSize);
}

std::uint64_t LinuxVitals::zramBytes() const {
    std::uint64_t bytes = 0;
    for (const std::string& device : list("/sys/block"))
        if (device.starts_with("zram")) bytes += zramMemory(readOrEmpty("/sys/block/" + device + "/mm_stat"));
    return bytes;
}

PowerSupply LinuxVitals::powerSupply(const std::string& folder) const {
    const auto text = [&](const char* file) -> std::optional<std::string> {
        const auto content = read(folder + "/" + file);
        if (!content) return std::nullopt;
        return tidied(*content);
    };
    const auto number = [&](const char* file) { return wholeNumber(readOrEmpty(folder + "/" + file)); };

    PowerSupply supply;
    supply.type = text("type");
    supply.scope = text("scope");
    supply.status = text("status");
    supply.present = number("present");
    supply.online = number("online");
    supply.capacity = number("capacity");
    supply.chargeNow = number("charge_now");
    supply.chargeFull = number("charge_full");
    supply.energyNow = number("energy_now");
    supply.energyFull = number("energy_full");
    return supply;
}

}  // namespace zelk
