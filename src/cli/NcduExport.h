// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "cli/Output.h"
#include "cli/Survey.h"

namespace zelk::cli {

/// Writes the tree of a survey in ncdu's export format 1.2: each folder with one entry for the files directly in it,
/// "(3 files)", of the size that these have together, and then its folders. Names are written as the bytes that they
/// are, so this is no valid JSON if they are no valid UTF-8. Hard links count once in the whole tree, so the total is
/// that of the survey. Several roots are put below the folder that holds them all. Any depth.
void writeNcduExport(Output& output, const Survey& survey, std::string_view version);

}  // namespace zelk::cli
