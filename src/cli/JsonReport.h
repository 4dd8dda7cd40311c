// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "cli/Output.h"
#include "cli/Survey.h"

namespace zelk::cli {

/// Of the format that docs/survey-json.md describes. Grows when a member changes its meaning, its type or goes; not
/// when one is added.
inline constexpr std::int64_t jsonVersion = 1;

/// Writes everything that was found as one JSON object and a line feed. `version` is that of the program.
void writeJson(Output& output, const Survey& survey, std::string_view version);

}  // namespace zelk::cli
