// SPDX-License-Identifier: MIT
#include <string>

#include "platform/NativePlatform.h"
#include "platform/NativeStorage.h"
#include "platform/linux/AbsentTools.h"
#include "platform/linux/Sandbox.h"
#include "platform/linux/apps/LinuxWorkspace.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "platform/linux/vitals/LinuxVitals.h"
#include "platform/posix/PosixChildProcess.h"
#include "platform/posix/PosixFileContents.h"
#include "platform/posix/PosixTasks.h"

namespace zelk {

struct NativePlatform::Services {
    explicit Services(const std::string& home)
        : storage(home),
          trash(home, sandbox),
          workspace(files.locations.xdgHomes()->data, trash.location(), sandbox, ownProcesses) {}

    const Sandbox sandbox;
    NativeStorage storage;
    const Storage& files = storage.storage();
    ThreadTasks tasks;
    PosixFileContents contents;
    LinuxVitals vitals;
    LinuxTrash trash;
    PosixChildProcess ownProcesses;
    AbsentTools absentTools;
    ChildProcess& processes = sandbox.isInside() ? static_cast<ChildProcess&>(absentTools) : ownProcesses;
    LinuxWorkspace workspace;
    Platform record{
        files.clock, files.directories,       files.files, contents, trash, vitals, files.locations, tasks, processes,
        workspace,   SystemKind::desktopLinux};
};

NativePlatform::NativePlatform(const std::string& home) : services_(std::make_unique<Services>(home)) {}

NativePlatform::~NativePlatform() = default;

Platform& NativePlatform::platform() {
    return services_->record;
}

bool NativePlatform::drain(double seconds) {
    return services_->storage.drain(seconds);
}

}  // namespace zelk
