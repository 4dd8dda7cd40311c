// SPDX-License-Identifier: MIT
// Explains what a path on a disk is, from its text alone. Nothing here touches the disk.
#pragma once

#include <string>
#include <string_view>

#include "reclaim/ReclaimCatalogue.h"

namespace zelk {

struct PathExplanation {
    std::string title;        ///< a translated headline, or the last component of the path as bytes
    std::string_view detail;  ///< not translated, as it may name the system
    ReclaimSafety safety = ReclaimSafety::review;
    bool regenerates = false;  ///< shown beside the grade, independently of it

    bool operator==(const PathExplanation&) const = default;
};

/// Explains `path` (bytes). Matches the name first, then the location, then the extension, then the folders of `home`.
/// Lower-cases A to Z only.
PathExplanation explain(std::string_view path, std::string_view home);

/// How to shrink a disk image, not translated.
std::string_view diskImageAdvice(std::string_view path);

}  // namespace zelk
