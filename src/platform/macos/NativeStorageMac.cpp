// SPDX-License-Identifier: MIT
#include "platform/NativeStorage.h"

#include "platform/macos/BulkDirectoryReader.h"
#include "platform/macos/MacFileManager.h"
#include "platform/macos/MacLocations.h"
#include "platform/posix/DescriptorLimit.h"
#include "platform/posix/PosixClock.h"
#include "platform/posix/ThreadCount.h"

namespace zelk {

struct NativeStorage::Services {
    explicit Services(const std::string& home) : locations(home) {}

    PosixClock clock;
    BulkDirectoryService directories;
    MacFileManager files;
    MacLocations locations;
    Storage record{clock, directories, files, locations};
};

NativeStorage::NativeStorage(const std::string& home) : services_(std::make_unique<Services>(home)) {
    raiseDescriptorLimit();
}

NativeStorage::~NativeStorage() = default;

const Storage& NativeStorage::storage() const {
    return services_->record;
}

bool NativeStorage::drain(double seconds) {
    return drainThreads(seconds);
}

}  // namespace zelk
