// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DirectoryReader.h"
#include "platform/FileManager.h"
#include "platform/Locations.h"
#include "platform/Time.h"

namespace zelk {

/// What a survey needs of the operating system. Holds references only; its creator keeps the services alive.
struct Storage {
    Clock& clock;
    DirectoryService& directories;
    FileManager& files;
    Locations& locations;
};

}  // namespace zelk
