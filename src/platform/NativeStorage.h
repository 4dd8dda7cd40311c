// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "platform/Storage.h"

namespace zelk {

/// The part of NativePlatform that knows no desktop, for a program without windows: it needs none of their libraries.
class NativeStorage {
public:
    /// `home` replaces the user's home folder; empty takes the real one.
    explicit NativeStorage(const std::string& home = {});
    ~NativeStorage();
    NativeStorage(const NativeStorage&) = delete;
    NativeStorage& operator=(const NativeStorage&) = delete;

    const Storage& storage() const;

    /// Waits up to `seconds` for background tasks and scan threads to end. False if some are still running (for example
    /// on a network volume that does not answer): they may still use the services, so the process must exit without
    /// destroying anything.
    bool drain(double seconds);

private:
    struct Services;
    std::unique_ptr<Services> services_;
};

}  // namespace zelk
