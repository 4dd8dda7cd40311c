// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/Platform.h"

namespace zelk {

/// The services of the system that this build runs on, made once by app/ (and by the programs under bench/ and tools/).
class NativePlatform {
public:
    /// `home` replaces the user's home folder; empty takes the real one.
    explicit NativePlatform(const std::string& home = {});
    ~NativePlatform();
    NativePlatform(const NativePlatform&) = delete;
    NativePlatform& operator=(const NativePlatform&) = delete;

    Platform& platform();

    /// Waits for the background tasks and the scan threads to end, `seconds` at most. False if some are still busy (a
    /// network volume that does not answer): they may still use the services, so the process must then end without
    /// destroying anything.
    bool drain(double seconds);

private:
    struct Services;
    std::unique_ptr<Services> services_;
};

}  // namespace zelk
