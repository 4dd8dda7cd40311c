// SPDX-License-Identifier: MIT
#include "platform/NativeStorage.h"

#include "platform/linux/SharedHeap.h"
#include "platform/linux/files/LinuxDirectoryReader.h"
#include "platform/linux/files/LinuxFileManager.h"
#include "platform/linux/files/LinuxLocations.h"
#include "platform/posix/DescriptorLimit.h"
#include "platform/posix/PosixClock.h"
#include "platform/posix/ThreadCount.h"

namespace zelk {

struct NativeStorage::Services {
    explicit Services(const std::string& home) : locations(home) {}

    PosixClock clock;
    LinuxDirectoryService directories;
    LinuxFileManager files;
    LinuxLocations locations;
    Storage record{clock, directories, files, locations};
};

NativeStorage::NativeStorage(const std::string& home) : services_(std::make_unique<Services>(home)) {
    raiseDescriptorLimit();
    shareHeapAmongThreads();
}

NativeStorage::~NativeStorage() = default;

const Storage& NativeStorage::storage() const {
    return services_->record;
}

bool NativeStorage::drain(double seconds) {
    return drainThreads(seconds);
}

}  // namespace zelk
