// SPDX-License-Identifier: MIT
// What the program knows about places on a disk, from their paths alone: no file is touched.
#pragma once

#include <string>
#include <string_view>

#include "reclaim/ReclaimCatalogue.h"

namespace zelk {

struct PathExplanation {
    std::string title;  ///< a headline, or the bytes of the path's last component
    std::string_view detail;
    ReclaimSafety safety = ReclaimSafety::review;
    bool regenerates = false;  ///< said beside the grade, whatever that is

    bool operator==(const PathExplanation&) const = default;
};

/// A note for a person who wonders what lies at `path` (bytes). Names count before places, places before extensions,
/// and the folders of `home` come last. Letters other than A to Z have no other case.
PathExplanation explain(std::string_view path, std::string_view home);

/// How a disk image shrinks.
std::string_view diskImageAdvice(std::string_view path);

}  // namespace zelk
