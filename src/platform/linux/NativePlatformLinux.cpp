// SPDX-License-Identifier: MIT
#include <string>

#include "platform/NativePlatform.h"
#include "platform/linux/apps/LinuxWorkspace.h"
#include "platform/linux/files/LinuxDirectoryReader.h"
#include "platform/linux/files/LinuxFileManager.h"
#include "platform/linux/files/LinuxLocations.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "platform/linux/vitals/LinuxVitals.h"
#include "platform/posix/DescriptorLimit.h"
#include "platform/posix/PosixChildProcess.h"
#include "platform/posix/PosixClock.h"
#include "platform/posix/PosixFileContents.h"
#include "platform/posix/PosixTasks.h"
#include "platform/posix/ThreadCount.h"

namespace zelk {

struct NativePlatform::Services {
    explicit Services(const std::string& home)
        : locations(home), trash(home), workspace(*locations.applicationSupport(), trash.location()) {}

    PosixClock clock;
    ThreadTasks tasks;
    LinuxDirectoryService directories;
    LinuxFileManager files;
    PosixFileContents contents;
    LinuxVitals vitals;
    LinuxLocations locations;
    LinuxTrash trash;
    PosixChildProcess processes;
    LinuxWorkspace workspace;
    Platform record{clock,
                    directories,
                    files,
                    contents,
                    trash,
                    vitals,
                    locations,
                    tasks,
                    processes,
                    workspace,
                    SystemKind::desktopLinux};
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
