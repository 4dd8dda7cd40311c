// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <string>

#include "platform/NativePlatform.h"
#include "platform/NativeStorage.h"
#include "platform/ToolPath.h"
#include "platform/macos/MacTrash.h"
#include "platform/macos/MacVitals.h"
#include "platform/macos/MacWorkspace.h"
#include "platform/posix/PosixChildProcess.h"
#include "platform/posix/PosixFileContents.h"
#include "platform/posix/PosixTasks.h"

namespace zelk {

namespace {

const char* inheritedPath() {
    const char* const path = std::getenv("PATH");
    return path == nullptr ? "" : path;
}

}  // namespace

struct NativePlatform::Services {
    explicit Services(const std::string& home)
        : storage(home),
          trash(files.locations.home()),
          processes(toolPath(inheritedPath(), files.files, files.locations.home())) {}

    NativeStorage storage;
    const Storage& files = storage.storage();
    ThreadTasks tasks;
    PosixFileContents contents;
    MacVitals vitals;
    MacTrash trash;
    PosixChildProcess processes;
    MacWorkspace workspace;
    Platform record{files.clock, files.directories, files.files, contents,         trash, vitals, files.locations,
                    tasks,       processes,         workspace,   SystemKind::macOS};
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
