// SPDX-License-Identifier: MIT
#include <string>

#include "platform/NativePlatform.h"
#include "platform/macos/BulkDirectoryReader.h"
#include "platform/macos/MacFileManager.h"
#include "platform/macos/MacLocations.h"
#include "platform/macos/MacTrash.h"
#include "platform/macos/MacVitals.h"
#include "platform/macos/MacWorkspace.h"
#include "platform/posix/DescriptorLimit.h"
#include "platform/posix/PosixChildProcess.h"
#include "platform/posix/PosixClock.h"
#include "platform/posix/PosixFileContents.h"
#include "platform/posix/PosixTasks.h"
#include "platform/posix/ThreadCount.h"

namespace zelk {

struct NativePlatform::Services {
    explicit Services(const std::string& home) : locations(home), trash(locations.home()) {}

    PosixClock clock;
    ThreadTasks tasks;
    BulkDirectoryService directories;
    MacFileManager files;
    PosixFileContents contents;
    MacVitals vitals;
    MacLocations locations;
    MacTrash trash;
    PosixChildProcess processes;
    MacWorkspace workspace;
    Platform record{clock, directories, files,     contents,         trash, vitals, locations,
                    tasks, processes,   workspace, SystemKind::macOS};
};

NativePlatform::NativePlatform(const std::string& home) : services_(std::make_unique<Services>(home)) {
    raiseDescriptorLimit();
}

NativePlatform::~NativePlatform() = default;

Platform& NativePlatform::platform() {
    return services_->record;
}

bool NativePlatform::drain(double seconds) {
    return drainThreads(seconds);
}

}  // namespace zelk
