// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/FileManager.h"
#include "platform/Locations.h"

namespace zelk {

/// Something that is started in the background, with the session or the system. Identified by its path.
struct Agent {
    std::string label;                   ///< its name; UTF-8 unless it comes from the name of the file
    std::string path;                    ///< of the file that describes it, in bytes
    std::optional<std::string> program;  ///< the executable that it names, if that file exists
    bool removable = false;              ///< it lies in the user's own folder, and removing it starts nothing else
    bool replaces = false;               ///< it is the user's, and the system would start its own if it were removed
    bool mayReplace = false;             ///< it is the user's, and whether the system would cannot be seen from here
    std::string link = {};  ///< of the user's: the deepest link on the way from the home to its folder, if there is one

    bool operator==(const Agent&) const = default;
};

/// Reads the folders of background items; per folder in the order of the file names. Skips folders that cannot be
/// listed. Lists a file that cannot be read by its own name. Blocking; the calls are as many as there are files.
///
/// Of Linux only what is started is listed: not an entry that is switched off, nor a unit that is masked, nor what
/// either of them hides. Removing such a file would start something. A file of more than 1 MiB is not listed either,
/// since it is read no further.
std::vector<Agent> backgroundItems(FileManager& files, Locations& locations);

/// Whether `agent`, which was removable when it was listed, would be listed as removable now, in the folder that it was
/// listed in: what is on the disk may have changed since. Blocking.
bool isRemovableNow(FileManager& files, Locations& locations, const Agent& agent);

}  // namespace zelk
