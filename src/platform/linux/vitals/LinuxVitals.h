// SPDX-License-Identifier: MIT
#pragma once

#include <sys/statvfs.h>

#include <string>
#include <vector>

#include "platform/Vitals.h"
#include "platform/linux/Sandbox.h"
#include "platform/linux/vitals/PowerSupply.h"

namespace zelk {

/// Converts a statvfs record. Counts blocks in f_frsize, not the preferred I/O size, and excludes blocks reserved for
/// the superuser.
VolumeInfo volumeOfRecord(const struct statvfs& record);

/// Reads the vitals from /proc, /sys and /etc, without caching. Texts are raw bytes that need not be UTF-8.
///
/// Sources: the computer name from machine-info (set by the owner), else the host name; the chip from cpuinfo, else the
/// device tree; the system from os-release, else the kernel version; the model from DMI, else the device tree.
/// In a sandbox of Flatpak, machine-info, os-release and the file of the host name are the host's, below "/run/host".
/// ProcText.h describes how memory is counted.
class LinuxVitals : public Vitals {
public:
    /// `root` is prepended to /proc, /sys, /etc and what tells of a sandbox, for tests.
    explicit LinuxVitals(std::string root = {}) : root_(std::move(root)), sandbox_(root_) {}

    DeviceInfo device() override;
    MemoryStats memory() override;
    std::optional<CPUTicks> ticks() override;
    PowerInfo power() override;
    std::optional<VolumeInfo> volume(const std::string& path) override;
    double uptime() override;

private:
    /// Reads the start of a file, which is all that is needed; absent if unreadable.
    std::optional<std::string> read(const std::string& path) const;
    std::string readOrEmpty(const std::string& path) const { return read(path).value_or(std::string{}); }
    /// The same of a file of the system, which a sandbox has elsewhere.
    std::string textOfHost(const std::string& path) const;
    /// Sorted, so that the first battery is always the same.
    std::vector<std::string> list(const std::string& path) const;

    std::string computerName() const;
    std::string chip() const;
    std::string systemVersion() const;
    std::string modelIdentifier() const;
    std::uint64_t physicalMemory(const std::string& meminfo) const;
    std::uint64_t zramBytes() const;
    PowerSupply powerSupply(const std::string& folder) const;

    std::string root_;
    Sandbox sandbox_;
};

}  // namespace zelk
