// SPDX-License-Identifier: MIT
#pragma once

namespace zelk {

/// While this lives, nothing that the calling thread opens or lists is fetched from where a cloud service keeps it: a
/// folder that is not on the disk cannot be read instead (EDEADLK). Made and destroyed on one thread, to which it gives
/// back what held before.
///
/// This was compiled for macOS and tried against a stand-in for the call. It has not been run on a Mac.
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
