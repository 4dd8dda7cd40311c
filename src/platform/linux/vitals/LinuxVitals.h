// SPDX-License-Identifier: MIT
#pragma once

#include <sys/statvfs.h>

#include <string>
#include <vector>

#include "platform/Vitals.h"
#include "platform/linux/vitals/PowerSupply.h"

namespace zelk {

/// A volume by the system's record. Blocks are counted in the smallest unit of the volume, not in the size that is best
/// for reading; what only the superuser may take is not available.
VolumeInfo volumeOfRecord(const struct statvfs& record);

/// The vitals out of /proc, /sys and /etc. Keeps nothing between two reads. Texts are the system's bytes, which need
/// not be UTF-8.
///
/// Where each comes from: the computer's name from machine-info (the one that its owner gave), else the host name; the
/// chip from cpuinfo, else the device tree; the system from os-release, else the kernel's version; the model from DMI,
/// else the device tree. ProcText.h says how memory is counted.
class LinuxVitals : public Vitals {
public:
    /// `root` stands in front of /proc, /sys and /etc, for tests.
    explicit LinuxVitals(std::string root = {}) : root_(std::move(root)) {}

    DeviceInfo device() override;
    MemoryStats memory() override;
    std::optional<CPUTicks> ticks() override;
    PowerInfo power() override;
    std::optional<VolumeInfo> volume(const std::string& path) override;
    double uptime() override;

private:
    /// The start of a file, which is all that is ever needed; absent if it cannot be read.
    std::optional<std::string> read(const std::string& path) const;
    std::string readOrEmpty(const std::string& path) const { return read(path).value_or(std::string{}); }
    /// Sorted, so that the first battery is the same one each time.
    std::vector<std::string> list(const std::string& path) const;

    std::string computerName() const;
    std::string chip() const;
    std::string systemVersion() const;
    std::string modelIdentifier() const;
    std::uint64_t physicalMemory(const std::string& meminfo) const;
    std::uint64_t zramBytes() const;
    PowerSupply powerSupply(const std::string& folder) const;

    std::string root_;
};

}  // namespace zelk
