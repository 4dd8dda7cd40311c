// SPDX-License-Identifier: MIT
#include "platform/macos/KernelFigures.h"

#include <mach/mach.h>
#include <sys/sysctl.h>

namespace zelk {

namespace {

/// Called once: every mach_host_self() adds a reference that would have to be released.
mach_port_t host() {
    static const mach_port_t port = mach_host_self();
    return port;
}

}  // namespace

std::optional<std::string> sysctlText(const char* name) {
    std::size_t size = 0;
    if (sysctlbyname(name, nullptr, &size, nullptr, 0) != 0 || size < 1) return std::nullopt;
    std::string value(size, '\0');
    if (sysctlbyname(name, value.data(), &size, nullptr, 0) != 0) return std::nullopt;
    return std::string(value.c_str());
}

std::uint64_t kernelPageSize() {
    vm_size_t size = 0;
    return host_page_size(host(), &size) == KERN_SUCCESS ? size : 0;
}

std::optional<PageCounts> kernelPageCounts() {
    vm_statistics64_data_t statistics{};
    mach_msg_type_number_t words = HOST_VM_INFO64_COUNT;
    if (host_statistics64(host(), HOST_VM_INFO64, reinterpret_cast<host_info64_t>(&statistics), &words) != KERN_SUCCESS)
        return std::nullopt;
    return PageCounts{.wired = statistics.wire_count,
                      .active = statistics.active_count,
                      .compressor = statistics.compressor_page_count};
}

std::optional<CPUTicks> kernelTicks() {
    host_cpu_load_info_data_t load{};
    mach_msg_type_number_t words = HOST_CPU_LOAD_INFO_COUNT;
    if (host_statistics(host(), HOST_CPU_LOAD_INFO, reinterpret_cast<host_info_t>(&load), &words) != KERN_SUCCESS)
        return std::nullopt;
    const auto ticks = [&](int state) { return static_cast<double>(load.cpu_ticks[state]); };
    return CPUTicks{.user = ticks(CPU_STATE_USER),
                    .system = ticks(CPU_STATE_SYSTEM),
                    .idle = ticks(CPU_STATE_IDLE),
                    .nice = ticks(CPU_STATE_NICE)};
}

}  // namespace zelk
