// SPDX-License-Identifier: MIT
#pragma once

namespace zelk {

/// While this exists, opening and listing on this thread downloads nothing from cloud storage: a folder that is not on
/// the disk fails with EDEADLK. Create and destroy it on one thread, whose policy it restores.
///
/// Compiled for macOS and tested with a stand-in for the call; never run on a Mac.
class DatalessFetchGuard {
public:
    DatalessFetchGuard();
    ~DatalessFetchGuard();
    DatalessFetchGuard(const DatalessFetchGuard&) = delete;
    DatalessFetchGuard& operator=(const DatalessFetchGuard&) = delete;

private:
    int before_;
};

}  // namespace zelk
