// SPDX-License-Identifier: MIT
// The services that the rest of the program needs from the operating system. app/ fills it once, tests fill it with
// fakes.
#pragma once

#include "platform/BackgroundTasks.h"
#include "platform/ChildProcess.h"
#include "platform/DirectoryReader.h"
#include "platform/FileContents.h"
#include "platform/FileManager.h"
#include "platform/Locations.h"
#include "platform/SystemKind.h"
#include "platform/Time.h"
#include "platform/Trash.h"
#include "platform/Vitals.h"
#include "platform/Workspace.h"

namespace zelk {

/// Holds references only; its creator keeps the services alive while anything uses them.
struct Platform {
    Clock& clock;
    DirectoryService& directories;
    FileManager& files;
    FileContents& contents;
    Trash& trash;
    Vitals& vitals;
    Locations& locations;
    BackgroundTasks& tasks;
    ChildProcess& processes;
    Workspace& workspace;
    SystemKind system;
};

}  // namespace zelk
