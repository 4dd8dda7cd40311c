// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "cli/Output.h"
#include "cli/Survey.h"

namespace zelk::cli {

/// Writes what was found as a text for people: the total, the folders right below the root (or the roots, if there are
/// several), the types, the largest files, what can be had again by category, what has grown since the last record, and
/// how many folders could not be read. Each list of folders or files has at most `top` rows and says what it leaves
/// out. Names are visible text, dates are in local time. A list without rows is left out.
void writeTable(Output& output, const Survey& survey, std::uint64_t top);

}  // namespace zelk::cli
