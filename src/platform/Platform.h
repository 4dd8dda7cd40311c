// SPDX-License-Identifier: MIT
// All that the rest of the house needs of the operating system, filled once by app/ and by tests with fakes.
#pragma once

#include "platform/BackgroundTasks.h"
#include "platform/ChildProcess.h"
#include "platform/DirectoryReader.h"
#include "platform/FileManager.h"
#include "platform/Locations.h"
#include "platform/Time.h"
#include "platform/Trash.h"
#include "platform/Vitals.h"
#include "platform/Workspace.h"

namespace zelk {

/// References only; whoever fills it keeps the services alive for as long as anything uses them.
struct Platform {
    Clock& clock;
    DirectoryService& directories;
    FileManager& files;
    Trash& trash;
    Vitals& vitals;
    Locations& locations;
    BackgroundTasks& tasks;
    ChildProcess& processes;
    Workspace& workspace;
};

}  // namespace zelk
