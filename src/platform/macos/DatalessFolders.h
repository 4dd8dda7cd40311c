// SPDX-License-Identifier: MIT
#pragma once

namespace zelk {

/// While this exists, opening and listing on this thread downloads nothing from cloud storage: a folder that is not on
/// the disk fails with EDEADLK. Create and destroy it on one thread, whose policy it restores.
///
/// Compiled for macOS and tested with a stand-in for the call; never run on a Mac.
class DatalessFoldersStay {
public:
    DatalessFoldersStay();
    ~DatalessFoldersStay();
    DatalessFoldersStay(const DatalessFoldersStay&) = delete;
    DatalessFoldersStay& operator=(const DatalessFoldersStay&) = delete;

private:
    int before_;
};

}  // namespace zelk
