// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/Platform.h"

namespace zelk {

/// The platform services of this operating system, created once by app/ (and by the programs in bench/ and tools/).
class NativePlatform {
public:
    /// `home` replaces the user's home folder; empty takes the real one.
    explicit NativePlatform(const std::string& home = {});
    ~NativePlatform();
    NativePlatform(const NativePlatform&) = delete;
    NativePlatform& operator=(const NativePlatform&) = delete;

    Platform& platform();

    /// Waits up to `seconds` for background tasks and scan threads to end. False if some are still running (for example
    /// on a network volume that does not answer): they may still use the services, so the process must exit without
    /// destroying anything.
    bool drain(double seconds);

private:
    struct Services;
    std::unique_ptr<Services> services_;
};

}  // namespace zelk
